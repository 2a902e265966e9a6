// SPDX-License-Identifier: Apache-2.0
// Words of others in messages.
#include "shown_p.h"

namespace Cameras::GenICam {

QString shown(const QStringRef& word)
{
    constexpr int longest = 40;
    QString result;
    for (const QChar character : word.left(longest))
        result.append(character.isPrint() ? character : QChar(0xFFFD));
    return word.size() > longest ? result + QChar(0x2026) : result;
}

} // namespace Cameras::GenICam
