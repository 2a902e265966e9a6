// SPDX-License-Identifier: Apache-2.0
// What every catalogue must fulfil.
#include "cataloguechecks.h"

#include "markup.h"

#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include <gtest/gtest.h>

namespace Translation {

namespace {

/// Signs and numbers are the same in every language, and so are the names of features.
bool isSaidInWords(const QString& source)
{
    static const QRegularExpression name(QStringLiteral("Gain\\d\\d"));
    static const QRegularExpression word(QStringLiteral("[a-z]{2}"));
    return QString(source).remove(name).contains(word);
}

} // namespace

void expectAllTranslated(const QVector<Message>& messages)
{
    for (const Message& message : messages) {
        EXPECT_TRUE(message.isFinished) << "unfinished: " << message;
        EXPECT_FALSE(message.translations.isEmpty()) << message;
        for (const QString& translation : message.translations)
            EXPECT_TRUE(!translation.trimmed().isEmpty() &&
                        (translation != message.source || !isSaidInWords(message.source)))
                << "not translated: " << message;
    }
}

void expectNoneTwice(const QVector<Message>& messages)
{
    QSet<QString> seen;
    for (const Message& message : messages) {
        const QString key = message.context + QLatin1Char('\0') + message.source;
        EXPECT_FALSE(seen.contains(key)) << message;
        seen.insert(key);
    }
}

void expectMarkupKept(const QVector<Message>& messages)
{
    for (const Message& message : messages)
        for (const QString& translation : message.translations) {
            EXPECT_EQ(tags(translation), tags(message.source)) << message;
            EXPECT_EQ(placeHolders(translation), placeHolders(message.source)) << message;
            EXPECT_EQ(commandEnding(translation), commandEnding(message.source)) << message;
        }
}

void expectMnemonicsInBrackets(const QVector<Message>& messages)
{
    static const QRegularExpression atEnd(QStringLiteral("^[^&]+\\(&[A-Z]\\)(\\.\\.\\.|[:：])?$"));
    for (const Message& message : messages) {
        if (!commandEnding(message.source).contains(QLatin1Char('&')))
            continue;
        for (const QString& translation : message.translations)
            EXPECT_TRUE(translation.contains(atEnd)) << message;
    }
}

void expectFullStopsKept(const QVector<Message>& messages)
{
    for (const Message& message : messages)
        for (const QString& translation : message.translations)
            EXPECT_EQ(isSentence(translation), isSentence(message.source)) << message;
}

void expectCompiled(const QVector<Message>& messages, const QString& compiled)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(compiled)) << compiled.toStdString();
    for (const Message& message : messages) {
        const QString last = translator.translate(message.context.toUtf8().constData(),
                                                  message.source.toUtf8().constData(), nullptr,
                                                  message.isPlural ? 2 : -1);
        EXPECT_EQ(last, message.translations.constLast()) << message;
    }
}

} // namespace Translation
