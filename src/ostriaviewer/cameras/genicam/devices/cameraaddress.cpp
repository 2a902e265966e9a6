// SPDX-License-Identifier: Apache-2.0
// Addresses of network cameras as people write them.
#include "cameraaddress.h"

#include <QHostAddress>
#include <QRegularExpression>
#include <QStringList>

namespace Cameras::GenICam {

// Qt takes "1.2" and "010.0.0.1" as addresses as well, of which people mean something else.
QString cameraAddress(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^\\d{1,3}(\\.\\d{1,3}){3}$"));
    const QString trimmed = text.trimmed();
    if (!form.match(trimmed).hasMatch())
        return {};
    quint32 number = 0;
    for (const QString& part : trimmed.split(QLatin1Char('.'))) {
        if (part.toUInt() > 255)
            return {};
        number = number << 8 | part.toUInt();
    }
    const QHostAddress address(number);
    const bool isOne = number != 0 && !address.isBroadcast() && !address.isMulticast();
    return isOne ? address.toString() : QString();
}

} // namespace Cameras::GenICam
