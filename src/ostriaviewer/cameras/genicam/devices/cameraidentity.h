// SPDX-License-Identifier: Apache-2.0
// What is known of a camera before it is opened.
#pragma once

#include <QString>
#include <QVector>

namespace Cameras::GenICam {

/// A plain value; reentrant.
struct CameraIdentity
{
    QString id;               ///< what Device::open takes: IP address, or the library's name of it
    QString modelName;        ///< empty: not known
    QString serialNumber;     ///< empty: not known
    bool isOnNetwork = false; ///< else on USB

    /// The name for lists.
    QString displayName() const
    {
        if (modelName.isEmpty())
            return id;
        const QString mark = serialNumber.isEmpty() ? id : serialNumber;
        return QStringLiteral("%1 (%2)").arg(modelName, mark);
    }
};

inline bool operator==(const CameraIdentity& one, const CameraIdentity& other)
{
    return one.id == other.id && one.modelName == other.modelName &&
           one.serialNumber == other.serialNumber && one.isOnNetwork == other.isOnNetwork;
}

/// What a camera calls itself, which may be anything, in one line that can be shown anywhere.
inline QString shownName(const QString& name)
{
    QString shown;
    for (const QChar character : name.simplified())
        shown.append(character.isPrint() || character.isSurrogate() ? character : QChar(0xFFFD));
    return shown;
}

/// A network camera of which only the address is known.
inline CameraIdentity cameraAt(const QString& address)
{
    return {address, {}, {}, true};
}

} // namespace Cameras::GenICam
