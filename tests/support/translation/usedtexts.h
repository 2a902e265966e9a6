// SPDX-License-Identifier: Apache-2.0
// Catalogues against the texts that the code shows.
#pragma once

#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

#include <string>

namespace Translation {

using Text = QPair<QString, QString>; ///< context and source

QSet<Text> textsOf(const QString& catalogue);

/// What Qt's own tool finds in folders of code and pages. Fails the running test where it cannot
/// tell the context of a text.
QSet<Text> textsOfCode(const QStringList& folders);

/// One text a line, with its context.
std::string listed(const QSet<Text>& texts);

} // namespace Translation
