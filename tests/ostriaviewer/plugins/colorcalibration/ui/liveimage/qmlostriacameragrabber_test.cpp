// SPDX-License-Identifier: Apache-2.0
// What the worker shows, and when it grabs.
#include "liveimagetest.h"

#include "qmlostriacameragrabber.h"

#include <QRegularExpression>

#include <stdexcept>
#include <thread>

using ColorCalibration::QMLOstriaCamera;
using ColorCalibration::QMLOstriaCameraGrabber;

namespace {

class QmlOstriaCameraGrabber : public LiveImageTest
{
protected:
    /// Middle of the indicator in frames of 64 x 48.
    static constexpr QPoint indicatorPlace{32, 36};
};

TEST_F(QmlOstriaCameraGrabber, EndsASingleShotAfterItsImage)
{
    prepare();
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    m_item->singleGrab();
    m_camera.answer(plain(red));
    ASSERT_TRUE(waitForLog(QStringLiteral("Grab loop stopped...")));
    ASSERT_TRUE(waitForPresented(1));
    EXPECT_EQ(m_camera.triggered(), std::vector<bool>{true});
    EXPECT_EQ(m_camera.underWayAtStops(), std::vector<int>{0});
    EXPECT_EQ(images.count(), 1);
    EXPECT_TRUE(thread()->isRunning()); // in its event loop, until the item ends it
    EXPECT_EQ(lastPixel(0, 0), red);
}

TEST_F(QmlOstriaCameraGrabber, TriesASingleShotUntilItSucceeds)
{
    prepare();
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    const QSignalSpy failures(m_item.get(), &QMLOstriaCamera::imageFailed);
    m_item->singleGrab();
    for (int i = 0; i < 3; ++i)
        m_camera.answer({});
    ASSERT_TRUE(eventually([&] { return failures.count() == 3; }));
    EXPECT_EQ(images.count(), 0);
    EXPECT_EQ(lastPixel(0, 0), white);
    m_camera.answer(plain(red));
    ASSERT_TRUE(waitForLog(QStringLiteral("Grab loop stopped...")));
    EXPECT_TRUE(waitForPixel(QPoint(0, 0), red));
    EXPECT_EQ(images.count(), 1);
    EXPECT_EQ(m_camera.triggered(), std::vector<bool>(4, true));
}

TEST_F(QmlOstriaCameraGrabber, EndsASingleShotThatFailsWhenItIsStopped)
{
    prepare();
    m_camera.answerAll([](int) { return HeldCamera::Answer(); });
    m_item->singleGrab();
    ASSERT_TRUE(m_camera.waitForGrabs(3));
    m_item->stopGrab();
    EXPECT_EQ(logTexts().last(), QStringLiteral("Grab loop stopped..."));
}

TEST_F(QmlOstriaCameraGrabber, DoesNotBeginWhenItIsStoppedBefore)
{
    QMLOstriaCameraGrabber::Task task;
    task.size = QSize(4, 3);
    task.camera = &m_camera;
    QMLOstriaCameraGrabber worker(task, false);
    const QSignalSpy stopped(&worker, &QMLOstriaCameraGrabber::stopped);
    worker.stop();
    worker.doWork();
    EXPECT_EQ(m_camera.grabs(), 0);
    EXPECT_EQ(stopped.count(), 1);
}

TEST_F(QmlOstriaCameraGrabber, SaysThatItHasStoppedWhereTheSizeHasNoPixels)
{
    QMLOstriaCameraGrabber::Task task;
    task.camera = &m_camera;
    QMLOstriaCameraGrabber worker(task, false);
    const QSignalSpy stopped(&worker, &QMLOstriaCameraGrabber::stopped);
    worker.doWork();
    EXPECT_EQ(stopped.count(), 1);
    EXPECT_EQ(logTexts(), QStringList{QStringLiteral("Invalid Image size")});
}

TEST_F(QmlOstriaCameraGrabber, StretchesTheImageToTheSize)
{
    prepare(QSize(20, 60));
    QImage halves = plain(red, QSize(80, 10));
    for (int y = 0; y < 10; ++y)
        for (int x = 40; x < 80; ++x)
            halves.setPixel(x, y, blue);
    m_item->singleGrab();
    m_camera.answer(halves);
    ASSERT_TRUE(waitForPresented(1));
    const QImage& picture = m_surface.pictures.last();
    ASSERT_EQ(picture.size(), QSize(20, 60));
    for (const int y : {0, 59}) {
        EXPECT_EQ(picture.pixel(0, y), red);
        EXPECT_EQ(picture.pixel(9, y), red);
        EXPECT_EQ(picture.pixel(10, y), blue);
        EXPECT_EQ(picture.pixel(19, y), blue);
    }
}

TEST_F(QmlOstriaCameraGrabber, TellsOfTheImagesSizeWhenItChanges)
{
    prepare();
    const QSignalSpy sizes(m_item.get(), &QMLOstriaCamera::originalSizeChanged);
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    m_item->startGrab();
    int expected = 0;
    for (const QSize& size : {QSize(50, 40), QSize(50, 40), QSize(40, 50)}) {
        m_camera.answer(plain(red, size));
        ++expected;
        ASSERT_TRUE(eventually([&] { return images.count() == expected; }));
        EXPECT_EQ(m_item->property("originalSize").toSize(), size);
    }
    EXPECT_EQ(sizes.count(), 2);
}

TEST_F(QmlOstriaCameraGrabber, TellsOfTheSizeOfFirstImagesThatDifferFromFourByThree)
{
    prepare();
    const QSignalSpy sizes(m_item.get(), &QMLOstriaCamera::originalSizeChanged);
    m_item->singleGrab();
    m_camera.answer(plain(red, QSize(4, 3)));
    ASSERT_TRUE(waitForPresented(1));
    EXPECT_EQ(sizes.count(), 0);
}

TEST_F(QmlOstriaCameraGrabber, ShowsTheLogoWhileGrabsFail)
{
    prepare();
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    const QSignalSpy failures(m_item.get(), &QMLOstriaCamera::imageFailed);
    m_item->startGrab();
    m_camera.answer({});
    ASSERT_TRUE(eventually([&] { return failures.count() == 1; }));
    EXPECT_EQ(images.count(), 0);
    EXPECT_EQ(lastPixel(0, 0), white);
    EXPECT_EQ(lastPixel(63, 47), white);
    EXPECT_EQ(lastPixel(32, 24), logoColor);
    EXPECT_EQ(lastPixel(28, 24), white); // the logo is six pixels wide
    EXPECT_EQ(m_item->property("originalSize").toSize(), QSize(4, 3));
    EXPECT_EQ(logCount(QStringLiteral("Grab failed, delivery of Tavrin logo")), 1);

    m_camera.answer(plain(green));
    EXPECT_TRUE(waitForPixel(QPoint(32, 24), green));
    EXPECT_EQ(images.count(), 1);
    EXPECT_EQ(logCount(QStringLiteral("Grab success, delivery of camera frame")), 1);
}

TEST_F(QmlOstriaCameraGrabber, TakesANullImageAsAFailure)
{
    prepare();
    const QSignalSpy failures(m_item.get(), &QMLOstriaCamera::imageFailed);
    m_item->startGrab();
    m_camera.answer(QImage());
    EXPECT_TRUE(eventually([&] { return failures.count() == 1; }));
}

TEST_F(QmlOstriaCameraGrabber, TakesAnExceptionAsAFailure)
{
    prepare();
    const QSignalSpy failures(m_item.get(), &QMLOstriaCamera::imageFailed);
    m_camera.answerAll([](int number) -> HeldCamera::Answer {
        if (number == 0)
            throw std::runtime_error("lost");
        return plain(red);
    });
    m_item->startGrab();
    EXPECT_TRUE(waitForPixel(QPoint(0, 0), red));
    EXPECT_EQ(failures.count(), 1);
}

TEST_F(QmlOstriaCameraGrabber, TurnsTheIndicatorOverTheLastFrameWhileAGrabTakesLong)
{
    prepare();
    const QSignalSpy images(m_item.get(), &QMLOstriaCamera::imageChanged);
    m_item->startGrab();
    m_camera.answer(plain(red));
    ASSERT_TRUE(waitForPixel(indicatorPlace, red));
    ASSERT_TRUE(m_camera.waitForGrabs(2));

    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    EXPECT_EQ(lastPixel(0, 0), red);
    EXPECT_EQ(lastPixel(32, 20), red); // it stands in the lower half alone
    const QImage first = m_surface.pictures.last();
    EXPECT_TRUE(eventually([&] { return m_surface.pictures.last() != first; })) << "does not turn";
    EXPECT_EQ(images.count(), 1);
    EXPECT_EQ(m_camera.grabs(), 2);

    m_camera.answer(plain(green));
    EXPECT_TRUE(waitForPixel(indicatorPlace, green));
    EXPECT_EQ(images.count(), 2);
}

TEST_F(QmlOstriaCameraGrabber, TellsTheTrueTimeOfALongGrab)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    m_camera.answer(plain(green));
    ASSERT_TRUE(waitForPixel(indicatorPlace, green));
    const QRegularExpression form(QStringLiteral("^Grab took (\\d+) ms$"));
    const QStringList told = logTexts().filter(form);
    ASSERT_FALSE(told.isEmpty());
    EXPECT_GT(form.match(told.first()).captured(1).toInt(), 1000);
}

TEST_F(QmlOstriaCameraGrabber, DrawsTheIndicatorOverBlackBeforeTheFirstImage)
{
    prepare();
    m_item->startGrab();
    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    EXPECT_EQ(lastPixel(0, 0), 0xff000000);
}

TEST_F(QmlOstriaCameraGrabber, DrawsTheIndicatorOverTheFrameOfTheWorkerBefore)
{
    prepare();
    m_item->singleGrab();
    m_camera.answer(plain(red));
    ASSERT_TRUE(waitForPixel(indicatorPlace, red));
    m_item->startGrab();
    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    EXPECT_EQ(lastPixel(0, 0), red);
}

TEST_F(QmlOstriaCameraGrabber, DrawsTheIndicatorOverTheLogo)
{
    prepare();
    m_item->startGrab();
    m_camera.answer({});
    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    EXPECT_EQ(lastPixel(0, 0), white);
    EXPECT_EQ(lastPixel(32, 24), logoColor);
}

/// Every grab waits until the test has seen what was to be seen before it.
TEST_F(QmlOstriaCameraGrabber, ShowsTheIndicatorThroughShortGrabsWhileSomethingElseIsBusy)
{
    prepare();
    m_item->setBusyIndication(true);
    m_item->startGrab();
    ASSERT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
    for (int i = 0; i < 3; ++i) {
        // The time runs on over each image, so that the indicator is there again with the next
        // grab, whose own time has only begun.
        m_camera.answer(plain(red));
        ASSERT_TRUE(waitForPixel(indicatorPlace, red)) << i;
        m_surface.pictures.clear();
        ASSERT_TRUE(eventually([&] { return !m_surface.pictures.isEmpty(); }));
        EXPECT_EQ(m_surface.pictures.first().pixel(indicatorPlace), indicatorColor);
        EXPECT_EQ(lastPixel(0, 0), red);
    }
    m_item->setBusyIndication(false);
    m_camera.answerAll([](int) { return plain(blue); });
    ASSERT_TRUE(m_camera.waitForGrabs(m_camera.grabs() + 3));
    EXPECT_TRUE(waitForPixel(indicatorPlace, blue));
    // From the second grab on the time is counted anew.
    m_surface.pictures.clear();
    ASSERT_TRUE(eventually([&] { return m_surface.pictures.size() >= 10; }));
    for (const QImage& picture : m_surface.pictures)
        EXPECT_EQ(picture.pixel(indicatorPlace), blue);
}

TEST_F(QmlOstriaCameraGrabber, HandsBusinessOnToTheNextWorker)
{
    prepare();
    m_item->setBusyIndication(true);
    m_camera.answerAll([](int) { return plain(red); });
    m_item->startGrab();
    m_item->stopGrab();
    m_item->startGrab();
    // Grabs are short: without the flag the time would be counted anew by each of them.
    EXPECT_TRUE(waitForPixel(indicatorPlace, indicatorColor));
}

} // namespace
