// SPDX-License-Identifier: Apache-2.0
// The plugin's catalogues: how many messages they have, that all are translated and keep their
// markup, and that the compiled ones answer.
#include "cataloguechecks.h"
#include "markup.h"

#include <QFile>
#include <QMap>
#include <QTranslator>

#include <gtest/gtest.h>

using Translation::Message;

namespace {

const char* const languages[] = {"ja", "ko", "zh"};

QString sourceOf(const QString& file)
{
    return QStringLiteral(OSTRIA_PLUGIN_SOURCES "/resources/%1").arg(file);
}

QVector<Message> catalogue(const QString& language)
{
    return Translation::readCatalogue(
        sourceOf(QStringLiteral("translation/ColorCalibration_%1.ts").arg(language)));
}

QVector<Message> olderCatalogue(const char* language)
{
    return Translation::readCatalogue(
        sourceOf(QStringLiteral("languages/ColorCorrectionToolPlugin_%1.ts")
                     .arg(QString::fromLatin1(language))));
}

QMap<QString, int> countsOf(const QVector<Message>& messages)
{
    QMap<QString, int> counts;
    for (const Message& message : messages)
        ++counts[message.context];
    return counts;
}

class Catalogue : public testing::TestWithParam<const char*>
{
protected:
    QString language() const { return QString::fromLatin1(GetParam()); }
    QVector<Message> messages() const { return catalogue(language()); }
};

INSTANTIATE_TEST_SUITE_P(Languages, Catalogue, testing::ValuesIn(languages),
                         [](const auto& each) { return std::string(each.param); });

} // namespace

TEST_P(Catalogue, HasAll140MessagesInTheirContexts)
{
    const QMap<QString, int> expected{
        {QStringLiteral("ColorCorrectionToolDlg"), 4},
        {QStringLiteral("Plugin::ColorCalibration::CColorCalibrationPlugin"), 2},
        {QStringLiteral("Progress"), 10},
        {QStringLiteral("QMLExposureTime"), 1},
        {QStringLiteral("QMLGainvalue"), 1},
        {QStringLiteral("QObject"), 15},
        {QStringLiteral("Step3Legend"), 3},
        {QStringLiteral("Step3ToolBox"), 27},
        {QStringLiteral("main"), 77}};
    EXPECT_EQ(countsOf(messages()), expected);
    EXPECT_EQ(messages().size(), 140);
}

TEST_P(Catalogue, TranslatesEveryMessage)
{
    Translation::expectAllTranslated(messages());
}

TEST_P(Catalogue, TellsNoMessageOfAContextTwice)
{
    Translation::expectNoneTwice(messages());
}

TEST_P(Catalogue, KeepsTagsPlaceHoldersAndLineBreaks)
{
    Translation::expectMarkupKept(messages());
}

TEST_P(Catalogue, KeepsSentencesAndLabels)
{
    Translation::expectFullStopsKept(messages());
}

TEST_P(Catalogue, NamesAControlInAnExplanationAsTheControlIsNamed)
{
    QMap<QString, QString> names;
    for (const Message& message : messages())
        if (message.context == QLatin1String("main"))
            names[message.source] = message.translations.constFirst();
    QStringList named;
    for (auto text = names.cbegin(); text != names.cend(); ++text) {
        QStringList expected;
        for (const QString& control : Translation::boldTexts(text.key())) {
            named.append(control);
            expected.append(names.value(control));
        }
        expected.sort();
        EXPECT_EQ(Translation::boldTexts(text.value()), expected) << text.key().toStdString();
    }
    named.removeDuplicates();
    named.sort();
    EXPECT_EQ(named.join(QStringLiteral(", ")).toStdString(),
              "Auto, Calibration Reports, Cancel, Exposure Time, Finish, Gain, Next, Save");
}

TEST_P(Catalogue, AnswersWhenCompiledAsItsSourceSays)
{
    Translation::expectCompiled(
        messages(), QStringLiteral(":/translation/ColorCalibration_%1.qm").arg(language()));
}

TEST_P(Catalogue, LeavesTheTextsOfTheScriptInEnglish)
{
    QTranslator translator;
    ASSERT_TRUE(
        translator.load(QStringLiteral(":/translation/ColorCalibration_%1.qm").arg(language())));
    EXPECT_TRUE(translator.translate("functions", "Apply initial values failed.").isNull());
    EXPECT_TRUE(
        translator.translate("QmlDataModelInterface", "Summary couldn’t be saved in ").isNull());
}

TEST(Catalogues, HaveAllTheSameMessages)
{
    const auto keys = [](const QVector<Message>& messages) {
        QStringList list;
        for (const Message& message : messages)
            list.append(message.context + QLatin1Char('|') + message.source);
        return list;
    };
    EXPECT_EQ(keys(catalogue(QStringLiteral("ja"))), keys(catalogue(QStringLiteral("ko"))));
    EXPECT_EQ(keys(catalogue(QStringLiteral("ja"))), keys(catalogue(QStringLiteral("zh"))));
}

TEST(Catalogues, HaveNoEnglishMessagesAsTheCodeHasThem)
{
    EXPECT_TRUE(catalogue(QStringLiteral("en")).isEmpty());
    EXPECT_TRUE(QFile::exists(QStringLiteral(":/translation/ColorCalibration_en.qm")));
}

TEST(Catalogues, KeepTheOlderSetWithAnEmptyGermanOne)
{
    for (const char* language : {"de", "en", "ja", "ko", "zh"})
        EXPECT_TRUE(
            QFile::exists(QStringLiteral(":/ColCal/languages/ColorCorrectionToolPlugin_%1.qm")
                              .arg(QString::fromLatin1(language))))
            << language;
    for (const char* language : {"de", "en"})
        EXPECT_TRUE(olderCatalogue(language).isEmpty()) << language;
}

TEST_P(Catalogue, OfTheOlderSetHasItsTwoContexts)
{
    const QVector<Message> older = olderCatalogue(GetParam());
    const QMap<QString, int> expected{{QStringLiteral("ColorCorrectionToolPlugin"), 2},
                                      {QStringLiteral("functions"), 4}};
    EXPECT_EQ(countsOf(older), expected);
    Translation::expectAllTranslated(older);
    Translation::expectMarkupKept(older);
    Translation::expectCompiled(
        older,
        QStringLiteral(":/ColCal/languages/ColorCorrectionToolPlugin_%1.qm").arg(language()));
}
