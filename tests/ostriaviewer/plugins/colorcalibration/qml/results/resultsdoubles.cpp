// SPDX-License-Identifier: Apache-2.0
// What the stand-ins for the pages of results do.
#include "resultsdoubles.h"

#include <QImage>
#include <QVideoFrame>
#include <QVideoSurfaceFormat>

void ModelDouble::grabOriginalImage()
{
    m_calls.note("grabOriginalImage");
    m_fetched = 1 - m_fetched;
    m_originalImageUrl = QString("image://cameraImageOriginal/0_%1").arg(m_fetched);
    emit originalImageUrlChanged();
}

bool ModelDouble::storeSettingsInUserSet(const QString& value, bool setAsDefault)
{
    return m_calls.note(
        QString("storeSettingsInUserSet(%1,%2)").arg(value, setAsDefault ? "true" : "false"));
}

bool ModelDouble::restoreSettingsBackup(bool intialImage)
{
    return m_calls.note(intialImage ? "restoreSettingsBackup(true)" : "restoreSettingsBackup");
}

bool ModelDouble::autoAdjustGray80PercentPatch()
{
    return m_calls.note("autoAdjustGray80PercentPatch");
}

bool ModelDouble::executeCalibrationAndApply()
{
    if (!m_calls.note("executeCalibrationAndApply"))
        return false;
    emit calibrationFinished();
    return true;
}

bool ModelDouble::applyInitialColorPatchValues()
{
    return m_calls.note("applyInitialColorPatchValues");
}

bool ModelDouble::applyInitialCameraImageAndPatchValues()
{
    return m_calls.note("applyInitialCameraImageAndPatchValues");
}

void CameraDouble::show(const QColor& color)
{
    if (!m_surface)
        return;
    QImage image(m_size, QImage::Format_ARGB32);
    image.fill(color);
    if (!m_surface->isActive())
        m_surface->start(QVideoSurfaceFormat(m_size, QVideoFrame::Format_ARGB32));
    m_surface->present(QVideoFrame(image));
    emit imageChanged();
}

PatchDouble::PatchDouble(const QPoint& upperLeft, int side)
    : m_upperLeft(upperLeft)
    , m_upperRight(upperLeft + QPoint(side, 0))
    , m_lowerLeft(upperLeft + QPoint(0, side))
    , m_lowerRight(upperLeft + QPoint(side, side))
    , m_center(upperLeft + QPoint(side / 2, side / 2))
    , m_bottomCenter(upperLeft + QPoint(side / 2, side))
{}

QColor GridDouble::colorAtPoint(int x, int y)
{
    m_points << QPoint(x, y);
    return m_colorAtPoint;
}

QUrl FileDialogDouble::s_answer;
QUrl FileDialogDouble::s_folder;

void FileDialogDouble::open()
{
    s_folder = m_folder;
    m_fileUrl = s_answer;
    if (s_answer.isEmpty())
        emit rejected();
    else
        emit accepted();
}

std::atomic<QRgb> OriginalImageDouble::s_color{0xffff0000};

QImage OriginalImageDouble::requestImage(const QString&, QSize* size, const QSize&)
{
    QImage image(400, 300, QImage::Format_RGB32);
    image.fill(s_color.load());
    for (int y = 0; y < image.height(); ++y)
        image.setPixelColor(image.width() - 1, y, Qt::blue);
    for (int x = 0; x < image.width(); ++x)
        image.setPixelColor(x, image.height() - 1, Qt::blue);
    if (size)
        *size = image.size();
    return image;
}
