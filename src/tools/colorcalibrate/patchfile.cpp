// SPDX-License-Identifier: Apache-2.0
// Patch colours as text: 24 lines "R,G,B".
#include "patchfile.h"

#include "command.h"

#include <QFile>
#include <QList>

#include <array>
#include <charconv>
#include <cmath>
#include <istream>
#include <ostream>
#include <string>

using ColorCalibration::PatchColors;
using ColorCalibration::PatchCount;

namespace ColorCalibrate {
namespace {

constexpr int longestPatchText = 1 << 20;
constexpr std::array<const char*, 3> channelNames{"red", "green", "blue"};

/// Somebody else's bytes, short and printable enough for a message.
QString quoted(const QByteArray& bytes)
{
    constexpr int longest = 40;
    QString text = QString::fromUtf8(bytes.left(longest));
    for (QChar& character : text)
        if (!character.isPrint())
            character = QLatin1Char('?');
    return QStringLiteral("\"%1%2\"")
        .arg(text, bytes.size() > longest ? QStringLiteral("...") : QString());
}

/// Where a value stands, for messages.
struct Place
{
    const QString& file;
    int line;

    [[noreturn]] void fail(const QString& problem) const
    {
        throw CommandError(
            QStringLiteral("%1, line %2: %3").arg(file, QString::number(line), problem));
    }
};

double parseChannel(const QByteArray& field, int channel, const Place& place)
{
    const QByteArray text = field.trimmed();
    const QString name = QLatin1String(channelNames[static_cast<std::size_t>(channel)]);
    double value = 0.0;
    const char* end = text.constData() + text.size();
    const auto [parsedTo, error] = std::from_chars(text.constData(), end, value);
    if (error == std::errc::result_out_of_range && parsedTo == end)
        place.fail(QStringLiteral("the %1 value %2 is beyond what a number can hold")
                       .arg(name, quoted(text)));
    if (error != std::errc() || parsedTo != end)
        place.fail(QStringLiteral("the %1 value %2 is not a number").arg(name, quoted(text)));
    if (!std::isfinite(value))
        place.fail(QStringLiteral("the %1 value %2 is not finite").arg(name, quoted(text)));
    if (value < 0.0 || value > 255.0)
        place.fail(QStringLiteral("the %1 value %2 lies outside 0 to 255").arg(name, quoted(text)));
    return value;
}

QList<QByteArray> linesOf(QByteArray text)
{
    if (text.startsWith("\xEF\xBB\xBF"))
        text.remove(0, 3);
    text.replace("\r\n", "\n").replace('\r', '\n');
    QList<QByteArray> lines = text.split('\n');
    while (!lines.isEmpty() && lines.last().trimmed().isEmpty())
        lines.removeLast();
    return lines;
}

} // namespace

QString displayName(const QString& fileName)
{
    return fileName == QLatin1String("-") ? QStringLiteral("standard input") : fileName;
}

PatchColors parsePatchColors(const QByteArray& text, const QString& name)
{
    const QList<QByteArray> lines = linesOf(text);
    if (lines.isEmpty())
        throw CommandError(
            QStringLiteral("%1 is empty; 24 lines \"R,G,B\" are expected").arg(name));

    PatchColors colors;
    for (int i = 0; i < lines.size() && i < PatchCount; ++i) {
        const Place place{name, i + 1};
        const QList<QByteArray> fields = lines.at(i).split(',');
        if (fields.size() != 3)
            place.fail(QStringLiteral("three numbers \"R,G,B\" are expected, found %1")
                           .arg(quoted(lines.at(i))));
        for (int channel = 0; channel < 3; ++channel)
            colors(i, channel) = parseChannel(fields.at(channel), channel, place);
    }
    if (lines.size() != PatchCount)
        throw CommandError(
            QStringLiteral("%1 has %2 lines; the chart has %3 patches")
                .arg(name, QString::number(lines.size()), QString::number(PatchCount)));
    return colors;
}

QByteArray readPatchText(const QString& fileName, std::istream& standardInput)
{
    QByteArray text(longestPatchText + 1, '\0');
    qint64 length = 0;
    if (fileName == QLatin1String("-")) {
        standardInput.read(text.data(), text.size());
        length = standardInput.gcount();
        if (standardInput.bad())
            throw CommandError(QStringLiteral("standard input cannot be read"));
    } else {
        QFile file(fileName);
        if (!file.open(QIODevice::ReadOnly))
            throw CommandError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
        length = file.read(text.data(), text.size());
        if (length < 0)
            throw CommandError(QStringLiteral("%1: %2").arg(fileName, file.errorString()));
    }
    if (length > longestPatchText)
        throw CommandError(QStringLiteral("%1 is longer than any file of 24 patch colors; 24 lines "
                                          "\"R,G,B\" are expected")
                               .arg(displayName(fileName)));
    text.truncate(static_cast<int>(length));
    return text;
}

void writePatchColors(std::ostream& out, const PatchColors& colors)
{
    for (int i = 0; i < PatchCount; ++i) {
        for (int channel = 0; channel < 3; ++channel) {
            std::array<char, 32> text{};
            const auto end =
                std::to_chars(text.data(), text.data() + text.size(), colors(i, channel)).ptr;
            out << std::string(text.data(), end) << (channel < 2 ? "," : "\n");
        }
    }
}

} // namespace ColorCalibrate
