// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#include "markup.h"

#include <QRegularExpression>

namespace Translation {

QStringList markup(const QString& text)
{
    static const QRegularExpression kept(QStringLiteral("<[^>]+>|%\\d|\\n"));
    QStringList found;
    QRegularExpressionMatchIterator matches = kept.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

} // namespace Translation
