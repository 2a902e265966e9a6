// SPDX-License-Identifier: Apache-2.0
// The item's properties, its surface, and when it starts and ends its worker.
#include "liveimagetest.h"

#include <thread>

using ColorCalibration::QMLOstriaCamera;

namespace {

class QmlOstriaCamera : public LiveImageTest
{
protected:
    /// Interval of an item that is made under these settings.
    int intervalWith(const QVariant& exhibition, const QVariant& rate)
    {
        QSettings settings;
        settings.clear();
        settings.setValue(QStringLiteral("ColCalPlugin/EnableDemoMode"), exhibition);
        if (rate.isValid())
            settings.setValue(QStringLiteral("ColCalPlugin/FramesPerSecond"), rate);
        return QMLOstriaCamera(&m_camera).property("interval").toInt();
    }

    void answerAllWith(QRgb color)
    {
        m_camera.answerAll([color](int) { return plain(color); });
    }
};

TEST_F(QmlOstriaCamera, BeginsIdleAtFourByThree)
{
    EXPECT_EQ(m_item->property("interval").toInt(), 200);
    EXPECT_EQ(m_item->property("size").toSize(), QSize(4, 3));
    EXPECT_EQ(m_item->property("originalSize").toSize(), QSize(4, 3));
    EXPECT_TRUE(m_item->property("image").value<QImage>().isNull());
    EXPECT_EQ(m_item->property("videoSurface").value<QAbstractVideoSurface*>(), nullptr);
    EXPECT_EQ(thread(), nullptr);
}

TEST_F(QmlOstriaCamera, TakesItsIntervalFromTheRateInExhibitionModeAlone)
{
    EXPECT_EQ(intervalWith(false, QVariant()), 200);
    EXPECT_EQ(intervalWith(false, 10), 200);
    EXPECT_EQ(intervalWith(true, QVariant()), 41);
    EXPECT_EQ(intervalWith(true, 24), 41);
    EXPECT_EQ(intervalWith(true, 25), 41);
    EXPECT_EQ(intervalWith(true, 1000000), 41);
    EXPECT_EQ(intervalWith(true, 23), 43);
    EXPECT_EQ(intervalWith(true, 3), 333);
    EXPECT_EQ(intervalWith(true, 1), 1000);
}

TEST_F(QmlOstriaCamera, TakesARateThatIsNoneAsNotSet)
{
    EXPECT_EQ(intervalWith(true, 0), 41);
    EXPECT_EQ(intervalWith(true, -5), 41);
    EXPECT_EQ(intervalWith(true, QStringLiteral("fast")), 41);
}

TEST_F(QmlOstriaCamera, TellsOfAnIntervalThatChanges)
{
    const QSignalSpy changed(m_item.get(), &QMLOstriaCamera::intervalChanged);
    m_item->setProperty("interval", 200);
    EXPECT_EQ(changed.count(), 0);
    m_item->setProperty("interval", 50);
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_item->property("interval").toInt(), 50);
}

TEST_F(QmlOstriaCamera, TellsOfEveryWriteOfOriginalSizeAndImage)
{
    const QSignalSpy sizes(m_item.get(), &QMLOstriaCamera::originalSizeChanged);
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    for (int i = 1; i <= 2; ++i) {
        m_item->setProperty("originalSize", QSize(5, 6));
        m_item->setProperty("image", plain(red));
        EXPECT_EQ(sizes.count(), i);
        EXPECT_EQ(images.count(), i);
    }
    EXPECT_EQ(m_item->property("originalSize").toSize(), QSize(5, 6));
    EXPECT_EQ(m_item->property("image").value<QImage>(), plain(red));
}

TEST_F(QmlOstriaCamera, GrabsUntriggeredUntilItIsStopped)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(5));
    m_item->stopGrab();
    const int grabs = m_camera.grabs();
    for (const bool triggered : m_camera.triggered())
        EXPECT_FALSE(triggered);
    EXPECT_FALSE(thread()->isRunning());
    EXPECT_EQ(m_camera.grabs(), grabs);
    EXPECT_EQ(logTexts().first(), QStringLiteral("startGrab()"));
    EXPECT_EQ(logTexts().last(), QStringLiteral("Grab loop stopped..."));
}

TEST_F(QmlOstriaCamera, IgnoresASecondStart)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(1));
    const QThread* const worker = thread();
    m_item->startGrab(); // would wait for the grab if it ended the worker
    EXPECT_EQ(thread(), worker);
    EXPECT_EQ(m_camera.grabs(), 1);
    EXPECT_EQ(logCount(QStringLiteral("startGrab()")), 2);
}

TEST_F(QmlOstriaCamera, IgnoresASingleGrabWhileItIsRunning)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(1));
    const QThread* const worker = thread();
    m_item->singleGrab();
    EXPECT_EQ(thread(), worker);
    m_camera.answer(plain(red));
    ASSERT_TRUE(m_camera.waitForGrabs(2));
    EXPECT_EQ(m_camera.triggered(), (std::vector<bool>{false, false}));
    EXPECT_EQ(logCount(QStringLiteral("singleGrab()")), 1);
}

TEST_F(QmlOstriaCamera, StopsWithoutAWorker)
{
    m_item->stopGrab();
    EXPECT_EQ(logTexts(), QStringList{QStringLiteral("stopGrab()")});
}

TEST_F(QmlOstriaCamera, WaitsForTheGrabUnderWayWhenItStops)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(1));
    std::thread release([this] { m_camera.answer(plain(red)); });
    m_item->stopGrab();
    EXPECT_EQ(m_camera.underWay(), 0);
    EXPECT_EQ(m_camera.underWayAtStops(), std::vector<int>{0});
    release.join();
}

TEST_F(QmlOstriaCamera, WaitsForNothingElseWhenItStops)
{
    prepare();
    m_item->setInterval(3600 * 1000);
    m_item->startGrab();
    m_camera.answer(plain(red));
    ASSERT_TRUE(waitForPresented(1));
    m_item->stopGrab(); // an hour, if it waited for the pause
    EXPECT_EQ(m_camera.grabs(), 1);
}

TEST_F(QmlOstriaCamera, ShowsAnImageAtOnceHoweverLongThePauseIs)
{
    prepare();
    m_item->setInterval(3600 * 1000);
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(1));
    m_camera.answer(plain(red));
    EXPECT_TRUE(waitForPresented(1));
    EXPECT_EQ(m_camera.grabs(), 1);
}

TEST_F(QmlOstriaCamera, StopsInThePauseAfterASingleGrab)
{
    prepare();
    m_item->setInterval(3600 * 1000);
    m_item->singleGrab();
    m_camera.answer(plain(red));
    EXPECT_TRUE(waitForLog(QStringLiteral("Grab loop stopped...")));
}

TEST_F(QmlOstriaCamera, TellsOfASizeThatChanges)
{
    const QSignalSpy changed(m_item.get(), &QMLOstriaCamera::sizeChanged);
    m_item->setProperty("size", QSize(4, 3));
    EXPECT_EQ(changed.count(), 0);
    m_item->setProperty("size", QSize(40, 30));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_item->property("size").toSize(), QSize(40, 30));
    EXPECT_EQ(thread(), nullptr);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(QmlOstriaCamera, GoesOnAtANewSizeWithoutCountingAsStarted)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(waitForPresented(1));
    m_item->setProperty("size", QSize(20, 10));
    EXPECT_EQ(logCount(QStringLiteral("stopGrab()")), 1);
    ASSERT_TRUE(eventually([&] { return m_surface.pictures.last().size() == QSize(20, 10); }));
    const int grabs = m_camera.grabs();
    ASSERT_TRUE(m_camera.waitForGrabs(grabs + 3));
    EXPECT_FALSE(m_camera.triggered().back());

    // Not running: now a single grab takes the place of the continuous worker.
    m_item->singleGrab();
    ASSERT_TRUE(eventually([&]() -> bool { return m_camera.triggered().back(); }));
}

TEST_F(QmlOstriaCamera, RestartsItsWorkerAtAStartAfterTheSizeChanged)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    m_item->setProperty("size", QSize(20, 10));
    ASSERT_TRUE(waitForPresented(1));
    m_item->startGrab();
    EXPECT_EQ(logCount(QStringLiteral("Grab loop stopped...")), 2);
    EXPECT_TRUE(thread()->isRunning());
    // Running again: a second one is ignored.
    m_item->startGrab();
    EXPECT_EQ(logCount(QStringLiteral("Grab loop stopped...")), 2);
}

TEST_F(QmlOstriaCamera, LeavesASecondChangeOfTheSizeToTheNextStart)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    m_item->setProperty("size", QSize(20, 10));
    const QThread* const worker = thread();
    m_item->setProperty("size", QSize(30, 15));
    EXPECT_EQ(thread(), worker);
    const int presented = m_surface.presented;
    ASSERT_TRUE(waitForPresented(presented + 2));
    EXPECT_EQ(m_surface.pictures.last().size(), QSize(20, 10));
    m_item->startGrab();
    EXPECT_TRUE(eventually([&] { return m_surface.pictures.last().size() == QSize(30, 15); }));
}

TEST_F(QmlOstriaCamera, RefusesToWorkAtASizeWithoutPixels)
{
    prepare();
    for (const QSize& size : {QSize(0, 10), QSize(10, 0), QSize(-1, 10), QSize()}) {
        m_item->setProperty("size", size);
        m_item->startGrab();
        m_item->stopGrab();
    }
    EXPECT_EQ(logCount(QStringLiteral("Invalid Image size")), 4);
    EXPECT_EQ(logCount(QStringLiteral("Grab loop started...")), 0);
    EXPECT_EQ(m_camera.grabs(), 0);
    EXPECT_TRUE(m_camera.underWayAtStops().empty());
}

TEST_F(QmlOstriaCamera, StartsTheSurfaceWithItsFormat)
{
    prepare(QSize(60, 40));
    answerAllWith(red);
    m_item->singleGrab();
    ASSERT_EQ(m_surface.starts.size(), 1);
    EXPECT_EQ(m_surface.starts[0].frameSize(), QSize(60, 40));
    EXPECT_EQ(m_surface.starts[0].pixelFormat(), QVideoFrame::Format_ARGB32);
    EXPECT_EQ(m_surface.starts[0].handleType(), QAbstractVideoBuffer::NoHandle);
    EXPECT_EQ(m_surface.stops, 0);
    ASSERT_TRUE(waitForPresented(1));
    QVideoFrame frame = m_surface.lastFrame;
    EXPECT_EQ(frame.size(), QSize(60, 40));
    EXPECT_EQ(frame.pixelFormat(), QVideoFrame::Format_ARGB32);
    ASSERT_TRUE(frame.map(QAbstractVideoBuffer::ReadOnly));
    EXPECT_EQ(frame.bytesPerLine(), 60 * 4);
    EXPECT_EQ(frame.mappedBytes(), 60 * 40 * 4);
    frame.unmap();
}

TEST_F(QmlOstriaCamera, KeepsTheFrameOfASurfaceThatFits)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(waitForPresented(1));
    const QAbstractVideoBuffer* const buffer = m_surface.lastFrame.buffer();
    m_item->stopGrab();
    m_item->startGrab();
    const int presented = m_surface.presented;
    ASSERT_TRUE(waitForPresented(presented + 1));
    EXPECT_EQ(m_surface.lastFrame.buffer(), buffer);
    EXPECT_EQ(m_surface.starts.size(), 1);
    EXPECT_EQ(m_surface.stops, 0);
}

TEST_F(QmlOstriaCamera, RestartsASurfaceWhoseSizeDoesNotFit)
{
    prepare();
    answerAllWith(red);
    m_item->singleGrab();
    ASSERT_TRUE(waitForPresented(1));
    m_item->setProperty("size", QSize(30, 20));
    EXPECT_EQ(m_surface.starts.size(), 1);
    m_item->singleGrab();
    ASSERT_EQ(m_surface.starts.size(), 2);
    EXPECT_EQ(m_surface.stops, 1);
    EXPECT_EQ(m_surface.starts[1].frameSize(), QSize(30, 20));
}

TEST_F(QmlOstriaCamera, RestartsASurfaceOfAnotherPixelFormat)
{
    m_surface.start(QVideoSurfaceFormat(QSize(64, 48), QVideoFrame::Format_RGB32));
    prepare(QSize(64, 48));
    m_item->singleGrab();
    EXPECT_EQ(m_surface.stops, 1);
    ASSERT_EQ(m_surface.starts.size(), 2);
    EXPECT_EQ(m_surface.starts[1].pixelFormat(), QVideoFrame::Format_ARGB32);
}

TEST_F(QmlOstriaCamera, MakesAFrameForASurfaceThatFitsFromTheBeginning)
{
    m_surface.start(QVideoSurfaceFormat(QSize(64, 48), QVideoFrame::Format_ARGB32));
    prepare(QSize(64, 48));
    answerAllWith(red);
    m_item->singleGrab();
    EXPECT_TRUE(waitForPixel(QPoint(63, 47), red));
}

TEST_F(QmlOstriaCamera, StartsNothingWithANewSurfaceUnlessItIsRunning)
{
    prepare();
    EXPECT_EQ(thread(), nullptr);
    EXPECT_TRUE(m_surface.starts.isEmpty());
}

TEST_F(QmlOstriaCamera, GoesOnWithANewSurfaceWhileItIsRunning)
{
    prepare();
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(waitForPresented(1));
    RecordingSurface other;
    m_item->setVideoSurface(&other);
    ASSERT_TRUE(eventually([&] { return other.presented >= 3; }));
    EXPECT_EQ(other.pictures.last().pixel(63, 47), red);
    const int before = m_surface.presented;
    ASSERT_TRUE(eventually([&] { return other.presented >= 6; }));
    EXPECT_EQ(m_surface.presented, before);

    // Still running: the same surface once more changes nothing.
    const int loops = logCount(QStringLiteral("Grab loop stopped..."));
    m_item->setVideoSurface(&other);
    EXPECT_EQ(logCount(QStringLiteral("Grab loop stopped...")), loops);
    m_item->setVideoSurface(nullptr);
}

TEST_F(QmlOstriaCamera, SurvivesTheEndOfItsSurface)
{
    m_item->setInterval(0);
    auto surface = std::make_unique<RecordingSurface>();
    m_item->setVideoSurface(surface.get());
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(eventually([&] { return surface->presented > 0; }));
    surface.reset();
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    EXPECT_TRUE(eventually([&] { return images.count() > 2; }));
    EXPECT_EQ(m_item->property("videoSurface").value<QAbstractVideoSurface*>(), nullptr);
}

TEST_F(QmlOstriaCamera, GrabsNothingBeforeThereIsASurface)
{
    answerAllWith(red);
    m_item->startGrab();
    ASSERT_TRUE(waitForLog(QStringLiteral("Grab loop stopped...")));
    EXPECT_EQ(m_camera.grabs(), 0);
    EXPECT_EQ(m_camera.underWayAtStops(), std::vector<int>{0});
    m_item->setVideoSurface(&m_surface);
    EXPECT_TRUE(waitForPresented(1));
}

TEST_F(QmlOstriaCamera, DoesNothingWithoutACamera)
{
    m_item = std::make_unique<QMLOstriaCamera>(nullptr);
    prepare();
    m_item->startGrab();
    EXPECT_TRUE(waitForLog(QStringLiteral("Grab loop stopped...")));
    m_item->stopGrab();
    EXPECT_EQ(m_surface.presented, 0);
}

TEST_F(QmlOstriaCamera, WaitsForTheGrabUnderWayWhenItIsDestroyed)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(1));
    std::thread release([this] { m_camera.answer(plain(red)); });
    m_item.reset();
    EXPECT_EQ(m_camera.underWay(), 0);
    release.join();
}

} // namespace
