// SPDX-License-Identifier: Apache-2.0
// What the viewer and its cameras say is in every catalogue, whole and with its markup.
#include "cataloguechecks.h"
#include "usedtexts.h"

#include <gtest/gtest.h>

using Translation::Message;
using Translation::Text;

namespace {

QString sourceOf(const QString& language)
{
    return QStringLiteral(OSTRIA_VIEWER_SOURCES "/app/resources/translation/ostriaviewer_%1.ts")
        .arg(language);
}

QString compiled(const QString& language)
{
    return QStringLiteral(":/ostriaviewer/translation/ostriaviewer_%1.qm").arg(language);
}

/// Plugins bring their own.
QSet<Text> textsOfViewer()
{
    return Translation::textsOfCode({QStringLiteral(OSTRIA_VIEWER_SOURCES "/app"),
                                     QStringLiteral(OSTRIA_VIEWER_SOURCES "/cameras"),
                                     QStringLiteral(OSTRIA_VIEWER_SOURCES "/core")});
}

class ViewerCatalogue : public testing::TestWithParam<const char*>
{
protected:
    QString language() const { return QString::fromLatin1(GetParam()); }
    QVector<Message> messages() const { return Translation::readCatalogue(sourceOf(language())); }
};

INSTANTIATE_TEST_SUITE_P(Languages, ViewerCatalogue, testing::Values("ja", "ko", "zh"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace

TEST_P(ViewerCatalogue, HasTheTextsOfTheCodeAndNoOthers)
{
    const QSet<Text> used = textsOfViewer();
    const QSet<Text> known = Translation::textsOf(sourceOf(language()));
    EXPECT_FALSE(used.isEmpty());
    EXPECT_TRUE((used - known).isEmpty())
        << "missing; run scripts/update-catalogues and translate:\n"
        << Translation::listed(used - known);
    EXPECT_TRUE((known - used).isEmpty()) << "unused; run scripts/update-catalogues:\n"
                                          << Translation::listed(known - used);
}

TEST_P(ViewerCatalogue, TranslatesEveryMessageOnce)
{
    Translation::expectAllTranslated(messages());
    Translation::expectNoneTwice(messages());
}

TEST_P(ViewerCatalogue, KeepsMarkupMnemonicsAndSentences)
{
    Translation::expectMarkupKept(messages());
    Translation::expectMnemonicsInBrackets(messages());
    Translation::expectFullStopsKept(messages());
}

TEST_P(ViewerCatalogue, AnswersWhenCompiledAsItsSourceSays)
{
    Translation::expectCompiled(messages(), compiled(language()));
}

TEST(EnglishViewerCatalogue, HasBothFormsOfWhatDependsOnANumberAndNothingElse)
{
    const QVector<Message> english = Translation::readCatalogue(sourceOf(QStringLiteral("en")));
    QSet<QString> plurals;
    for (const Message& message : Translation::readCatalogue(sourceOf(QStringLiteral("ja"))))
        if (message.isPlural)
            plurals.insert(message.source);
    EXPECT_EQ(english.size(), plurals.size());
    for (const Message& message : english) {
        EXPECT_TRUE(plurals.contains(message.source)) << message;
        ASSERT_EQ(message.translations.size(), 2) << message;
        EXPECT_NE(message.translations.constFirst(), message.translations.constLast()) << message;
    }
    Translation::expectAllTranslated(english);
    Translation::expectMarkupKept(english);
    Translation::expectCompiled(english, compiled(QStringLiteral("en")));
}
