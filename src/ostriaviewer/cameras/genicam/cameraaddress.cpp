// SPDX-License-Identifier: Apache-2.0
// Addresses of network cameras as people write them.
#include "cameraaddress.h"

#include <QRegularExpression>
#include <QStringList>

namespace Cameras::GenICam {

// Most parsers take "1.2" and the octal "010.0.0.1" as well, of which people mean something else.
std::optional<std::uint32_t> addressNumber(const QString& text)
{
    constexpr std::uint32_t everybody = 0xffffffff;
    constexpr std::uint32_t firstGroup = 0xe0000000;
    constexpr std::uint32_t lastGroup = 0xefffffff;
    static const QRegularExpression form(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
    const QString trimmed = text.trimmed();
    if (!form.match(trimmed).hasMatch())
        return {};
    std::uint32_t number = 0;
    for (const QString& part : trimmed.split(QLatin1Char('.'))) {
        if (part.toUInt() > 255)
            return {};
        number = number << 8 | part.toUInt();
    }
    if (number == 0 || number == everybody || (number >= firstGroup && number <= lastGroup))
        return {};
    return number;
}

QString cameraAddress(const QString& text)
{
    const auto number = addressNumber(text);
    if (!number)
        return {};
    return QStringLiteral("%1.%2.%3.%4")
        .arg(*number >> 24)
        .arg(*number >> 16 & 0xff)
        .arg(*number >> 8 & 0xff)
        .arg(*number & 0xff);
}

} // namespace Cameras::GenICam
