// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#pragma once

#include <QString>
#include <QStringList>

namespace Translation {

/// Tags of a text, in its order: what opens and closes must not change places.
QStringList tags(const QString& text);

/// Place holders and line breaks of a text, sorted, as languages differ in the order of words.
QStringList placeHolders(const QString& text);

/// What stands in bold letters, sorted.
QStringList boldTexts(const QString& text);

/// How a text ends that is to be pressed with a key: nothing, "&" for a mnemonic, "..." for a
/// window that follows, or both.
QString commandEnding(const QString& text);

/// Whether a text, without markup at its end, ends as sentences do.
bool isSentence(const QString& text);

} // namespace Translation
