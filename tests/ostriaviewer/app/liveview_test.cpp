// SPDX-License-Identifier: Apache-2.0
// The live view shows the picture where and as large as it says.
#include "liveview.h"

#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

/// Left half red, right half blue.
QImage twoColors(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    for (int y = 0; y < height; ++y)
        for (int x = width / 2; x < width; ++x)
            image.setPixelColor(x, y, Qt::blue);
    return image;
}

class LiveViewTest : public testing::Test
{
protected:
    LiveViewTest()
    {
        m_view.resize(400, 200);
        m_view.show();
        m_view.setPicture(twoColors(100, 100));
    }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowExposed(&m_view)); }

    QColor shownAt(int x, int y) { return m_view.grab().toImage().pixelColor(x, y); }

    void turnWheel(const QPointF& position, int notches)
    {
        QWheelEvent event(position, m_view.mapToGlobal(position.toPoint()), {}, {0, 120 * notches},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&m_view, &event);
    }

    LiveView m_view;
};

// 100 pixels in a height of 200 are twice as large, and stand in the middle of 400: 100 to 300.
TEST_F(LiveViewTest, FitsThePictureIntoTheMiddle)
{
    EXPECT_DOUBLE_EQ(m_view.scale(), 2.0);
    EXPECT_EQ(shownAt(150, 100), QColor(Qt::red));
    EXPECT_EQ(shownAt(250, 100), QColor(Qt::blue));
    EXPECT_EQ(shownAt(102, 2), QColor(Qt::red));
    const QColor outside = shownAt(50, 100);
    EXPECT_EQ(outside.red(), outside.blue());
}

TEST_F(LiveViewTest, StaysFittedWhenTheWindowChanges)
{
    m_view.resize(300, 100);
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.0);
    EXPECT_TRUE(m_view.isFitted());
}

TEST_F(LiveViewTest, ShowsPixelByPixelAndBackWithKeys)
{
    QTest::keyClick(&m_view, Qt::Key_1);
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.0);
    EXPECT_FALSE(m_view.isFitted());
    EXPECT_EQ(shownAt(155, 100), QColor(Qt::red));
    EXPECT_NE(shownAt(145, 100), QColor(Qt::red));
    QTest::keyClick(&m_view, Qt::Key_Plus);
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.25);
    QTest::keyClick(&m_view, Qt::Key_Minus);
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.0);
    QTest::keyClick(&m_view, Qt::Key_0);
    EXPECT_TRUE(m_view.isFitted());
}

TEST_F(LiveViewTest, WheelKeepsWhatIsBelowTheMouse)
{
    const QPointF position(180, 60);
    const QPointF before = m_view.toPicture(position);
    turnWheel(position, 3);
    EXPECT_NEAR(m_view.scale(), 2.0 * 1.25 * 1.25 * 1.25, 1e-9);
    EXPECT_NEAR(m_view.toPicture(position).x(), before.x(), 1e-9);
    EXPECT_NEAR(m_view.toPicture(position).y(), before.y(), 1e-9);
}

TEST_F(LiveViewTest, ZoomEndsAtItsLimits)
{
    turnWheel({200, 100}, 100);
    EXPECT_DOUBLE_EQ(m_view.scale(), LiveView::largestScale);
    turnWheel({200, 100}, -300);
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.0 / 64.0);
}

TEST_F(LiveViewTest, MovesWithTheMouse)
{
    turnWheel({200, 100}, 4);
    const QPointF before = m_view.toPicture({200, 100});
    QTest::mousePress(&m_view, Qt::LeftButton, {}, {200, 100});
    // Not with the pointer of the screen, which comes when it likes.
    const QPoint there(230, 110);
    QMouseEvent move(QEvent::MouseMove, there, m_view.mapToGlobal(there), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m_view, &move);
    QTest::mouseRelease(&m_view, Qt::LeftButton, {}, there);
    EXPECT_NEAR(m_view.toPicture({230, 110}).x(), before.x(), 1e-9);
    EXPECT_NEAR(m_view.toPicture({230, 110}).y(), before.y(), 1e-9);
}

TEST_F(LiveViewTest, DoubleClickChangesBetweenFittedAndPixels)
{
    QTest::mouseDClick(&m_view, Qt::LeftButton, {}, {150, 100});
    EXPECT_DOUBLE_EQ(m_view.scale(), 1.0);
    QTest::mouseDClick(&m_view, Qt::LeftButton, {}, {150, 100});
    EXPECT_TRUE(m_view.isFitted());
}

TEST_F(LiveViewTest, KeepsTheZoomAndPlaceFromFrameToFrame)
{
    turnWheel({180, 60}, 2);
    const QPointF place = m_view.toPicture({0, 0});
    m_view.setPicture(twoColors(100, 100));
    EXPECT_EQ(m_view.toPicture({0, 0}), place);
}

TEST_F(LiveViewTest, TellsWhichPixelTheMouseIsOn)
{
    QPoint hovered;
    QObject::connect(&m_view, &LiveView::pixelHovered,
                     [&](const QPoint& pixel) { hovered = pixel; });
    QTest::mouseMove(&m_view, {100, 0});
    QTest::mouseMove(&m_view, {299, 199});
    EXPECT_TRUE(QTest::qWaitFor([&] { return hovered == QPoint(99, 99); }, 60000));
}

TEST_F(LiveViewTest, ShowsTheHintWithoutAPicture)
{
    m_view.setHint("A hint");
    m_view.setPicture({});
    const QImage shown = m_view.grab().toImage();
    int bright = 0;
    for (int y = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x)
            bright += shown.pixelColor(x, y).lightness() > 150 ? 1 : 0;
    EXPECT_GT(bright, 10);
    EXPECT_EQ(m_view.accessibleDescription(), "A hint");
}

} // namespace
} // namespace Viewer
