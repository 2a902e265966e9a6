// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#include "markup.h"

#include <QRegularExpression>

namespace Translation {

QStringList markup(const QString& text)
{
    static const QRegularExpression kept(QStringLiteral("<[^>]+>|%\\d|%n|\\n"));
    QStringList found;
    QRegularExpressionMatchIterator matches = kept.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    found.sort();
    return found;
}

QString commandEnding(const QString& text)
{
    static const QRegularExpression mnemonic(QStringLiteral("&[A-Za-z]"));
    QString ending;
    if (text.contains(mnemonic))
        ending += QLatin1Char('&');
    if (text.endsWith(QLatin1String("...")))
        ending += QLatin1String("...");
    return ending;
}

bool isSentence(const QString& text)
{
    static const QRegularExpression endOfSentence(QStringLiteral("[^.][.!?。！？](<[^>]+>|\\n)*$"));
    return text.contains(endOfSentence);
}

} // namespace Translation
