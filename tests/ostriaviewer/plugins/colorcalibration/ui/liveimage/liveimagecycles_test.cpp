// SPDX-License-Identifier: Apache-2.0
// The live image under many starts, stops and threads.
#include "liveimagetest.h"

#include <QMutex>
#include <QThreadPool>

#include <atomic>
#include <random>
#include <thread>

#ifdef __GLIBC__
#include <malloc.h>
#endif

using ColorCalibration::QMLOstriaCamera;

namespace {

/// Bytes that are taken from the heap; 0 where the C library does not tell.
std::size_t heapBytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#else
    return 0;
#endif
}

/// Discards what is presented.
class BlindSurface : public RecordingSurface
{
public:
    bool present(const QVideoFrame& /*frame*/) override
    {
        ++presented;
        return true;
    }
};

class LiveImageCycles : public LiveImageTest
{
protected:
    LiveImageCycles()
    {
        // The cycles' entries would fill the heap.
        Core::Logging::installLogSink([](auto, const auto&, const auto&) {});
        m_camera.answerAll(
            [](int number) { return number % 5 == 4 ? HeldCamera::Answer() : plain(red); });
        prepare();
        m_item->setVideoSurface(&m_blind);
    }

    void letItGrab()
    {
        const int grabs = m_camera.grabs();
        m_item->startGrab();
        EXPECT_TRUE(m_camera.waitForGrabs(grabs + 1));
    }

    /// One start and one stop, with a grab between them at least.
    void cycle()
    {
        letItGrab();
        m_item->stopGrab();
        QCoreApplication::processEvents();
    }

    BlindSurface m_blind;
};

TEST_F(LiveImageCycles, LeaveNothingBehind)
{
    constexpr int cycles = 500;
    for (int i = 0; i < 50; ++i)
        cycle();
    const std::size_t before = heapBytes();
    for (int i = 0; i < cycles; ++i)
        cycle();
    // A frame has 12 KB, a thread object some 200 bytes: one of either a cycle would be more than
    // 100 KB. A few frames may be on their way, and the double itself keeps a few bytes a grab.
    EXPECT_LT(heapBytes(), before + 80000);
    EXPECT_EQ(m_item->findChildren<QThread*>().size(), 1);
    EXPECT_FALSE(thread()->isRunning());
    EXPECT_LE(m_camera.mostUnderWay(), 1);
}

TEST_F(LiveImageCycles, NeverHaveMoreThanOneGrabUnderWay)
{
    std::mt19937 random(7);
    for (int i = 0; i < 800; ++i) {
        switch (random() % 6) {
        case 0:
            m_item->startGrab();
            break;
        case 1:
            m_item->stopGrab();
            break;
        case 2:
            m_item->singleGrab();
            break;
        case 3: {
            const int width = 1 + static_cast<int>(random() % 99);
            m_item->setFrameSize(QSize(width, 40));
            break;
        }
        case 4:
            m_item->setVideoSurface(m_item->videoSurface() ? nullptr : &m_blind);
            break;
        default:
            QCoreApplication::processEvents();
        }
        if (i % 4 == 0 && m_item->videoSurface())
            letItGrab();
    }
    m_item->stopGrab();
    EXPECT_GT(m_camera.grabs(), 50);
    EXPECT_EQ(m_camera.mostUnderWay(), 1);
    EXPECT_EQ(m_camera.underWay(), 0);
}

TEST_F(LiveImageCycles, LetAnotherThreadTellOfBusiness)
{
    std::atomic_bool done{false};
    std::thread finder([&] {
        for (bool busy = true; !done; busy = !busy)
            m_item->setBusyIndication(busy);
    });
    for (int i = 0; i < 200; ++i)
        cycle();
    done = true;
    finder.join();
    EXPECT_EQ(m_camera.underWay(), 0);
}

/// Reads what was presented last on a thread of its own, as a renderer does.
class RenderingSurface : public RecordingSurface
{
public:
    RenderingSurface()
        : m_thread([this] { render(); })
    {}
    ~RenderingSurface() override
    {
        m_done = true;
        m_thread.join();
    }

    bool present(const QVideoFrame& frame) override
    {
        const QMutexLocker lock(&m_mutex);
        m_frame = frame;
        return true;
    }

    std::atomic_int rendered{0};
    std::atomic_int torn{0};
    std::atomic_int refused{0};

private:
    void render()
    {
        while (!m_done) {
            QVideoFrame frame;
            {
                const QMutexLocker lock(&m_mutex);
                frame = m_frame;
            }
            if (!frame.isValid())
                continue;
            const QImage picture = frame.image();
            refused += picture.isNull() ? 1 : 0;
            torn += !picture.isNull() && !isUniform(picture) ? 1 : 0;
            ++rendered;
        }
    }

    QMutex m_mutex;
    QVideoFrame m_frame;
    std::atomic_bool m_done{false};
    std::thread m_thread;
};

TEST_F(LiveImageCycles, ShowNoFrameThatIsPartOfTwoImages)
{
    m_camera.answerAll([](int number) {
        // Four grays that are far apart.
        return plain(0xff000000u + 0x404040u * static_cast<unsigned>(number % 4), QSize(320, 240));
    });
    RenderingSurface surface;
    m_item->setFrameSize(QSize(320, 240));
    m_item->setVideoSurface(&surface);
    m_item->startGrab();
    ASSERT_TRUE(eventually([&] { return surface.rendered >= 200 && m_camera.grabs() >= 200; }));
    m_item->stopGrab();
    EXPECT_EQ(surface.torn, 0);
    EXPECT_EQ(surface.refused, 0);
    m_item->setVideoSurface(nullptr);
}

} // namespace
