// SPDX-License-Identifier: Apache-2.0
// Which user sets of a camera settings can be stored in.
#include "storableusersets.h"

#include <algorithm>
#include <iterator>

using Core::ParameterCollection::EnumerationEntry;

namespace ColorCalibration {

QVector<EnumerationEntry>
storableUserSets(Core::ParameterCollection::IParameterCollection& parameters)
{
    const auto entries =
        parameters.enumerationParameter(QStringLiteral("UserSetSelector"))->entries();
    QVector<EnumerationEntry> sets;
    std::copy_if(entries.begin(), entries.end(), std::back_inserter(sets),
                 [](const EnumerationEntry& entry) {
                     return entry.isSettable &&
                            entry.name.contains(QLatin1String("userset"), Qt::CaseInsensitive);
                 });
    return sets;
}

} // namespace ColorCalibration
