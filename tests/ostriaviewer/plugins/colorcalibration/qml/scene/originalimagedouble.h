// SPDX-License-Identifier: Apache-2.0
// A stand-in for the provider of the image from before the calibration.
#pragma once

#include <QColor>
#include <QQuickImageProvider>

#include <atomic>

/// The image from before the calibration: of one color, with its last column and row blue.
class OriginalImageDouble : public QQuickImageProvider
{
public:
    OriginalImageDouble()
        : QQuickImageProvider(Image, ForceAsynchronousImageLoading)
    {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

    static std::atomic<QRgb> s_color;
};
