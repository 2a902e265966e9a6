// SPDX-License-Identifier: Apache-2.0
// What any part of the program tells people of a camera that fails.
#pragma once

#include "coreexport.h"

#include <QCoreApplication>
#include <QString>

namespace Core::CameraPoolComponents {

/// Sentences in the language of the viewer, whose catalogues have them: they are for a part that
/// has no catalogue of its own, or one that takes no more messages. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT CameraTexts
{
    Q_DECLARE_TR_FUNCTIONS(Core::CameraPoolComponents::CameraTexts)

public:
    /// The camera gives no reason of its own.
    static QString notOpened();

    /// Nothing can be tried again.
    static QString settingsNotRestored();

    /// The user may try again or give up.
    static QString settingsNotRestoredYet();
    static QString settingsNotBackedUp();

    /// Nobody but the camera knows.
    static QString userSetUncertain(const QString& userSet);
};

} // namespace Core::CameraPoolComponents
