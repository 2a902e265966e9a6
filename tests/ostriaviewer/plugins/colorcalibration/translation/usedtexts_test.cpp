// SPDX-License-Identifier: Apache-2.0
// The catalogues against the texts that the code shows.
#include "catalogue.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using Text = QPair<QString, QString>; // context and source

QSet<Text> textsOf(const QString& catalogue)
{
    QSet<Text> texts;
    for (const Translation::Message& message : Translation::readCatalogue(catalogue))
        texts.insert({message.context, message.source});
    return texts;
}

/// What Qt's own tool finds in code and pages.
QSet<Text> textsOfCode()
{
    const QTemporaryDir folder;
    const QString catalogue = folder.filePath(QStringLiteral("found.ts"));
    QProcess lupdate;
    lupdate.start(QStringLiteral(OSTRIA_LUPDATE),
                  {QStringLiteral("-silent"), QStringLiteral(OSTRIA_PLUGIN_SOURCES),
                   QStringLiteral("-ts"), catalogue});
    EXPECT_TRUE(lupdate.waitForFinished());
    EXPECT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();
    return textsOf(catalogue);
}

std::string listed(const QSet<Text>& texts)
{
    std::string list;
    for (const Text& text : texts)
        list += text.first.toStdString() + ": " + text.second.toStdString() + "\n";
    return list;
}

QString currentCatalogue()
{
    return QStringLiteral(OSTRIA_PLUGIN_SOURCES "/resources/translation/ColorCalibration_ja.ts");
}

} // namespace

TEST(UsedTexts, AreInTheCataloguesButForTheScripts)
{
    // The messages of an exhibition's recalibration have always come in English.
    const QSet<Text> english{
        {QStringLiteral("functions"),
         QStringLiteral("Unable to apply initial camera image and patch values.")},
        {QStringLiteral("functions"), QStringLiteral("Unable to set neutral settings.")},
        {QStringLiteral("functions"), QStringLiteral("Apply initial values failed.")},
        {QStringLiteral("functions"), QStringLiteral("Calibration process failed.")}};
    const QSet<Text> missing = textsOfCode() - textsOf(currentCatalogue());
    EXPECT_EQ(missing, english) << listed(missing);
}

TEST(UsedTexts, AreAllThatTheCataloguesHave)
{
    const QSet<Text> unused = textsOf(currentCatalogue()) - textsOfCode();
    EXPECT_TRUE(unused.isEmpty()) << listed(unused);
}
