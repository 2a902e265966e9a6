// SPDX-License-Identifier: Apache-2.0
// The image from before the calibration, for the pages.
#pragma once

#include "calibrationinterface.h"

#include <QMutex>
#include <QQuickImageProvider>

namespace ColorCalibration {

/// Hands out the image that was last fetched. Its two counters go into the image's URL, so that a
/// page loads it anew after each fetch. Thread-safe: pages load on a thread of the engine's.
class OriginalImageProvider : public QQuickImageProvider
{
public:
    /// \param model  not owned, outlives the provider
    explicit OriginalImageProvider(CalibrationInterface* model);

    /// Fetches the image, null if there is none, and toggles the second counter between 0 and 1.
    void grabInitialImage();

    /// Both counters 0, a null image.
    void reset();

    /// Always 0.
    int firstCounter() const;
    /// 0 or 1.
    int secondCounter() const;

    /// The image at its full size, whatever the id and the requested size.
    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

private:
    mutable QMutex m_mutex;
    int m_firstCounter = 0;
    int m_secondCounter = 0;
    CalibrationInterface* m_model;
    QImage m_image;
};

} // namespace ColorCalibration
