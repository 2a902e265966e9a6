// SPDX-License-Identifier: Apache-2.0
// The live image on a screen.
#include "livewindow.h"

namespace {

class LiveImageOnScreen : public LiveImageTest
{
protected:
    static constexpr QPoint middle{80, 60};
    static constexpr QPoint indicatorPlace{80, 90};

    void SetUp() override
    {
        m_item->setInterval(0);
        m_item->setFrameSize(QSize(160, 120));
        m_window = std::make_unique<LiveWindow>(*m_item);
        ASSERT_TRUE(m_window->isReady());
        ASSERT_NE(m_item->videoSurface(), nullptr);
    }

    void TearDown() override
    {
        m_camera.answerAll([](int) { return plain(red); });
        m_item->stopGrab();
        m_window.reset();
    }

    std::unique_ptr<LiveWindow> m_window;
};

TEST_F(LiveImageOnScreen, ShowsOneImageAfterTheOther)
{
    m_item->startGrab();
    for (const QRgb color : {red, green, blue}) {
        m_camera.answer(plain(color));
        for (const QPoint& place : {QPoint(2, 2), middle, QPoint(157, 117)})
            EXPECT_TRUE(m_window->waitForPixel(place, color));
    }
}

TEST_F(LiveImageOnScreen, StandsUprightAndUnmirrored)
{
    QImage quarters = plain(red, QSize(80, 60));
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x)
            if (x >= 40)
                quarters.setPixel(x, y, y < 30 ? green : blue);
    m_item->singleGrab();
    m_camera.answer(quarters);
    EXPECT_TRUE(m_window->waitForPixel(QPoint(20, 20), red));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(140, 20), green));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(140, 100), blue));
}

TEST_F(LiveImageOnScreen, ShowsTheLogoWhenAGrabFails)
{
    m_item->startGrab();
    m_camera.answer({});
    EXPECT_TRUE(m_window->waitForPixel(middle, logoColor));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(2, 2), white));
}

TEST_F(LiveImageOnScreen, ShowsTheIndicatorWhileAGrabTakesLong)
{
    m_item->startGrab();
    m_camera.answer(plain(red));
    ASSERT_TRUE(m_window->waitForPixel(indicatorPlace, red));
    EXPECT_TRUE(m_window->waitForPixel(indicatorPlace, indicatorColor));
    EXPECT_TRUE(m_window->waitForPixel(middle, red));
    m_camera.answer(plain(green));
    EXPECT_TRUE(m_window->waitForPixel(indicatorPlace, green));
}

TEST_F(LiveImageOnScreen, ShowsNoFrameThatIsPartOfTwoImages)
{
    m_camera.answerAll([](int number) { return plain(number % 2 ? red : blue, QSize(160, 120)); });
    m_item->startGrab();
    ASSERT_TRUE(eventually(
        [&] { return isUniform(m_window->seen()) && m_window->seen().pixel(middle) != white; }));
    QSet<QRgb> colors;
    for (int i = 0; i < 60 || colors.size() < 2; ++i) {
        const QImage seen = m_window->seen();
        ASSERT_TRUE(isUniform(seen)) << i;
        colors.insert(seen.pixel(middle) | 0xff000000);
        ASSERT_LT(i, 3000);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(colors, (QSet<QRgb>{red, blue}));
}

TEST_F(LiveImageOnScreen, FollowsANewSizeOfItsFrames)
{
    m_camera.answerAll([](int) { return plain(green); });
    m_item->startGrab();
    ASSERT_TRUE(m_window->waitForPixel(middle, green));
    m_camera.answerAll([](int) { return plain(blue); });
    m_item->setFrameSize(QSize(50, 20));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(157, 117), blue));
    EXPECT_TRUE(m_window->waitForPixel(QPoint(2, 2), blue));
}

TEST_F(LiveImageOnScreen, GoesOnOnAPageThatIsLoadedAnew)
{
    m_camera.answerAll([](int) { return plain(green); });
    m_item->startGrab();
    ASSERT_TRUE(m_window->waitForPixel(middle, green));
    for (int i = 0; i < 5; ++i) {
        m_window->showPage(false);
        ASSERT_TRUE(eventually([&] { return m_item->videoSurface() == nullptr; }));
        EXPECT_TRUE(m_window->waitForPixel(middle, white)) << "the page is gone, its image not";
        m_window->showPage(true);
        EXPECT_TRUE(m_window->waitForPixel(middle, green)) << i;
    }
}

TEST_F(LiveImageOnScreen, OutlivesItsWindow)
{
    m_camera.answerAll([](int) { return plain(green); });
    m_item->startGrab();
    ASSERT_TRUE(m_window->waitForPixel(middle, green));
    m_window.reset();
    EXPECT_EQ(m_item->videoSurface(), nullptr);
    const int grabs = m_camera.grabs();
    EXPECT_TRUE(m_camera.waitForGrabs(grabs + 3));
    m_item->stopGrab();
}

} // namespace
