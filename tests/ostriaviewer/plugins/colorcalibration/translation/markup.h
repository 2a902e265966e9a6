// SPDX-License-Identifier: Apache-2.0
// What a translation must keep of its source.
#pragma once

#include <QString>
#include <QStringList>

namespace Translation {

/// Tags, place holders and line breaks of a text, sorted.
QStringList markup(const QString& text);

} // namespace Translation
