// SPDX-License-Identifier: Apache-2.0
// Checks of a picture's outline.
#pragma once

#include <QImage>
#include <QPointF>
#include <gtest/gtest.h>

// Center of opacity in pixels, each pixel taken at its middle.
inline QPointF centerOfOpacity(const QImage& image)
{
    double sum = 0;
    QPointF weighted;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const double alpha = qAlpha(image.pixel(x, y));
            sum += alpha;
            weighted += alpha * QPointF(x + 0.5, y + 0.5);
        }
    }
    return weighted / sum;
}

// Fails the test where two pictures differ in opacity by more than an edge's smoothing: renderers
// sample the coverage of a pixel at few points.
inline void expectSameOpacity(const QImage& one, const QImage& other)
{
    ASSERT_FALSE(one.isNull());
    ASSERT_EQ(one.size(), other.size());
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            ASSERT_NEAR(qAlpha(one.pixel(x, y)), qAlpha(other.pixel(x, y)), 32) << x << ", " << y;
        }
    }
}

// Fails the test if the picture's outline leans to a side.
inline void expectEvenSides(const QImage& image)
{
    expectSameOpacity(image, image.mirrored(true, false));
    EXPECT_NEAR(centerOfOpacity(image).x(), image.width() / 2.0, 0.05);
}
