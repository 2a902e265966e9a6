// SPDX-License-Identifier: Apache-2.0
// A video surface that keeps what is presented to it.
#pragma once

#include <QAbstractVideoSurface>
#include <QImage>
#include <QVector>
#include <QVideoSurfaceFormat>

class RecordingSurface : public QAbstractVideoSurface
{
public:
    QVector<QVideoSurfaceFormat> starts;
    int stops = 0;
    /// Copies of the newest frames, at most 200.
    QVector<QImage> pictures;
    int presented = 0;
    QVideoFrame lastFrame;

    QList<QVideoFrame::PixelFormat>
    supportedPixelFormats(QAbstractVideoBuffer::HandleType type) const override
    {
        if (type != QAbstractVideoBuffer::NoHandle)
            return {};
        return {QVideoFrame::Format_ARGB32};
    }
    bool start(const QVideoSurfaceFormat& format) override
    {
        starts.append(format);
        return QAbstractVideoSurface::start(format);
    }
    void stop() override
    {
        ++stops;
        QAbstractVideoSurface::stop();
    }
    bool present(const QVideoFrame& frame) override
    {
        ++presented;
        lastFrame = frame;
        if (pictures.size() == 200)
            pictures.removeFirst();
        pictures.append(lastFrame.image());
        return true;
    }
};
