// SPDX-License-Identifier: Apache-2.0
// JSON text that brings every number back.
#include "jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <limits>
#include <random>

using ColorCalibrate::toJsonText;

TEST(JsonText, CarriesSeventeenDigits)
{
    EXPECT_EQ(toJsonText(0.1), "0.10000000000000001");
    EXPECT_EQ(toJsonText(1.0), "1");
    EXPECT_EQ(toJsonText(-2.5), "-2.5");
    EXPECT_EQ(toJsonText(1e300), "1.0000000000000001e+300");
}

TEST(JsonText, BringsRandomNumbersBackExactly)
{
    std::mt19937_64 generator(1);
    std::uniform_real_distribution<double> exponent(-300.0, 300.0);
    for (int i = 0; i < 1000; ++i) {
        const double value = std::pow(10.0, exponent(generator)) * (i % 2 ? 1 : -1);
        const QByteArray text = toJsonText(QJsonArray{value});
        EXPECT_EQ(QJsonDocument::fromJson(text).array().at(0).toDouble(), value);
    }
}

TEST(JsonText, SpellsWhatJsonHasNoNumberFor)
{
    EXPECT_EQ(toJsonText(std::numeric_limits<double>::quiet_NaN()), "\"nan\"");
    EXPECT_EQ(toJsonText(-std::numeric_limits<double>::quiet_NaN()), "\"nan\"");
    EXPECT_EQ(toJsonText(std::numeric_limits<double>::infinity()), "\"inf\"");
    EXPECT_EQ(toJsonText(-std::numeric_limits<double>::infinity()), "\"-inf\"");
}

TEST(JsonText, IsReadBackByQt)
{
    const QJsonObject object{
        {QStringLiteral("a \"quoted\"\n\\name"), QStringLiteral("\u00fcber\t\"x\"")},
        {QStringLiteral("empty"), QJsonArray()},
        {QStringLiteral("none"), QJsonObject()},
        {QStringLiteral("flags"), QJsonArray{true, false, QJsonValue()}},
        {QStringLiteral("nested"),
         QJsonArray{QJsonArray{1, 2}, QJsonObject{{QStringLiteral("x"), 3}}}},
    };
    const QByteArray text = toJsonText(object);
    EXPECT_EQ(QJsonDocument::fromJson(text).object(), object) << text.constData();
    EXPECT_FALSE(text.contains('\n'));
}
