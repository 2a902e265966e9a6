// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#pragma once

#include <QString>
#include <QStringList>

namespace Translation {

/// Tags, place holders and line breaks of a text, sorted.
QStringList markup(const QString& text);

/// How a text ends that is to be pressed with a key: nothing, "&" for a mnemonic, "..." for a
/// window that follows, or both.
QString commandEnding(const QString& text);

/// Whether a text, without markup at its end, ends as sentences do.
bool isSentence(const QString& text);

} // namespace Translation
