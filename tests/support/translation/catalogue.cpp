// SPDX-License-Identifier: Apache-2.0
// A catalogue of messages as its source file tells it.
#include "catalogue.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace Translation {
namespace {

QStringList readTranslations(QXmlStreamReader& xml, bool isPlural)
{
    if (!isPlural)
        return {xml.readElementText()};
    QStringList forms;
    while (xml.readNextStartElement())
        forms.append(xml.readElementText());
    return forms;
}

Message readMessage(QXmlStreamReader& xml, const QString& context)
{
    Message message;
    message.context = context;
    message.isPlural = xml.attributes().hasAttribute(QStringLiteral("numerus"));
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            message.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            message.isFinished = !xml.attributes().hasAttribute(QStringLiteral("type"));
            message.translations = readTranslations(xml, message.isPlural);
        } else {
            xml.skipCurrentElement();
        }
    }
    return message;
}

void readContext(QXmlStreamReader& xml, QVector<Message>& messages)
{
    QString name;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("name"))
            name = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            messages.append(readMessage(xml, name));
        else
            xml.skipCurrentElement();
    }
}

} // namespace

std::ostream& operator<<(std::ostream& out, const Message& message)
{
    return out << message.context.toStdString() << ": \"" << message.source.toStdString() << '"';
}

QVector<Message> readCatalogue(const QString& path)
{
    QVector<Message> messages;
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    QXmlStreamReader xml(&file);
    xml.readNextStartElement();
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("context"))
            readContext(xml, messages);
        else
            xml.skipCurrentElement();
    }
    EXPECT_FALSE(xml.hasError()) << path.toStdString() << ": " << xml.errorString().toStdString();
    return messages;
}

} // namespace Translation
