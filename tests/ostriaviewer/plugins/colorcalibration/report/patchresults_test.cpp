// SPDX-License-Identifier: Apache-2.0
// Tests of the patches' part of the results.
#include "patchresults.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace ColorCalibration;

namespace {

QVector<QColor> allOf(const QColor& color, int count = 24)
{
    return QVector<QColor>(count, color);
}

QJsonObject patch(const QJsonObject& patches, const char* key)
{
    return patches.value(QLatin1String(key)).toObject();
}

TEST(PatchResults, NumbersPatchesWithTwoDigits)
{
    const PatchResults results = patchResults(allOf(Qt::red), allOf(Qt::green), allOf(Qt::blue));
    EXPECT_EQ(results.colors.size(), 24);
    EXPECT_EQ(results.colors.keys(), results.preciseColors.keys());
    for (const char* key : {"Patch01", "Patch09", "Patch10", "Patch24"})
        EXPECT_TRUE(results.colors.contains(QLatin1String(key))) << key;
}

TEST(PatchResults, WritesColorsShortAndPrecise)
{
    // 16 bits a channel: 0x8080 is 128.5 of 257 parts, 0x80c0 = 32960, 32960 / 65535 * 255.
    const QColor fine = QColor::fromRgba64(32960, 65535, 0);
    const PatchResults results = patchResults(allOf(Qt::red), allOf(fine), allOf(Qt::blue));
    const QJsonObject brief = patch(results.colors, "Patch05");
    EXPECT_EQ(brief.value("Initial"), "#ff0000");
    EXPECT_EQ(brief.value("Target"), "#80ff00");
    EXPECT_EQ(brief.value("Current"), "#0000ff");
    const QJsonObject precise = patch(results.preciseColors, "Patch05");
    EXPECT_EQ(precise.value("Initial"), "R: 255.0000 G: 0.0000 B: 0.0000");
    EXPECT_EQ(precise.value("Target"), "R: 128.2490 G: 255.0000 B: 0.0000");
    EXPECT_EQ(precise.value("Current"), "R: 0.0000 G: 0.0000 B: 255.0000");
}

TEST(PatchResults, WritesDifferencesWithFourAndSixDigits)
{
    const PatchResults results = patchResults(allOf(Qt::red), allOf(Qt::green), allOf(Qt::gray));
    for (const char* key : {"DeltaE", "DeltaC"}) {
        const QString brief = patch(results.colors, "Patch01").value(QLatin1String(key)).toString();
        const QString precise =
            patch(results.preciseColors, "Patch01").value(QLatin1String(key)).toString();
        EXPECT_TRUE(QRegularExpression("^[0-9]+\\.[0-9]{4}$").match(brief).hasMatch());
        EXPECT_TRUE(QRegularExpression("^[0-9]+\\.[0-9]{6}$").match(precise).hasMatch());
        EXPECT_NEAR(brief.toDouble(), precise.toDouble(), 0.00005001);
    }
}

TEST(PatchResults, MeasuresFromTheChartNotFromTheListOfTargets)
{
    // Patch 24 of the chart is nearly black and patch 19 nearly white, whatever the list says.
    const QColor nearBlack(49, 49, 51);
    const PatchResults results = patchResults({}, allOf(Qt::red), allOf(nearBlack));
    EXPECT_LT(patch(results.colors, "Patch24").value("DeltaE").toString().toDouble(), 2.0);
    EXPECT_GT(patch(results.colors, "Patch19").value("DeltaE").toString().toDouble(), 60.0);
    EXPECT_LT(patch(results.colors, "Patch19").value("DeltaC").toString().toDouble(), 5.0)
        << "both are neutral";
}

TEST(PatchResults, SaysSoWhereAListHasNoColor)
{
    const PatchResults results = patchResults(allOf(Qt::red, 2), {}, allOf(Qt::blue, 3));
    EXPECT_EQ(results.colors.keys(), (QStringList{"Patch01", "Patch02", "Patch03"}));
    EXPECT_EQ(patch(results.colors, "Patch02").value("Initial"), "#ff0000");
    EXPECT_EQ(patch(results.colors, "Patch03").value("Initial"), "N/A");
    EXPECT_EQ(patch(results.preciseColors, "Patch03").value("Initial"), "N/A");
    EXPECT_EQ(patch(results.colors, "Patch01").value("Target"), "N/A");
    EXPECT_TRUE(patchResults(allOf(Qt::red), allOf(Qt::red), {}).colors.isEmpty());
}

TEST(PatchResults, LooksAt24PatchesAtMost)
{
    EXPECT_EQ(patchResults({}, {}, allOf(Qt::blue, 30)).colors.size(), 24);
}

} // namespace
