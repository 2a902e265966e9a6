// SPDX-License-Identifier: Apache-2.0
// The colours of all patches, and how far they lie from their targets.
#include "patchresults.h"

#include "charttargets.h"
#include "original.h"
#include "patchcolorconversion.h"

#include <algorithm>

namespace ColorCalibration {
namespace {

QString hexText(const QColor& color)
{
    return color.name();
}

QString preciseText(const QColor& color)
{
    const auto channel = [](double value) {
        return QString::number(value * 255, 'f', 4);
    };
    return QStringLiteral("R: ") + channel(color.redF()) + QStringLiteral(" G: ") +
           channel(color.greenF()) + QStringLiteral(" B: ") + channel(color.blueF());
}

QString colorAt(const QVector<QColor>& colors, int patch, QString (*text)(const QColor&))
{
    return patch < colors.size() ? text(colors.at(patch)) : QStringLiteral("N/A");
}

} // namespace

PatchResults patchResults(const QVector<QColor>& initial, const QVector<QColor>& target,
                          const QVector<QColor>& current)
{
    const ChartTargets chart;
    Original step(chart, 1.0);
    step.SetColors(toPatchColors(current, true));
    step.Calculate();

    PatchResults results;
    const int count = std::min(current.size(), PatchCount);
    for (int patch = 0; patch < count; ++patch) {
        const double deltaE = step.Delta(patch, false, false);
        const double deltaC = step.Delta(patch, true, false);
        const auto describe = [&](QString (*text)(const QColor&), int digits) {
            return QJsonObject{{QStringLiteral("Initial"), colorAt(initial, patch, text)},
                               {QStringLiteral("Target"), colorAt(target, patch, text)},
                               {QStringLiteral("Current"), colorAt(current, patch, text)},
                               {QStringLiteral("DeltaE"), QString::number(deltaE, 'f', digits)},
                               {QStringLiteral("DeltaC"), QString::number(deltaC, 'f', digits)}};
        };
        const QString key = QStringLiteral("Patch%1").arg(patch + 1, 2, 10, QLatin1Char('0'));
        results.colors.insert(key, describe(hexText, 4));
        results.preciseColors.insert(key, describe(preciseText, 6));
    }
    return results;
}

} // namespace ColorCalibration
