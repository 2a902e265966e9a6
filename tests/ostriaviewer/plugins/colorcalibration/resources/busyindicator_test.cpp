// SPDX-License-Identifier: Apache-2.0
// The busy indicator turns about its center without wobbling or being cut off.
#include "opacity.h"
#include <QImage>
#include <QString>
#include <QTransform>
#include <QtMath>
#include <cmath>
#include <gtest/gtest.h>

namespace {

constexpr double DiscRadius = 94;
constexpr double DotOrbit = 64;

class BusyIndicator : public testing::Test
{
protected:
    void SetUp() override
    {
        m_image = QImage(QStringLiteral(":/ColCal/busyindicator.png"));
        ASSERT_EQ(m_image.size(), QSize(200, 200));
    }

    QColor at(double degrees, double radius) const
    {
        const double angle = qDegreesToRadians(degrees);
        return m_image.pixelColor(static_cast<int>(std::floor(100 + radius * std::sin(angle))),
                                  static_cast<int>(std::floor(100 - radius * std::cos(angle))));
    }

    QImage m_image;
};

TEST_F(BusyIndicator, KeepsItsOutlineUnderAQuarterTurn)
{
    expectSameOpacity(m_image, m_image.transformed(QTransform().rotate(90)));
    EXPECT_NEAR(centerOfOpacity(m_image).x(), 100, 0.02);
    EXPECT_NEAR(centerOfOpacity(m_image).y(), 100, 0.02);
}

TEST_F(BusyIndicator, HasARoundDiscAboutItsCenter)
{
    const int alpha = at(0, 85).alpha();
    EXPECT_GT(alpha, 200);
    for (int degrees = 0; degrees < 360; ++degrees) {
        EXPECT_EQ(at(degrees, 85).alpha(), alpha) << degrees;
        EXPECT_EQ(at(degrees, DiscRadius - 2).alpha(), alpha) << degrees;
        EXPECT_EQ(at(degrees, DiscRadius + 2).alpha(), 0) << degrees;
    }
}

TEST_F(BusyIndicator, HasTwelveDotsOnACircle)
{
    for (int dot = 0; dot < 12; ++dot) {
        EXPECT_EQ(at(30 * dot, DotOrbit).alpha(), 255) << dot;
        EXPECT_LT(at(30 * dot + 15, DotOrbit).alpha(), 255) << dot;
    }
}

TEST_F(BusyIndicator, FadesAgainstTheClockSoThatItSeemsToRunWithIt)
{
    for (int dot = 1; dot < 12; ++dot) {
        EXPECT_GT(at(-30 * dot, DotOrbit).lightness(), at(-30 * (dot - 1), DotOrbit).lightness())
            << dot;
    }
}

} // namespace
