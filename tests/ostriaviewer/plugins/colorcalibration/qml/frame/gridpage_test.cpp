// SPDX-License-Identifier: Apache-2.0
// The page of the grid: its first image, its controls and what it paints.
#include "wizardwindow.h"

#include <QTest>

namespace {

class GridPage : public WizardWindow
{
protected:
    ~GridPage() override { m_view.reset(); }

    bool handlesVisible() { return item("upperLeft")->isVisible(); }
    bool isEnabled(const char* name) { return item(name)->isEnabled(); }

    QColor pixel(const QPoint& canvas)
    {
        const QPoint point = item("canvasStep12")->mapToScene(canvas).toPoint();
        return m_view->grabWindow().pixelColor(point);
    }

    TrapezoidDouble m_patch{{120, 120}, {150, 150}};
};

TEST_F(GridPage, FetchesTheGridAndOneImageBeforeItIsPainted)
{
    open();
    EXPECT_EQ(takeCalls(), (QStringList{"singleGrab()", "getGridPosition()"}));
    EXPECT_FALSE(m_model.m_initial);
    EXPECT_EQ(property("canvasStep12", "imageWidth").toInt(), m_camera.m_size.width());
    EXPECT_TRUE(property("canvasStep12", "initial").toBool());
    EXPECT_FALSE(isEnabled("showGrid"));
    EXPECT_FALSE(handlesVisible());
}

TEST_F(GridPage, FitsTheImageOfFourByThreeAtFirst)
{
    open();
    const double height = property("canvasStep12", "height").toDouble();
    const double ratio = std::max(4 / 780.0, 3 / height);
    EXPECT_DOUBLE_EQ(m_transformer.scale(), ratio);
    EXPECT_EQ(m_camera.m_size, QSize(int(4 / ratio), int(3 / ratio)));
    EXPECT_EQ(m_transformer.offset(), QPoint((780 - m_camera.m_size.width()) / 2, 0));
    EXPECT_EQ(property("videoOutput", "x").toInt(), m_transformer.offset().x());
}

TEST_F(GridPage, FetchesTheGridOnlyOncePerOpening)
{
    m_model.m_initial = false;
    open();
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
}

TEST_F(GridPage, ShowsTheGridWithTheFirstImage)
{
    open();
    takeCalls();
    emit m_camera.imageChanged();
    EXPECT_EQ(takeCalls(), (QStringList{"startGrab()", "updateTrapezoidList()"}));
    EXPECT_FALSE(property("canvasStep12", "initial").toBool());
    EXPECT_TRUE(isEnabled("showGrid"));
    EXPECT_TRUE(handlesVisible());
    EXPECT_EQ(item("upperLeft")->position(), QPointF(92, 92));

    emit m_camera.imageChanged();
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(GridPage, StartsNoLiveImageForAFirstImageThatComesAfterItsEnd)
{
    for (const auto end : {&ModelDouble::cleanupQML, &ModelDouble::cameraLost}) {
        open();
        emit(m_model.*end)();
        takeCalls();
        emit m_camera.imageChanged();
        EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
    }
}

TEST_F(GridPage, TakesOneImageAloneWithoutContinuousShot)
{
    open();
    setGlobalValue("autoRefreshChecked", false);
    takeCalls();
    emit m_camera.imageChanged();
    EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
}

TEST_F(GridPage, KeepsTheGridHiddenWhereItIsNotWanted)
{
    m_model.m_showGrid = false;
    open();
    takeCalls();
    emit m_camera.imageChanged();
    EXPECT_EQ(takeCalls(), QStringList{"startGrab()"});
    EXPECT_FALSE(handlesVisible());
    EXPECT_TRUE(isEnabled("showGrid"));

    click("showGrid");
    EXPECT_TRUE(m_model.m_showGrid);
    EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
    EXPECT_TRUE(handlesVisible());
    click("showGrid");
    EXPECT_FALSE(m_model.m_showGrid);
    EXPECT_FALSE(handlesVisible());
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(GridPage, OffersNoGridAfterAnImageThatFailedUntilOneComes)
{
    open();
    emit m_camera.imageFailed();
    EXPECT_FALSE(isEnabled("showGrid"));
    emit m_camera.imageChanged();
    EXPECT_TRUE(isEnabled("showGrid"));
    emit m_camera.imageFailed();
    EXPECT_FALSE(isEnabled("showGrid"));
    emit m_camera.imageChanged();
    EXPECT_TRUE(isEnabled("showGrid"));
}

TEST_F(GridPage, PaintsBlackLinesWithWhiteOnesBeside)
{
    m_grid.m_list = {QVariant::fromValue<QObject*>(&m_patch)};
    openAt(1);
    ASSERT_TRUE(waitFor([this] { return pixel({200, 100}) == QColor(Qt::black); }));
    EXPECT_EQ(pixel({200, 101}), QColor(Qt::white));
    EXPECT_EQ(pixel({135, 120}), QColor(Qt::black));
    EXPECT_EQ(pixel({135, 121}), QColor(Qt::white));
    EXPECT_EQ(pixel({300, 200}), QColor(Qt::black));
    EXPECT_EQ(pixel({301, 200}), QColor(Qt::white));
}

TEST_F(GridPage, PaintsTheGridWhereItHasBeenPut)
{
    openAt(1);
    const auto isAt = [this](int y) {
        return waitFor([&] { return pixel({200, y}) == QColor(Qt::black); });
    };
    ASSERT_TRUE(isAt(100));
    // Both ends of the upper line, which the arrows bring down together.
    for (const char* corner : {"upperLeft", "upperRight"}) {
        item(corner)->forceActiveFocus();
        for (int pixels = 0; pixels < 5; ++pixels)
            press(Qt::Key_Down);
    }
    EXPECT_TRUE(isAt(105)) << "moved";

    m_outline.setProperty("upperLeft", QPoint(100, 130));
    m_outline.setProperty("upperRight", QPoint(300, 130));
    emit m_model.autoChartFindFinished(true);
    EXPECT_TRUE(isAt(130)) << "found";

    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(isAt(property("upperLeft", "y").toInt() + 8)) << "reset";
}

TEST_F(GridPage, HasHandlesOnTheFirstStepAlone)
{
    openAt(2);
    EXPECT_FALSE(handlesVisible());
    click("backButton");
    EXPECT_TRUE(handlesVisible());
}

TEST_F(GridPage, FollowsTheWindowsSize)
{
    openAt(1);
    m_camera.setOriginalSize({1600, 800});
    m_view->resize(1020, 900);
    ASSERT_TRUE(waitFor([this] { return property("canvasStep12", "width").toInt() == 1000; }));
    EXPECT_DOUBLE_EQ(m_transformer.scale(), 1.6);
    EXPECT_EQ(m_camera.m_size, QSize(1000, 500));
    const double height = property("canvasStep12", "height").toDouble();
    EXPECT_DOUBLE_EQ(globalValue("distanceToImage").toDouble(), height - 500);
    EXPECT_EQ(item("upperLeft")->position(), QPointF(92, 92));
}

TEST_F(GridPage, LetsTheFinderRunWithItsButtonsOff)
{
    openAt(1);
    click("finderButton");
    EXPECT_EQ(takeCalls(), QStringList{"findChartAsync()"});
    for (const char* button : {"finderButton", "nextButton", "cancelButton"})
        EXPECT_FALSE(isEnabled(button)) << button;

    emit m_model.autoChartFindFinished(true);
    EXPECT_EQ(takeCalls(), QStringList{"getGridPosition()"});
    for (const char* button : {"finderButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(isEnabled(button)) << button;
    EXPECT_TRUE(boxes().isEmpty());
}

TEST_F(GridPage, MovesItsHandlesToWhatTheFinderFound)
{
    openAt(1);
    m_outline.m_upperLeft = {50, 60};
    emit m_model.autoChartFindFinished(true);
    EXPECT_EQ(item("upperLeft")->position(), QPointF(42, 52));
}

TEST_F(GridPage, SaysThatTheFinderFoundNothing)
{
    openAt(1);
    click("finderButton");
    takeCalls();
    emit m_model.autoChartFindFinished(false);
    EXPECT_EQ(takeCalls(), QStringList{"getGridPosition()"});
    const auto message = onlyMessage();
    EXPECT_EQ(message.title, "Color Calibrator");
    EXPECT_EQ(message.text, "Grid could not be positioned automatically.");
    EXPECT_EQ(message.icon, QMessageBox::Warning);
    EXPECT_TRUE(isEnabled("finderButton"));
}

TEST_F(GridPage, LeavesNoButtonOffWhereReturnOvertakesTheFinder)
{
    openAt(1);
    click("finderButton");
    press(Qt::Key_Return);
    ASSERT_EQ(m_model.activeStep(), 2);
    for (const char* button : {"backButton", "nextButton", "cancelButton"})
        EXPECT_TRUE(isEnabled(button)) << button;
    emit m_model.autoChartFindFinished(true);
    EXPECT_TRUE(isEnabled("nextButton"));
}

TEST_F(GridPage, CanBeLeftByEscapeWhileTheFinderKeepsSilent)
{
    openAt(1);
    click("finderButton");
    takeCalls();
    press(Qt::Key_Escape);
    EXPECT_EQ(takeCalls(), (QStringList{"stopGrab()", "cancel()"}));
}

TEST_F(GridPage, TakesSingleShotsWithoutContinuousShotAlone)
{
    openAt(1);
    EXPECT_FALSE(isEnabled("singleShotButton"));
    click("autoRefreshCheckBox");
    EXPECT_FALSE(globalValue("autoRefreshChecked").toBool());
    EXPECT_EQ(takeCalls(), QStringList{"stopGrab()"});
    EXPECT_TRUE(isEnabled("singleShotButton"));
    click("singleShotButton");
    EXPECT_EQ(takeCalls(), QStringList{"singleGrab()"});
    click("autoRefreshCheckBox");
    EXPECT_EQ(takeCalls(), QStringList{"startGrab()"});
    EXPECT_FALSE(m_model.m_singleShotEnabled);
    EXPECT_TRUE(property("autoRefreshCheckBox", "checked").toBool());
}

TEST_F(GridPage, IsSetBackWhenTheWindowCloses)
{
    openAt(1);
    click("autoRefreshCheckBox");
    object("checkTimerKeyDragging")->setProperty("running", true);
    takeCalls();
    emit m_model.cleanupQML();
    EXPECT_EQ(takeCalls(), QStringList{"stopGrab()"});
    EXPECT_TRUE(globalValue("autoRefreshChecked").toBool());
    EXPECT_FALSE(property("checkTimerKeyDragging", "running").toBool());
}

TEST_F(GridPage, ExplainsTheFinderUnderTheMouse)
{
    openAt(1);
    EXPECT_FALSE(item("standardToolTip")->isVisible());
    // Whoever was there before may have left the mouse at the very place.
    QTest::mouseMove(m_view.get(), {2, 2});
    QTest::mouseMove(m_view.get(), middleOf(item("finderButton")));
    ASSERT_TRUE(waitFor([this] { return item("standardToolTip")->isVisible(); }));
    EXPECT_EQ(property("toolTipText", "text").toString(),
              "Automatically position the grid over the color chart.");
    // Beside the middle of the button, as far to the left as the tooltip is wide.
    auto* button = item("finderButton");
    auto* toolTip = item("standardToolTip");
    const QPointF middle = button->mapToScene({button->width() / 2, button->height() / 2});
    EXPECT_DOUBLE_EQ(toolTip->x(), middle.x() - toolTip->width() + 5);
    EXPECT_DOUBLE_EQ(toolTip->y(), middle.y() + 20);
    QTest::mouseMove(m_view.get(), QPoint(5, 5));
    EXPECT_TRUE(waitFor([this] { return !item("standardToolTip")->isVisible(); }));
}

} // namespace
