// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#include "markup.h"

#include <QRegularExpression>

namespace Translation {
namespace {

/// \param part  of each match
QStringList all(const QRegularExpression& form, const QString& text, int part = 0)
{
    QStringList found;
    QRegularExpressionMatchIterator matches = form.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(part));
    return found;
}

} // namespace

QStringList tags(const QString& text)
{
    static const QRegularExpression tag(QStringLiteral("<[^>]+>"));
    return all(tag, text);
}

QStringList placeHolders(const QString& text)
{
    static const QRegularExpression holder(QStringLiteral("%\\d|%n|\\n"));
    QStringList found = all(holder, text);
    found.sort();
    return found;
}

QStringList boldTexts(const QString& text)
{
    static const QRegularExpression bold(QStringLiteral("<b>([^<]*)</b>"));
    QStringList found = all(bold, text, 1);
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
