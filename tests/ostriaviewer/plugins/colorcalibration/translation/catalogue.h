// SPDX-License-Identifier: Apache-2.0
// A catalogue of messages as its source file tells it.
#pragma once

#include <QString>
#include <QVector>

namespace Translation {

struct Message
{
    QString context;
    QString source;
    QString translation;
    bool finished = true;
};

/// All messages of a .ts file, in its order. Fails the running test on a broken file.
QVector<Message> readCatalogue(const QString& path);

} // namespace Translation
