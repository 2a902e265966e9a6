// SPDX-License-Identifier: Apache-2.0
// The images before and after under their divider.
#include "resultspages.h"

#include <QTest>

#include <cmath>

namespace {

class CanvasStep4 : public ResultsPages
{
protected:
    void openPage(const QSize& size = {800, 750})
    {
        open(4, size);
        m_width = item("canvasLeft")->width();
        m_imageWidth = item("canvasLeft")->property("transformedWidth").toDouble();
        m_border = (m_width - m_imageWidth) / 2;
        ASSERT_GT(m_border, 20) << "the image must leave a margin for these tests";
    }

    void moveDivider(double x) { call(page("bodyLoader"), "moveDivider", x); }
    double divider() { return item("dragLine")->x(); }
    double handle() { return item("imageSlider")->x(); }

    /// Presses the handle in its middle and moves the mouse to where the canvas has x.
    void dragTo(double x)
    {
        auto* canvas = item("canvasLeft");
        const int y = middleOf(item("imageSlider")).y();
        QTest::mousePress(m_view.get(), Qt::LeftButton, {}, middleOf(item("imageSlider")));
        moveMouse({inWindow(canvas, {x, 0}).x(), y});
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, {inWindow(canvas, {x, 0}).x(), y});
    }

    double m_width = 0;
    double m_imageWidth = 0;
    double m_border = 0;
};

TEST_F(CanvasStep4, FetchesTheImageFromBeforeAndThenStartsTheLiveOne)
{
    openPage();
    EXPECT_EQ(m_log.made, (QStringList{"activeStep=4", "grabOriginalImage()", "startGrab()"}));
}

TEST_F(CanvasStep4, TakesOneImageWhereTheLiveImageIsOff)
{
    open(3);
    m_view->rootObject()->setProperty("autoRefreshChecked", false);
    m_log.made.clear();
    m_model.setActiveStep(4);
    EXPECT_EQ(m_log.made, (QStringList{"activeStep=4", "grabOriginalImage()", "singleGrab()"}));
}

TEST_F(CanvasStep4, BeginsWithTheDividerInTheMiddle)
{
    openPage();
    EXPECT_EQ(handle(), 390);
    EXPECT_EQ(divider(), 398);
    EXPECT_EQ(item("imageSlider")->y(), item("canvasLeft")->property("transformedHeight"));
    EXPECT_EQ(item("dragLine")->height(), item("imageSlider")->y());
}

TEST_F(CanvasStep4, PaintsTheImageFromBeforeLeftOfTheDividerAlone)
{
    openPage();
    auto* canvas = item("canvasLeft");
    const auto pixel = [&](double x, double y) {
        return picture().pixelColor(inWindow(canvas, {x, y}));
    };
    m_camera.show(Qt::green);
    ASSERT_TRUE(waitFor([&] { return pixel(380, 200) == QColor(Qt::red); }));
    ASSERT_TRUE(waitFor([&] { return pixel(420, 200) == QColor(Qt::green); }));
    EXPECT_EQ(pixel(m_border + 2, 200), QColor(Qt::red));
    EXPECT_NE(pixel(m_border - 3, 200), QColor(Qt::red));
    moveDivider(300);
    ASSERT_TRUE(waitFor([&] { return pixel(380, 200) == QColor(Qt::green); }));
    EXPECT_EQ(pixel(290, 200), QColor(Qt::red));
}

TEST_F(CanvasStep4, LeavesOutTheLastRowAndColumn)
{
    openPage();
    auto* canvas = item("canvasLeft");
    m_camera.show(Qt::green);
    moveDivider(m_width);
    const auto pixel = [&](double x, double y) {
        return picture().pixelColor(inWindow(canvas, {x, y}));
    };
    ASSERT_TRUE(waitFor([&] { return pixel(m_width / 2, 200) == QColor(Qt::red); }));
    const double bottom = item("imageSlider")->y() - 2;
    EXPECT_EQ(pixel(m_width / 2, bottom), QColor(Qt::red));
    EXPECT_EQ(pixel(m_width - m_border - 3, 200), QColor(Qt::red));
}

TEST_F(CanvasStep4, ShowsANewImageFromBefore)
{
    openPage();
    EXPECT_EQ(item("canvasLeft")->property("oldimagefile"),
              item("canvasLeft")->property("imagefile"));
    ASSERT_TRUE(waitFor([&] {
        picture();
        return item("canvasLeft")->property("imageWidth").toInt() == 400;
    }));
    EXPECT_EQ(item("canvasLeft")->property("imageHeight").toInt(), 300);
}

TEST_F(CanvasStep4, ShowsTheImageOfEachVisit)
{
    openPage();
    const auto middleIs = [&](const QColor& color) {
        return waitFor([&] {
            return picture().pixelColor(inWindow(item("canvasLeft"), {m_width / 2 - 5, 200})) ==
                   color;
        });
    };
    ASSERT_TRUE(middleIs(Qt::red));
    for (const auto color : {Qt::cyan, Qt::yellow, Qt::magenta}) {
        m_model.setActiveStep(3);
        OriginalImageDouble::s_color = QColor(color).rgb();
        m_model.setActiveStep(4);
        EXPECT_TRUE(middleIs(color));
    }
    OriginalImageDouble::s_color = 0xffff0000;
}

TEST_F(CanvasStep4, FollowsTheMouseByDividerAndMousePosition)
{
    openPage();
    // The press is 8 right of the handle's edge; 5 on, the mouse is at 13 of the handle: 398 + 13.
    dragTo(398 + 5);
    EXPECT_EQ(divider(), 411);
    EXPECT_EQ(handle(), 403);
}

TEST_F(CanvasStep4, StopsOnePixelInsideTheImage)
{
    // 781 wide, with an image of 585: the border lies on a whole pixel.
    openPage({801, 750});
    ASSERT_EQ(m_border, 98);
    const double right = m_width - m_border;
    dragTo(right - 8 - 1);
    EXPECT_EQ(divider(), right - 1);
    dragTo(right - 8);
    EXPECT_EQ(divider(), right - 1);
    dragTo(right + 100);
    EXPECT_EQ(divider(), right - 1);
    dragTo(m_border - 8 + 1);
    EXPECT_EQ(divider(), m_border + 1);
    dragTo(m_border - 8);
    EXPECT_EQ(divider(), m_border + 1);
}

TEST_F(CanvasStep4, MovesByArrowKeysUntilTheHandleLeavesTheImage)
{
    openPage();
    item("imageSlider")->forceActiveFocus();
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    EXPECT_EQ(divider(), 397);
    EXPECT_EQ(handle(), 389);
    const double right = m_width - m_border;
    moveDivider(right - 1);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Right);
    EXPECT_EQ(handle(), right);
    EXPECT_EQ(divider(), right + 8);
    press(Qt::Key_Left);
    EXPECT_EQ(divider(), right + 7);
    moveDivider(m_border + 10);
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_Left);
    EXPECT_EQ(handle(), m_border);
    press(Qt::Key_Right);
    EXPECT_EQ(handle(), m_border + 1);
}

TEST_F(CanvasStep4, KeepsTheDividerWhereItIsInsideAChangedWidth)
{
    openPage();
    moveDivider(m_border + 30);
    const double before = divider();
    m_view->resize(820, 750);
    ASSERT_TRUE(waitFor([&] { return item("canvasLeft")->width() == 800; }));
    EXPECT_EQ(divider(), before);
}

TEST_F(CanvasStep4, CentersTheDividerThatAChangedWidthLeavesOutside)
{
    openPage();
    moveDivider(m_width - m_border - 1);
    m_view->resize(520, 750);
    ASSERT_TRUE(waitFor([&] { return item("canvasLeft")->width() == 500; }));
    EXPECT_EQ(handle(), 250);
    EXPECT_EQ(divider(), 258);
    moveDivider(20);
    m_view->resize(1200, 750);
    ASSERT_TRUE(waitFor([&] { return item("canvasLeft")->width() == 1180; }));
    EXPECT_EQ(handle(), 590);
    EXPECT_EQ(divider(), 598);
}

TEST_F(CanvasStep4, FadesTheLabelsThatTheDividerCrosses)
{
    openPage();
    auto* before = item("before");
    auto* after = item("after");
    ASSERT_GT(before->width(), 50);
    EXPECT_EQ(before->opacity(), 1);
    EXPECT_EQ(after->opacity(), 1);
    moveDivider(before->x() + before->width() / 4);
    EXPECT_NEAR(before->opacity(), 0.25, 1e-9);
    EXPECT_EQ(after->opacity(), 1);
    moveDivider(before->x() + before->width());
    EXPECT_EQ(before->opacity(), 1);
    moveDivider(before->x() - 2);
    EXPECT_EQ(before->opacity(), 0);
    moveDivider(after->x());
    EXPECT_EQ(after->opacity(), 1);
    moveDivider(after->x() + after->width() * 3 / 4);
    EXPECT_NEAR(after->opacity(), 0.25, 1e-9);
    moveDivider(after->x() + after->width() + 2);
    EXPECT_EQ(after->opacity(), 0);
    EXPECT_EQ(before->opacity(), 1);
}

TEST_F(CanvasStep4, LabelsTheUpperCornersOfTheImage)
{
    openPage();
    EXPECT_NEAR(item("before")->x(), std::floor(m_border) + 10 / 3.0, 1e-9);
    EXPECT_NEAR(item("before")->y(), 10 / 3.0, 1e-9);
    EXPECT_NEAR(item("after")->x() + item("after")->width(),
                std::floor(m_border) + m_imageWidth - 10 / 3.0, 1e-9);
    EXPECT_EQ(item("before")->property("text"), "Before Calibration");
    EXPECT_EQ(item("after")->property("text"), "After Calibration");
    EXPECT_EQ(item("after")->property("pixelSize"), 16);
}

TEST_F(CanvasStep4, GivesTheCameraBackWhenTheDialogEnds)
{
    openPage();
    m_log.made.clear();
    emit m_model.cleanupQML();
    EXPECT_EQ(m_log.made, (QStringList{"stopGrab()"}));
}

} // namespace
