// SPDX-License-Identifier: Apache-2.0
// How many rendered charts are found, and how exactly.
#include "colorcorrectionautochartfinder.h"

#include "chartscene.h"
#include "rounds.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <random>
#include <string>

using namespace ColorCalibration;
using ChartScene::Placement;
using ChartScene::Scene;
using ChartScene::Table;

namespace {

struct Surroundings
{
    const char* name;
    ChartScene::LinearColor background;
    Table table;
};

void PrintTo(const Surroundings& surroundings, std::ostream* stream)
{
    *stream << surroundings.name;
}

class Random
{
public:
    explicit Random(unsigned seed)
        : m_generator(seed)
    {}
    double real(double lowest, double highest)
    {
        return lowest + (highest - lowest) * double(m_generator()) / 4294967295.0;
    }

private:
    std::mt19937 m_generator;
};

constexpr int Width = 800;
constexpr int Height = 600;
constexpr int Margin = 4;

/// Within the image as far as the chart's size allows.
QPointF randomCenter(Random& random, const Placement& placement)
{
    const ChartScene::Corners corners = ChartScene::cornersOf(placement);
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    for (const QPointF& corner : corners) {
        halfWidth = qMax(halfWidth, qAbs(corner.x()) + Margin);
        halfHeight = qMax(halfHeight, qAbs(corner.y()) + Margin);
    }
    return {random.real(halfWidth, Width - halfWidth),
            random.real(halfHeight, Height - halfHeight)};
}

Scene randomScene(unsigned seed, const Surroundings& surroundings)
{
    Random random(seed);
    Placement placement;
    placement.width = random.real(0.3, 0.9) * Width;
    placement.turn = random.real(-5.0, 5.0);
    placement.tiltX = random.real(-5.0, 5.0);
    placement.tiltY = random.real(-5.0, 5.0);
    placement.center = randomCenter(random, placement);

    Scene scene;
    scene.size = QSize(Width, Height);
    scene.corners = ChartScene::cornersOf(placement);
    scene.background = surroundings.background;
    scene.table = surroundings.table;
    scene.gap = random.real(0.08, 0.2);
    scene.light = random.real(0.3, 1.0);
    // From candle light to a blue sky, as a camera without white balance sees them.
    const double cast = random.real(-0.3, 0.3);
    scene.cast = {1.0 + cast, 1.0, 1.0 - cast};
    scene.noise = random.real(0.5, 4.0);
    scene.seed = seed;
    return scene;
}

/// The largest distance of a corner from the truth in pitches, or a huge one if not valid.
double worstCorner(const Scene& scene)
{
    const ColorCorrectionAutoChartFinderResult result =
        ColorCorrectionAutoChartFinder().findChart(ChartScene::render(scene));
    if (!result.valid)
        return 1e9;
    const double pitch = QLineF(scene.corners[0], scene.corners[1]).length() / 6.0;
    const QPoint found[] = {result.upperLeft, result.upperRight, result.lowerLeft,
                            result.lowerRight};
    double worst = 0.0;
    for (std::size_t i = 0; i < 4; ++i)
        worst = qMax(worst, QLineF(found[i], scene.corners[i]).length() / pitch);
    return worst;
}

class ChartFinderScenes : public testing::TestWithParam<Surroundings>
{};

} // namespace

TEST_P(ChartFinderScenes, ChartIsFoundWithinAQuarterOfThePitchIn95Of100)
{
    constexpr unsigned scenes = roundsOf(100);
    int found = 0;
    for (unsigned seed = 0; seed < scenes; ++seed) {
        const double worst = worstCorner(randomScene(seed, GetParam()));
        if (worst < 0.25)
            ++found;
        else
            std::cout << "seed " << seed << ": off by " << worst << " pitches\n";
    }
    EXPECT_GE(found * 100, static_cast<int>(scenes) * 95);
}

INSTANTIATE_TEST_SUITE_P(Tables, ChartFinderScenes,
                         testing::Values(Surroundings{"Gray", {45.0, 45.0, 45.0}, Table::Plain},
                                         Surroundings{"White", {230.0, 230.0, 225.0}, Table::Plain},
                                         Surroundings{"Black", {5.0, 5.0, 5.0}, Table::Plain},
                                         Surroundings{"Wood", {110.0, 65.0, 32.0}, Table::Wood},
                                         Surroundings{"Green", {10.0, 60.0, 25.0}, Table::Plain}),
                         [](const testing::TestParamInfo<Surroundings>& test) {
                             return std::string(test.param.name);
                         });

TEST(ChartScene, PutsTheTargetsEncodedWhereTheTruthSaysTheyAre)
{
    Scene scene;
    scene.size = QSize(320, 240);
    scene.corners = {QPointF(30, 20), QPointF(270, 20), QPointF(30, 180), QPointF(270, 180)};
    const QImage image = ChartScene::render(scene);
    // sRGB of 44.138, 20.936, 14.471 (patch 0) and 232.76, 233.26, 227.91 (patch 18) out of 255.
    EXPECT_EQ(image.pixelColor(50, 40), QColor(116, 81, 67));
    EXPECT_EQ(image.pixelColor(50, 160), QColor(245, 245, 243));
    // Frame and table: 4 and 45 out of 255.
    EXPECT_EQ(image.pixelColor(70, 40), QColor(34, 34, 34));
    EXPECT_EQ(image.pixelColor(310, 230), QColor(117, 117, 117));
}
