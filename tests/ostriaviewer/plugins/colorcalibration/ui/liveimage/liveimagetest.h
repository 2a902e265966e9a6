// SPDX-License-Identifier: Apache-2.0
// A live image between a camera that the test holds and a surface that it reads.
#pragma once

#include "heldcamera.h"
#include "logrecorder.h"
#include "qmlostriacamera.h"
#include "recordingsurface.h"

#include <QSettings>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

/// Runs the event loop until the condition holds; false if it does not within a minute.
template <typename Condition>
bool eventually(Condition condition)
{
    return QTest::qWaitFor(condition, 60000);
}

inline QImage plain(QRgb color, const QSize& size = QSize(32, 24))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

inline bool isUniform(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
    return !image.isNull();
}

class LiveImageTest : public testing::Test
{
protected:
    static constexpr QRgb red = 0xffff0000;
    static constexpr QRgb green = 0xff00ff00;
    static constexpr QRgb blue = 0xff0000ff;
    static constexpr QRgb white = 0xffffffff;
    static constexpr QRgb logoColor = 0xffff00ff;
    static constexpr QRgb indicatorColor = 0xff00c800;

    LiveImageTest()
    {
        QSettings().clear();
        m_item = std::make_unique<ColorCalibration::QMLOstriaCamera>(&m_camera);
    }

    ~LiveImageTest() override
    {
        // Whatever a failed test left under way must end, or the item would wait for it.
        m_camera.answerAll([](int) { return plain(red); });
        m_item.reset();
    }

    /// With a surface, frames of this size and polls without a pause.
    void prepare(const QSize& size = QSize(64, 48))
    {
        m_item->setInterval(0);
        m_item->setFrameSize(size);
        m_item->setVideoSurface(&m_surface);
    }

    bool waitForPresented(int count)
    {
        return eventually([&] { return m_surface.presented >= count; });
    }
    bool waitForPixel(const QPoint& position, QRgb color)
    {
        return eventually([&] {
            return !m_surface.pictures.isEmpty() &&
                   m_surface.pictures.last().pixel(position) == color;
        });
    }
    bool waitForLog(const QString& text)
    {
        return eventually([&] { return logCount(text) > 0; });
    }

    QStringList logTexts() const
    {
        QStringList texts;
        for (const LogEntry& entry : m_log.entries()) {
            EXPECT_EQ(entry.level, Core::Logging::Debug);
            EXPECT_EQ(entry.category,
                      QStringLiteral("ostria.viewer.plugins.colorCalibration.ostriaCamera"));
            texts << entry.text;
        }
        return texts;
    }
    int logCount(const QString& text) const { return logTexts().count(text); }

    QThread* thread() const { return m_item->findChild<QThread*>(); }
    QRgb lastPixel(int x, int y) const { return m_surface.pictures.last().pixel(x, y); }

    LogRecorder m_log;
    HeldCamera m_camera;
    RecordingSurface m_surface;
    std::unique_ptr<ColorCalibration::QMLOstriaCamera> m_item;
};
