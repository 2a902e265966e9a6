// SPDX-License-Identifier: Apache-2.0
// The plugin's catalogues against the texts that its code and pages show.
#include "usedtexts.h"

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

} // namespace

TEST(UsedTexts, AreInTheCataloguesButForTheScripts)
{
    // The messages of an exhibition's recalibration, and of saving, have always come in English.
    const QString saving = QStringLiteral("ColorCalibration::QmlDataModelInterface");
    const QSet<Text> english{
        {QStringLiteral("functions"),
         QStringLiteral("Unable to apply initial camera image and patch values.")},
        {QStringLiteral("functions"), QStringLiteral("Unable to set neutral settings.")},
        {QStringLiteral("functions"), QStringLiteral("Apply initial values failed.")},
        {QStringLiteral("functions"), QStringLiteral("Calibration process failed.")},
        {saving, QStringLiteral("Settings have been saved successfully in ")},
        {saving, QStringLiteral("Settings were saved successfully in ")},
        {saving, QStringLiteral("Settings couldn’t be saved in ")},
        {saving, QStringLiteral("Summary has been saved successfully in ")},
        {saving, QStringLiteral("Summary couldn’t be saved in ")}};
    const QSet<Text> missing = textsOfPlugin() - textsOfCatalogue();
    EXPECT_EQ(missing, english) << Translation::listed(missing);
}

TEST(UsedTexts, AreAllThatTheCataloguesHave)
{
    const QSet<Text> unused = textsOfCatalogue() - textsOfPlugin();
    EXPECT_TRUE(unused.isEmpty()) << Translation::listed(unused);
}
