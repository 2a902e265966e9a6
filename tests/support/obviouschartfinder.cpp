// SPDX-License-Identifier: Apache-2.0
// The chart finder pixel by pixel: its chain of steps.
#include "obviouschartfinder.h"

#include "charttargets.h"

#include <algorithm>
#include <cmath>

namespace ColorCalibration::Obvious {

namespace {

/// Three running sums over the colours of a line.
struct RunningSum
{
    float red = 0.0F;
    float green = 0.0F;
    float blue = 0.0F;

    void add(const QColor& color)
    {
        red = static_cast<float>(red + color.redF());
        green = static_cast<float>(green + color.greenF());
        blue = static_cast<float>(blue + color.blueF());
    }
    void subtract(const QColor& color)
    {
        red = static_cast<float>(red - color.redF());
        green = static_cast<float>(green - color.greenF());
        blue = static_cast<float>(blue - color.blueF());
    }
    static void limit(float& sum, float window)
    {
        if (sum / window > 1.0)
            sum = window;
        if (sum / window < 0)
            sum = 0;
    }
    QColor mean(float window)
    {
        limit(red, window);
        limit(green, window);
        limit(blue, window);
        return QColor::fromRgbF(red / window, green / window, blue / window, 1.0);
    }
};

/// One pass: lines of n pixels, where at(line, position) says which pixel that is.
template <typename At>
QImage blurPass(const QImage& image, int lines, int n, int radius, At at)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    const auto window = static_cast<float>(2 * radius + 1);
    for (int line = 0; line < lines; ++line) {
        const auto color = [&](int position) {
            return image.pixelColor(at(line, std::clamp(position, 0, n - 1)));
        };
        RunningSum sum;
        for (int offset = -radius; offset <= radius - 1; ++offset)
            sum.add(color(offset));
        for (int position = 0; position < n; ++position) {
            sum.add(color(position + radius));
            result.setPixelColor(at(line, position), sum.mean(window));
            sum.subtract(color(position - radius));
        }
    }
    return result;
}

bool isWithin(const QPoint& p, int width, int height)
{
    return p.x() >= 0 && p.y() >= 0 && p.x() <= width && p.y() <= height;
}

} // namespace

QImage reduce(const QImage& image)
{
    return image.isNull() ? QImage() : image.scaledToWidth(640, Qt::FastTransformation);
}

QImage boxBlur(const QImage& image, int radius)
{
    const QImage columns = blurPass(image, image.width(), image.height(), radius,
                                    [](int x, int y) { return QPoint(x, y); });
    return blurPass(columns, image.height(), image.width(), radius,
                    [](int y, int x) { return QPoint(x, y); });
}

QImage keepChannel(const QColor& mask, const QImage& image)
{
    QImage result(image.size(), QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            result.setPixelColor(x, y,
                                 QColor::fromRgbF(mask.redF() * color.red(),
                                                  mask.greenF() * color.green(),
                                                  mask.blueF() * color.blue(), 1.0));
        }
    }
    return result;
}

dlib::matrix<float> channelRatio(const QImage& numerator, const QImage& denominator)
{
    if (numerator.width() != denominator.width() || numerator.height() != denominator.height() ||
        numerator.format() != denominator.format())
        return dlib::zeros_matrix<float>(1, 1);
    dlib::matrix<float> ratios(numerator.width(), numerator.height());
    for (int x = 0; x < numerator.width(); ++x) {
        for (int y = 0; y < numerator.height(); ++y) {
            const QColor above = numerator.pixelColor(x, y);
            const QColor below = denominator.pixelColor(x, y);
            const double sumAbove = above.redF() + above.greenF() + above.blueF();
            const double sumBelow = below.redF() + below.greenF() + below.blueF();
            ratios(x, y) = sumBelow > 0 ? static_cast<float>(sumAbove / sumBelow) : 1.0F;
        }
    }
    return ratios;
}

QVector<QPoint> outerCorners(const QVector<QPoint>& c)
{
    const auto half = [](int a, int b) {
        return std::abs(double(a) - double(b)) / 2.0;
    };
    const auto point = [](double x, double y) {
        return QPoint(static_cast<int>(x), static_cast<int>(y));
    };
    return {point(c[0].x() - half(c[0].x(), c[1].x()), c[0].y() - half(c[0].y(), c[6].y())),
            point(c[5].x() + half(c[5].x(), c[4].x()), c[5].y() - half(c[5].y(), c[11].y())),
            point(c[18].x() - half(c[18].x(), c[19].x()), c[18].y() + half(c[18].y(), c[12].y())),
            point(c[23].x() + half(c[23].x(), c[22].x()), c[23].y() + half(c[23].y(), c[17].y()))};
}

QVector<QPoint> scaleUp(const QImage& image, QVector<QPoint> corners)
{
    const double factor = image.width() / 640.0;
    for (QPoint& corner : corners)
        corner =
            QPoint(static_cast<int>(corner.x() * factor), static_cast<int>(corner.y() * factor));
    return corners;
}

ColorCorrectionAutoChartFinderResult judge(const QImage& image, const QVector<QPoint>& c)
{
    const int w = image.width();
    const int h = image.height();
    ColorCorrectionAutoChartFinderResult result{c[0], c[1], c[2], c[3], false};
    if (!isWithin(c[0], w, h) || !isWithin(c[1], w, h) || !isWithin(c[3], w, h))
        return result;
    if (c[2].x() < 0 || c[2].y() == 0 || c[2].x() > w || c[2].y() > h)
        return result;
    result.valid =
        c[0].x() < c[1].x() && c[0].y() < c[2].y() && c[1].y() < c[3].y() && c[2].x() < c[3].x();
    return result;
}

ColorCorrectionAutoChartFinderResult findChart(const QImage& image)
{
    const QImage smoothed = boxBlur(reduce(image), 5);
    const QVector<QPoint> centers = fitPatchCenters(smoothed, findAnchorBlock(smoothed));
    return judge(image, scaleUp(image, outerCorners(centers)));
}

} // namespace ColorCalibration::Obvious
