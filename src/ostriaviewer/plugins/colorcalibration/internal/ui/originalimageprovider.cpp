// SPDX-License-Identifier: Apache-2.0
// The image from before the calibration, for the pages.
#include "originalimageprovider.h"

#include <QMutexLocker>

namespace ColorCalibration {

OriginalImageProvider::OriginalImageProvider(CalibrationInterface* model)
    : QQuickImageProvider(Image, ForceAsynchronousImageLoading)
    , m_model(model)
{}

void OriginalImageProvider::grabInitialImage()
{
    QImage image;
    m_model->GetInitialCameraImage(image);
    const QMutexLocker lock(&m_mutex);
    m_image = image;
    m_secondCounter = 1 - m_secondCounter;
}

void OriginalImageProvider::reset()
{
    const QMutexLocker lock(&m_mutex);
    m_firstCounter = 0;
    m_secondCounter = 0;
    m_image = QImage();
}

int OriginalImageProvider::firstCounter() const
{
    const QMutexLocker lock(&m_mutex);
    return m_firstCounter;
}

int OriginalImageProvider::secondCounter() const
{
    const QMutexLocker lock(&m_mutex);
    return m_secondCounter;
}

QImage OriginalImageProvider::requestImage(const QString& /*id*/, QSize* size,
                                           const QSize& /*requestedSize*/)
{
    const QMutexLocker lock(&m_mutex);
    if (size)
        *size = m_image.size();
    return m_image.copy();
}

} // namespace ColorCalibration
