// SPDX-License-Identifier: Apache-2.0
// The plugin's catalogues against the texts that its code and pages show.
#include "usedtexts.h"

#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

using Translation::Text;

namespace {

QSet<Text> textsOfPlugin()
{
    return Translation::textsOfCode({QStringLiteral(OSTRIA_PLUGIN_SOURCES)});
}

QSet<Text> textsOfCatalogue()
{
    return Translation::textsOf(
        QStringLiteral(OSTRIA_PLUGIN_SOURCES "/resources/translation/ColorCalibration_ja.ts"));
}

QSet<Text> textsInEnglish()
{
    const QMap<QString, QStringList> contexts{
        {QStringLiteral("functions"),
         {QStringLiteral("Unable to apply initial camera image and patch values."),
          QStringLiteral("Unable to set neutral settings."),
          QStringLiteral("Apply initial values failed."),
          QStringLiteral("Calibration process failed.")}},
        {QStringLiteral("QmlDataModelInterface"),
         {QStringLiteral("Settings have been saved successfully in "),
          QStringLiteral("Settings were saved successfully in "),
          QStringLiteral("Settings couldn’t be saved in "),
          QStringLiteral("Summary has been saved successfully in "),
          QStringLiteral("Summary couldn’t be saved in ")}},
        {QStringLiteral("QmlTrapezoidList"),
         {QStringLiteral("Unable to fetch color patch values! <br> "),
          QStringLiteral("Unable to fetch original color patch values! <br> "),
          QStringLiteral("Unable to fetch target color patch values! <br> ")}},
        {QStringLiteral("FiledialogCalibration"), {QStringLiteral("Choose a file")}},
        {QStringLiteral("FiledialogSave"), {QStringLiteral("Choose a Folder")}},
        {QStringLiteral("Step1ToolBox"), {QStringLiteral("OstriaFeatureStream files (*.cst )")}},
        {QStringLiteral("Step2ToolBox"), {QStringLiteral("autoadjust error")}},
        {QStringLiteral("CanvasStep12"),
         {QStringLiteral("Upper left corner of the grid"),
          QStringLiteral("Upper right corner of the grid"),
          QStringLiteral("Lower left corner of the grid"),
          QStringLiteral("Lower right corner of the grid")}},
        {QStringLiteral("SceneProblem"),
         {QStringLiteral("The Color Calibrator cannot be shown."),
          QStringLiteral("OpenGL cannot be used."),
          QStringLiteral("The camera's image cannot be drawn without OpenGL."),
          QStringLiteral("Install the viewer again."),
          QStringLiteral("Install the package %1, then start the Color Calibrator again."),
          QStringLiteral("The QML module \"%1\" is missing or damaged. %2"),
          QStringLiteral("%1 is missing. Install the viewer again."),
          QStringLiteral("Install a graphics driver with OpenGL, then start the viewer again."),
          QStringLiteral("Install a graphics driver with OpenGL, in Debian the package "
                         "libgl1-mesa-dri, then start the viewer again.")}}};
    QSet<Text> texts;
    for (auto context = contexts.begin(); context != contexts.end(); ++context)
        for (const QString& text : *context)
            texts.insert({context.key(), text});
    return texts;
}

} // namespace

TEST(UsedTexts, AreInTheCataloguesButForThoseThatStayEnglish)
{
    // These have always come in English: of an exhibition's recalibration, of saving, titles of
    // dialogs, names for screen readers, and what is said where the wizard cannot be shown.
    const QSet<Text> missing = textsOfPlugin() - textsOfCatalogue();
    EXPECT_EQ(missing, textsInEnglish()) << Translation::listed(missing);
}

TEST(UsedTexts, OfThePagesGoThroughTheTranslator)
{
    const QString property =
        QStringLiteral(R"(^\s*(?:readonly )?(?:property \w+ )?[\w.]*)"
                       R"((?<!object)(?:title|text|name|tooltip|filters?)\s*:\s*)");
    const QString literal = QStringLiteral(R"re(\[?\s*"[^"]*[A-Za-z][^"]*")re");
    const QRegularExpression plain(property + literal, QRegularExpression::CaseInsensitiveOption |
                                                           QRegularExpression::MultilineOption);
    QDirIterator pages(QStringLiteral(OSTRIA_PLUGIN_SOURCES "/qml"), {QStringLiteral("*.qml")},
                       QDir::Files, QDirIterator::Subdirectories);
    int count = 0;
    while (pages.hasNext()) {
        QFile page(pages.next());
        ASSERT_TRUE(page.open(QIODevice::ReadOnly));
        ++count;
        const auto match = plain.match(QString::fromUtf8(page.readAll()));
        EXPECT_FALSE(match.hasMatch())
            << qPrintable(pages.fileName()) << ": " << qPrintable(match.captured());
    }
    EXPECT_GT(count, 10);
}

TEST(UsedTexts, AreAllThatTheCataloguesHave)
{
    const QSet<Text> unused = textsOfCatalogue() - textsOfPlugin();
    EXPECT_TRUE(unused.isEmpty()) << Translation::listed(unused);
}
