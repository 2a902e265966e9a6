// SPDX-License-Identifier: Apache-2.0
// Reasons within sentences.
#pragma once

#include <QString>

namespace Core {

/// What others say may end as a sentence does in the user's language, also where it stands in
/// another sentence then.
inline QString withoutFullStop(QString text)
{
    constexpr char16_t ideographicFullStop = 0x3002;
    if (text.endsWith(QLatin1Char('.')) || text.endsWith(QChar(ideographicFullStop)))
        text.chop(1);
    return text;
}

} // namespace Core
