// SPDX-License-Identifier: Apache-2.0
// What groups of the adapter write, line by line.
#pragma once

#include "patchcolors.h"

#include <QStringList>

inline QStringList gainWrites(const ColorCalibration::ColorMatrix& m)
{
    QStringList lines;
    const auto gain = [&lines](int row, int column, double value) {
        lines << QStringLiteral("try ColorTransformationValueSelector = Gain%1%2")
                     .arg(row)
                     .arg(column)
              << QStringLiteral("try ColorTransformationValue = %1").arg(value);
    };
    gain(0, 1, m(0, 1));
    gain(0, 2, m(0, 2));
    gain(0, 0, 1.0 - m(0, 1) - m(0, 2));
    gain(1, 0, m(1, 0));
    gain(1, 2, m(1, 2));
    gain(1, 1, 1.0 - m(1, 0) - m(1, 2));
    gain(2, 0, m(2, 0));
    gain(2, 1, m(2, 1));
    gain(2, 2, 1.0 - m(2, 0) - m(2, 1));
    return lines;
}

inline QStringList sectorWrites(const ColorCalibration::ColorAdjustment& a)
{
    QStringList lines;
    int index = 0;
    for (const char* sector : {"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"}) {
        lines << QStringLiteral("ColorAdjustmentSelector = %1").arg(QLatin1String(sector))
              << QStringLiteral("ColorAdjustmentHue = %1").arg(a(index))
              << QStringLiteral("ColorAdjustmentSaturation = %1").arg(a(index + 6));
        ++index;
    }
    return lines;
}

inline QStringList balanceWrites(const QString& feature, double red, double green, double blue)
{
    return {QStringLiteral("BalanceRatioSelector = Red"),
            QStringLiteral("%1 = %2").arg(feature).arg(red),
            QStringLiteral("BalanceRatioSelector = Blue"),
            QStringLiteral("%1 = %2").arg(feature).arg(blue),
            QStringLiteral("BalanceRatioSelector = Green"),
            QStringLiteral("%1 = %2").arg(feature).arg(green)};
}

inline QStringList autoFunctionWrites()
{
    return {QStringLiteral("try BalanceWhiteAuto = Off"),
            QStringLiteral("try TonalRangeAuto = Off"),
            QStringLiteral("try TonalRangeEnable = Off"),
            QStringLiteral("try TvrContrastMode = Linear"),
            QStringLiteral("try ExposureAuto = Off"),
            QStringLiteral("try GainAuto = Off")};
}
