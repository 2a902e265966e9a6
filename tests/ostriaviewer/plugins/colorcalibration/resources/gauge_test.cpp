// SPDX-License-Identifier: Apache-2.0
// The brightness gauge: where its needle turns, what the needle points at.
#include "opacity.h"
#include <QColor>
#include <QImage>
#include <QPointF>
#include <QString>
#include <QtMath>
#include <cmath>
#include <gtest/gtest.h>

namespace {

// Face and needle in one of their two sizes.
class Gauge : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        const QString suffix = GetParam() == 2 ? QStringLiteral("@2x.png") : QStringLiteral(".png");
        m_face = QImage(QStringLiteral(":/ColCal/targetvalue") + suffix);
        m_needle = QImage(QStringLiteral(":/ColCal/targetpointer") + suffix);
        ASSERT_FALSE(m_face.isNull());
        ASSERT_FALSE(m_needle.isNull());
    }

    // The needle stands centered on the face's lower edge and turns half its width above its foot.
    QPointF hub() const { return {m_face.width() / 2.0, m_face.height() - m_needle.width() / 2.0}; }

    // Highest pixel of the needle, as its distance from the hub.
    double reach() const
    {
        for (int y = 0; y < m_needle.height(); ++y) {
            if (qAlpha(m_needle.pixel(m_needle.width() / 2, y)) > 127) {
                return m_needle.height() - m_needle.width() / 2.0 - y;
            }
        }
        return 0;
    }

    // The face at the end of a pointer for this hit rate: two degrees a percent, 100 straight up.
    QColor under(double hitRate, double distance) const
    {
        const double angle = qDegreesToRadians((hitRate - 100) / 100 * 200);
        const int x = static_cast<int>(std::floor(hub().x() + distance * std::sin(angle)));
        const int y = static_cast<int>(std::floor(hub().y() - distance * std::cos(angle)));
        return m_face.pixelColor(x, y);
    }

    static bool isGreen(const QColor& color)
    {
        return color.green() > color.red() + 40 && color.green() > color.blue() + 40;
    }

    double inBand() const { return 51.0 * GetParam(); }

    QImage m_face;
    QImage m_needle;
};

TEST_P(Gauge, IsGreenWhereTheBrightnessIsJustRight)
{
    for (int hitRate = 82; hitRate <= 118; ++hitRate) {
        EXPECT_TRUE(isGreen(under(hitRate, inBand()))) << hitRate;
    }
}

TEST_P(Gauge, IsNotGreenWhereTheImageIsTooDarkOrTooBright)
{
    for (int offBy = 22; offBy <= 44; ++offBy) {
        EXPECT_FALSE(isGreen(under(100 - offBy, inBand()))) << 100 - offBy;
        EXPECT_FALSE(isGreen(under(100 + offBy, inBand()))) << 100 + offBy;
    }
}

TEST_P(Gauge, IsDarkerOnTheSideOfImagesTooDark)
{
    EXPECT_LT(under(65, inBand()).lightness() + 50, under(135, inBand()).lightness());
}

TEST_P(Gauge, NeedleReachesTheGreenSectionAndDoesNotCrossIt)
{
    EXPECT_TRUE(isGreen(under(100, reach())));
    EXPECT_TRUE(isGreen(under(100, reach() + 4 * GetParam())));
}

TEST_P(Gauge, NeedleTurnsAboutTheMiddleOfItsHub)
{
    const int radius = m_needle.width() / 2;
    const int hubY = m_needle.height() - radius;
    // Around the hub's ring, halfway between its hole and its edge.
    for (int degrees = 0; degrees < 360; degrees += 15) {
        const double angle = qDegreesToRadians(static_cast<double>(degrees));
        const int x = static_cast<int>(std::floor(radius + 0.7 * radius * std::sin(angle)));
        const int y = static_cast<int>(std::floor(hubY - 0.7 * radius * std::cos(angle)));
        EXPECT_EQ(qAlpha(m_needle.pixel(x, y)), 255) << degrees;
    }
    EXPECT_EQ(m_needle.pixelColor(radius, hubY), QColor(Qt::white));
}

TEST_P(Gauge, NeedleAndFaceLeanToNeitherSide)
{
    expectEvenSides(m_needle);
    expectEvenSides(m_face);
}

INSTANTIATE_TEST_SUITE_P(Scale, Gauge, testing::Values(1, 2));

} // namespace
