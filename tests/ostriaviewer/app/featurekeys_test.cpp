// SPDX-License-Identifier: Apache-2.0
// Whoever has no mouse changes features, too.
#include "featurepaneltest.h"

#include <QKeyEvent>

#include <cmath>

namespace Viewer {
namespace {

class FeatureKeys : public FeaturePanelTest
{
protected:
    /// As a keyboard does: whatever has the keys gets them.
    void press(int key) { QTest::keyClick(window().windowHandle(), static_cast<Qt::Key>(key)); }
    void type(const QString& text)
    {
        for (const QChar character : text)
            QTest::keyClick(window().windowHandle(), character.toLatin1());
    }

    /// Leads the keys from the filter to a feature.
    void goTo(const char* feature)
    {
        cell(feature);
        child<QLineEdit>("featureFilter")->setFocus();
        press(Qt::Key_Tab);
        ASSERT_TRUE(m_tree->hasFocus());
        press(Qt::Key_Home);
        for (int row = 0; row < 10 && present() != feature; ++row)
            press(Qt::Key_Down);
        ASSERT_EQ(present(), feature);
    }
    QString present() const
    {
        return m_tree->currentIndex().data(FeatureModel::NameRole).toString();
    }

    bool isExposure(double expected) const
    {
        const auto exposure = parameters()->floatParameter("ExposureTime");
        return waitUntil([&] { return std::abs(exposure->value() - expected) < 20.0; });
    }
};

TEST_F(FeatureKeys, TypeANumberOverAnother)
{
    ASSERT_NO_FATAL_FAILURE(goTo("ExposureTime"));
    type("1234");
    press(Qt::Key_Return);
    EXPECT_TRUE(isExposure(1234.0));
    EXPECT_TRUE(waitUntil([this] { return m_tree->hasFocus(); })) << "for the next feature";
    EXPECT_EQ(present(), "ExposureTime");
}

TEST_F(FeatureKeys, SearchByLettersAndChangeNothing)
{
    ASSERT_NO_FATAL_FAILURE(goTo("BalanceWhiteAuto"));
    m_tree->setCurrentIndex(cell("BalanceWhiteAuto"));
    const QString before = parameters()->enumerationParameter("BalanceWhiteAuto")->value();
    ASSERT_FALSE(before.startsWith('C'));
    type("c");
    EXPECT_EQ(parameters()->enumerationParameter("BalanceWhiteAuto")->value(), before);
    EXPECT_FALSE(m_tree->indexWidget(m_tree->currentIndex()));
}

TEST_F(FeatureKeys, SearchForNamesAlsoBehindAValue)
{
    child<QLineEdit>("featureFilter")->setText("Balance");
    ASSERT_TRUE(find("BalanceRatioSelector").isValid());
    m_tree->setFocus();
    m_tree->setCurrentIndex(find("BalanceWhiteAuto").siblingAtColumn(FeatureModel::Value));
    type("balancer");
    EXPECT_TRUE(present().startsWith("BalanceRatio")) << qPrintable(present());
}

TEST_F(FeatureKeys, LeaveTheCameraAloneAfterEscape)
{
    const double before = parameters()->floatParameter("ExposureTime")->value();
    ASSERT_NO_FATAL_FAILURE(goTo("ExposureTime"));
    type("1234");
    EXPECT_TRUE(m_tree->indexWidget(cell("ExposureTime")));
    press(Qt::Key_Escape);
    EXPECT_FALSE(m_tree->indexWidget(cell("ExposureTime")));
    EXPECT_EQ(parameters()->floatParameter("ExposureTime")->value(), before);
}

TEST_F(FeatureKeys, LeadOnBehindAListThatWasClosed)
{
    const auto choice = parameters()->enumerationParameter("BalanceWhiteAuto");
    const QString before = choice->value();
    ASSERT_NO_FATAL_FAILURE(goTo("BalanceWhiteAuto"));
    press(Qt::Key_Return);
    ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    QApplication::activePopupWidget()->close(); // as a click beside it does
    EXPECT_TRUE(waitUntil([this] { return !m_tree->indexWidget(m_tree->currentIndex()); }));
    EXPECT_TRUE(waitUntil([this] { return m_tree->hasFocus(); }));
    press(Qt::Key_Up);
    press(Qt::Key_Down);
    EXPECT_EQ(choice->value(), before);
    EXPECT_EQ(present(), "BalanceWhiteAuto");
}

class FeatureKey : public FeatureKeys, public testing::WithParamInterface<Qt::Key>
{};

TEST_P(FeatureKey, EditsANumber)
{
    ASSERT_NO_FATAL_FAILURE(goTo("ExposureTime"));
    press(GetParam());
    type("4321");
    press(Qt::Key_Return);
    EXPECT_TRUE(isExposure(4321.0));
}

TEST_P(FeatureKey, TurnsASwitch)
{
    const auto reverse = parameters()->booleanParameter("AcquisitionFrameRateEnable");
    const bool before = reverse->value();
    ASSERT_NO_FATAL_FAILURE(goTo("AcquisitionFrameRateEnable"));
    press(GetParam());
    EXPECT_EQ(reverse->value(), !before);
    press(GetParam());
    EXPECT_EQ(reverse->value(), before);
}

// The camera is given the choice alone, not each entry on the way to it.
TEST_P(FeatureKey, OpensTheListOfAChoice)
{
    const auto choice = parameters()->enumerationParameter("BalanceWhiteAuto");
    const QString before = choice->value();
    ASSERT_NE(before, "Continuous");
    ASSERT_NO_FATAL_FAILURE(goTo("BalanceWhiteAuto"));
    press(GetParam());
    ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
    press(Qt::Key_End);
    EXPECT_EQ(choice->value(), before);
    press(Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return choice->value() == "Continuous"; }));
    EXPECT_TRUE(waitUntil([this] { return m_tree->hasFocus(); }));
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST_P(FeatureKey, ExecutesACommandOnceHoweverLongItIsHeld)
{
    const auto exposure = parameters()->floatParameter("ExposureTime");
    const double initial = exposure->value();
    parameters()->enumerationParameter("UserSetSelector")->setValue("Default");
    ASSERT_NO_FATAL_FAILURE(goTo("UserSetLoad"));
    exposure->setValue(initial / 2);
    press(GetParam());
    EXPECT_EQ(exposure->value(), initial);
    exposure->setValue(initial / 2);
    QKeyEvent repeated(QEvent::KeyPress, GetParam(), {}, {}, true);
    QCoreApplication::sendEvent(m_tree, &repeated);
    EXPECT_NE(exposure->value(), initial);
}

INSTANTIATE_TEST_SUITE_P(Viewer, FeatureKey,
                         testing::Values(Qt::Key_F2, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space),
                         [](const auto& key) {
                             return QKeySequence(key.param).toString().toStdString();
                         });

} // namespace
} // namespace Viewer
