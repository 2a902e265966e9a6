// SPDX-License-Identifier: Apache-2.0
// A catalogue of messages as its source file tells it.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <ostream>

namespace Translation {

struct Message
{
    QString context;
    QString source;
    QStringList translations; ///< one, or as many as the language has forms for numbers
    bool isPlural = false;
    bool isFinished = true;
};

/// "Context: source", for a test's own words.
std::ostream& operator<<(std::ostream& out, const Message& message);

/// All messages of a .ts file, in its order. Fails the running test on a broken file.
QVector<Message> readCatalogue(const QString& path);

} // namespace Translation
