// SPDX-License-Identifier: Apache-2.0
// Buttons, step circles, and the ways out.
#include "wizardwindow.h"

#include <QQmlProperty>
#include <QTest>

namespace {

constexpr auto warning =
    "If you cancel the color calibration, any changes you made will be lost. The "
    "original settings will be restored. \nDo you really want to cancel?";
const QStringList cancelled = {"stopGrab()", "cancel()"};

class Navigation : public WizardWindow
{
protected:
    QColor color(const QByteArray& name)
    {
        return property(name.constData(), "color").value<QColor>();
    }

    void expectCircles(int reached)
    {
        for (int step = 1; step <= 4; ++step) {
            const QByteArray number = QByteArray::number(step);
            const QColor expected = step <= reached ? "#666666" : "#cccccc";
            EXPECT_EQ(color("step" + number), expected) << step;
            EXPECT_EQ(color("stepName" + number), expected) << step;
            EXPECT_EQ(item(QByteArray("innerCircle" + number).constData())->isVisible(),
                      step > reached)
                << step;
        }
    }
};

class NavigationOnStep : public Navigation, public testing::WithParamInterface<int>
{};

TEST_P(NavigationOnStep, ShowsHowFarItHasCome)
{
    openAt(GetParam());
    expectCircles(GetParam());
}

TEST_P(NavigationOnStep, NamesItsButtons)
{
    openAt(GetParam());
    EXPECT_EQ(item("backButton")->isVisible(), GetParam() != 1);
    EXPECT_EQ(property("backButton", "text").toString(), "Back");
    EXPECT_EQ(property("nextButton", "text").toString(), GetParam() == 4 ? "Finish" : "Next");
    EXPECT_EQ(property("nextButton", "isDefault").toBool(), GetParam() != 2);
    EXPECT_EQ(property("cancelButton", "text").toString(), "Cancel");
}

TEST_P(NavigationOnStep, EnablesItsButtonsTogether)
{
    openAt(GetParam());
    QMetaObject::invokeMethod(m_view->rootObject(), "disableNavigation");
    for (const char* button : {"backButton", "nextButton", "cancelButton"})
        EXPECT_FALSE(item(button)->property("enabled").toBool()) << button;
    QMetaObject::invokeMethod(m_view->rootObject(), "enableNavigation");
    for (const char* button : {"backButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(item(button)->property("enabled").toBool()) << button;
}

INSTANTIATE_TEST_SUITE_P(Wizard, NavigationOnStep, testing::Values(1, 2, 3, 4));

TEST_F(Navigation, CancelsTheFirstStepWithoutAQuestion)
{
    openAt(1);
    click("cancelButton");
    EXPECT_EQ(takeCalls(), cancelled);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(Navigation, EscapeCancelsTheFirstStepWithoutAQuestion)
{
    openAt(1);
    press(Qt::Key_Escape);
    EXPECT_EQ(takeCalls(), cancelled);
}

class CancellingOnStep : public Navigation, public testing::WithParamInterface<int>
{};

TEST_P(CancellingOnStep, AsksFirst)
{
    openAt(GetParam());
    click("cancelButton");
    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, warning);
    EXPECT_EQ(message.icon, QMessageBox::Warning);
    EXPECT_TRUE(takeCalls().isEmpty());
    answer(QMessageBox::Yes);
    EXPECT_EQ(takeCalls(), cancelled);
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_P(CancellingOnStep, GoesOnAfterANo)
{
    openAt(GetParam());
    press(Qt::Key_Escape);
    EXPECT_EQ(onlyMessage().text, warning);
    answer(QMessageBox::No);
    EXPECT_TRUE(takeCalls().isEmpty());
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_EQ(m_model.activeStep(), GetParam());
}

TEST_P(CancellingOnStep, TakesEscapeInTheQuestionForANo)
{
    openAt(GetParam());
    press(Qt::Key_Escape);
    ASSERT_EQ(boxes().size(), 1);
    QTest::keyClick(boxes().first(), Qt::Key_Escape);
    QCoreApplication::processEvents();
    EXPECT_TRUE(takeCalls().isEmpty());
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_P(CancellingOnStep, TakesTheQuestionAwayWhenTheWizardEnds)
{
    openAt(GetParam());
    press(Qt::Key_Escape);
    ASSERT_EQ(boxes().size(), 1);
    emit m_model.cleanupQML();
    EXPECT_TRUE(boxes().isEmpty());
    EXPECT_FALSE(takeCalls().contains("cancel()"));
}

INSTANTIATE_TEST_SUITE_P(Wizard, CancellingOnStep, testing::Values(2, 3, 4));

TEST_F(Navigation, TakesEachMessageAwayWhenTheWizardEnds)
{
    openAt(1);
    for (const char* box : {"modelError", "modelWarning", "criticalError"}) {
        QMetaObject::invokeMethod(object(box), "open");
        ASSERT_EQ(boxes().size(), 1) << box;
        takeCalls();
        emit m_model.cleanupQML();
        EXPECT_TRUE(boxes().isEmpty()) << box;
        EXPECT_FALSE(takeCalls().contains("cancel()")) << box;
    }
}

TEST_F(Navigation, KeepsReturnAndEscapeAliveWhileItsButtonsAreOff)
{
    openAt(3);
    QMetaObject::invokeMethod(m_view->rootObject(), "disableNavigation");
    press(Qt::Key_Escape);
    EXPECT_EQ(onlyMessage().text, warning);
    answer(QMessageBox::No);
    press(Qt::Key_Return);
    EXPECT_EQ(m_model.activeStep(), 4);
}

class BoxLeftOpen : public Navigation, public testing::WithParamInterface<const char*>
{};

TEST_P(BoxLeftOpen, GoesWithTheWizardAndAnswersNothing)
{
    openAt(2);
    QMetaObject::invokeMethod(object(GetParam()), "open");
    ASSERT_EQ(boxes().size(), 1);
    emit m_model.cleanupQML();
    EXPECT_TRUE(waitFor([this] { return boxes().isEmpty(); }));
    EXPECT_FALSE(takeCalls().contains("cancel()"));
}

INSTANTIATE_TEST_SUITE_P(Wizard, BoxLeftOpen,
                         testing::Values("modelError", "modelWarning", "criticalError",
                                         "cancelWarningDialog", "autoAdjustGrayError"));

TEST_F(Navigation, LaysTheBarOutByItsWidth)
{
    openAt(1);
    // Of 780 pixels 80 go to the circles, an eighth of the rest to each outer line.
    EXPECT_DOUBLE_EQ(property("stepLine1", "width").toDouble(), 88.5);
    EXPECT_DOUBLE_EQ(property("stepLine2", "width").toDouble(), 176);
    EXPECT_DOUBLE_EQ(property("stepLine5", "width").toDouble(), 88.5);
    EXPECT_DOUBLE_EQ(property("step1", "width").toDouble(), 20);
    EXPECT_DOUBLE_EQ(property("step1", "x").toDouble(), 87.5);
    EXPECT_DOUBLE_EQ(property("step4", "x").toDouble(), 87.5 + 3 * 195);
    EXPECT_DOUBLE_EQ(property("innerCircle2", "width").toDouble(), 16);
}

} // namespace
