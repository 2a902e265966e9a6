// SPDX-License-Identifier: Apache-2.0
// Catalogues against the texts that the code shows.
#include "usedtexts.h"

#include "catalogue.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Translation {

QSet<Text> textsOf(const QString& catalogue)
{
    QSet<Text> texts;
    for (const Message& message : readCatalogue(catalogue))
        texts.insert({message.context, message.source});
    return texts;
}

QSet<Text> textsOfCode(const QStringList& folders)
{
    const QTemporaryDir folder;
    const QString catalogue = folder.filePath(QStringLiteral("found.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(OSTRIA_LUPDATE),
                  QStringList(QStringLiteral("-silent")) + folders +
                      QStringList{QStringLiteral("-ts"), catalogue});
    EXPECT_TRUE(lupdate.waitForFinished());
    const std::string told = lupdate.readAllStandardError().toStdString();
    EXPECT_EQ(lupdate.exitCode(), 0) << told;
    EXPECT_EQ(told, "") << "a text whose context is not clear is never translated";
    return textsOf(catalogue);
}

std::string listed(const QSet<Text>& texts)
{
    QStringList lines;
    for (const Text& text : texts)
        lines.append(text.first + QStringLiteral(": \"") + text.second + QLatin1Char('"'));
    lines.sort();
    return lines.join(QLatin1Char('\n')).toStdString();
}

} // namespace Translation
