// SPDX-License-Identifier: Apache-2.0
// Features are shown as the camera has them, found by name, and written.
#include "featurepaneltest.h"

#include <QComboBox>

#include <cmath>

namespace Viewer {
namespace {

TEST_F(FeaturePanelTest, ShowsTheCamerasCategories)
{
    const auto categories = parameters()->categories();
    ASSERT_GT(categories.size(), 3u);
    ASSERT_EQ(m_tree->model()->rowCount(), static_cast<int>(categories.size()));
    for (int row = 0; row < m_tree->model()->rowCount(); ++row) {
        const QModelIndex category = m_tree->model()->index(row, 0);
        const auto& expected = categories[static_cast<std::size_t>(row)];
        EXPECT_EQ(category.data().toString(), expected.displayName);
        EXPECT_EQ(m_tree->model()->rowCount(category), expected.features.size());
    }
}

TEST_F(FeaturePanelTest, FilterFindsFeaturesByNameAndNothingElse)
{
    EXPECT_TRUE(cell("ExposureTime").isValid());
    child<QLineEdit>("featureFilter")->setText("no such feature");
    EXPECT_EQ(m_tree->model()->rowCount(), 0);
    waitForAnimations(window());
    child<QLineEdit>("featureFilter")->clear();
    EXPECT_GT(m_tree->model()->rowCount(), 3);
}

TEST_F(FeaturePanelTest, FilterThatFitsACategoryShowsAllOfIt)
{
    for (const auto& category : parameters()->categories()) {
        child<QLineEdit>("featureFilter")->setText(category.displayName);
        waitForAnimations(window());
        const QModelIndex shown = find(category.name);
        ASSERT_TRUE(shown.isValid()) << qPrintable(category.name);
        EXPECT_EQ(m_tree->model()->rowCount(shown), category.features.size());
        EXPECT_TRUE(m_tree->isExpanded(shown)) << qPrintable(category.name);
    }
}

TEST_F(FeaturePanelTest, WritesANumberThatIsTyped)
{
    auto* editor = edit<QLineEdit>(cell("ExposureTime"));
    ASSERT_NE(editor, nullptr);
    editor->clear();
    QTest::keyClicks(editor, "1234");
    QTest::keyClick(editor, Qt::Key_Return);
    const auto exposure = parameters()->floatParameter("ExposureTime");
    EXPECT_TRUE(waitUntil([&] { return std::abs(exposure->value() - 1234.0) < 20.0; }));
}

TEST_F(FeaturePanelTest, TellsTheLimitsOfANumberThatIsRefused)
{
    const double before = parameters()->floatParameter("ExposureTime")->value();
    auto* editor = edit<QLineEdit>(cell("ExposureTime"));
    ASSERT_NE(editor, nullptr);
    editor->clear();
    QTest::keyClicks(editor, "1e30");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("possible now"); }));
    EXPECT_TRUE(hasMessage("ExposureTime"));
    EXPECT_FALSE(hasMessage(". (possible now")) << "a full stop within the sentence";
    EXPECT_TRUE(hasMessage(").")) << "and none at its end";
    EXPECT_EQ(parameters()->floatParameter("ExposureTime")->value(), before);
}

TEST_F(FeaturePanelTest, RefusesWordsWhereANumberIsWanted)
{
    auto* editor = edit<QLineEdit>(cell("ExposureTime"));
    ASSERT_NE(editor, nullptr);
    editor->clear();
    QTest::keyClicks(editor, "long");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("\"long\" is no number"); }));
}

TEST_F(FeaturePanelTest, ChoosesAnEntryOfAList)
{
    auto* list = edit<QComboBox>(cell("BalanceWhiteAuto"));
    ASSERT_NE(list, nullptr);
    const int row = list->findData("Continuous");
    ASSERT_GE(row, 0);
    list->setCurrentIndex(row);
    emit list->activated(row);
    const auto choice = parameters()->enumerationParameter("BalanceWhiteAuto");
    EXPECT_TRUE(waitUntil([&] { return choice->value() == "Continuous"; }));
}

TEST_F(FeaturePanelTest, FollowsAChangeThatSomebodyElseMakes)
{
    const QModelIndex value = cell("ExposureTime");
    const QString before = value.data().toString();
    parameters()->floatParameter("ExposureTime")->setValue(4321.0);
    EXPECT_TRUE(waitUntil([&] { return text("ExposureTime") != before; }));
    EXPECT_TRUE(text("ExposureTime").startsWith("43"));
}

TEST_F(FeaturePanelTest, ShowsThatAFeatureIsLockedWhileTheCameraRuns)
{
    const QModelIndex value = cell("PixelFormat");
    EXPECT_TRUE(value.flags() & Qt::ItemIsEditable);
    window().commands().startAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return !(cell("PixelFormat").flags() & Qt::ItemIsEditable); }));
    EXPECT_TRUE(cell("PixelFormat").data(Qt::ToolTipRole).toString().contains("Cannot be changed"));
}

TEST_F(FeaturePanelTest, ToolTipTellsNameAndRange)
{
    const QString tip = cell("ExposureTime").data(Qt::ToolTipRole).toString();
    EXPECT_TRUE(tip.contains("ExposureTime"));
    EXPECT_TRUE(tip.contains("Range:"));
}

TEST_F(FeaturePanelTest, PressesTheButtonOfACommand)
{
    const double initial = parameters()->floatParameter("ExposureTime")->value();
    parameters()->floatParameter("ExposureTime")->setValue(initial / 2);
    parameters()->enumerationParameter("UserSetSelector")->setValue("Default");
    const QModelIndex value = cell("UserSetLoad");
    ASSERT_TRUE(value.isValid());
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, m_tree->visualRect(value).center());
    EXPECT_EQ(parameters()->floatParameter("ExposureTime")->value(), initial);
}

TEST_F(FeaturePanelTest, IsEmptyForAClosedOrLostCamera)
{
    m_first->loseConnection();
    EXPECT_TRUE(waitUntil([this] { return !m_tree->isVisible(); }));
    EXPECT_EQ(m_tree->model()->rowCount(), 0);
}

} // namespace
} // namespace Viewer
