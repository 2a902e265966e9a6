// SPDX-License-Identifier: Apache-2.0
// Tests of the rules that color the report's first table.
#include "swatches.h"

#include "reportdata.h"

using ColorCalibration::swatchRules;

namespace {

TEST(SwatchRules, NameTheColorsOfEachRowBelowTheHeader)
{
    const QJsonObject colors = sampleResults().value("Colors").toObject();
    const QStringList rules = swatchRules(colors, colors.keys());
    ASSERT_EQ(rules.size(), 24);
    const QJsonObject last = sampleResults().value("Colors").toObject().value("Patch24").toObject();
    EXPECT_EQ(rules.last(),
              QStringLiteral("table:first-of-type tr:nth-child(25)"
                             "{--initial:%1;--target:%2;--current:%3;}")
                  .arg(last.value("Initial").toString(), last.value("Target").toString(),
                       last.value("Current").toString()));
}

TEST(SwatchRules, LetNothingThroughThatIsNoColor)
{
    const QJsonObject colors{{"Patch01", QJsonObject{{"Initial", "N/A"},
                                                     {"Target", "#000}</style><script>"},
                                                     {"Current", "#A1B2C3"}}},
                             {"Patch02", 7}};
    EXPECT_EQ(swatchRules(colors, {"Patch01", "Patch02"}),
              (QStringList{"table:first-of-type tr:nth-child(2){--current:#a1b2c3;}",
                           "table:first-of-type tr:nth-child(3){}"}));
}

TEST(SwatchRules, StayWithTheirPatchWhereAnotherHasNoColors)
{
    const QJsonObject colors{{"Patch02", QJsonObject{{"Target", "#102030"}}},
                             {"Patch09", QJsonObject{{"Target", "#ffffff"}}}};
    EXPECT_EQ(swatchRules(colors, {"Patch01", "Patch02"}),
              (QStringList{"table:first-of-type tr:nth-child(2){}",
                           "table:first-of-type tr:nth-child(3){--target:#102030;}"}));
}

} // namespace
