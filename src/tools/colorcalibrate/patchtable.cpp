// SPDX-License-Identifier: Apache-2.0
// The table of the patches before and after.
#include "patchtable.h"

#include <QString>

#include <ostream>

namespace ColorCalibrate {
namespace {

QString deltaColumns(double beforeE, double afterE, double beforeC, double afterC)
{
    return QString::asprintf("%8.2f%8.2f  %8.2f%8.2f", beforeE, afterE, beforeC, afterC);
}

void writeSummaryRow(std::ostream& out, const char* title, const QString& columns)
{
    out << QStringLiteral("%1%2\n").arg(QLatin1String(title), -36).arg(columns).toStdString();
}

} // namespace

void writePatchTable(std::ostream& out, const PatchTableColors& colors, const Deltas& before,
                     const Deltas& after)
{
    out << QStringLiteral("Patch  %1 %2 Target       Delta E           Delta C\n")
               .arg(QLatin1String(colors.firstTitle), -9)
               .arg(QLatin1String(colors.secondTitle), -10)
               .toStdString()
        << "                                      before   after    before   after\n";
    for (int i = 0; i < ColorCalibration::PatchCount; ++i) {
        const auto patch = static_cast<std::size_t>(i);
        out << QStringLiteral("%1  %2   %3    %4  %5\n")
                   .arg(i + 1, 5)
                   .arg(colors.first.at(i).name(), colors.second.at(i).name(),
                        colors.target.at(i).name(),
                        deltaColumns(before.deltaE[patch], after.deltaE[patch],
                                     before.deltaC[patch], after.deltaC[patch]))
                   .toStdString();
    }
    out << "\n";
    writeSummaryRow(out, "Mean",
                    deltaColumns(before.meanDeltaE(), after.meanDeltaE(), before.meanDeltaC(),
                                 after.meanDeltaC()));
    writeSummaryRow(
        out, "Max",
        deltaColumns(before.maxDeltaE(), after.maxDeltaE(), before.maxDeltaC(), after.maxDeltaC()));
}

} // namespace ColorCalibrate
