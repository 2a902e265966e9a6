// SPDX-License-Identifier: Apache-2.0
// Makes the image.
#include "originalimagedouble.h"

#include <QImage>

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
