// SPDX-License-Identifier: Apache-2.0
// What any part of the program tells people of a camera that fails.
#include "cameratexts.h"

namespace Core::CameraPoolComponents {

QString CameraTexts::notOpened()
{
    return tr("The camera could not be opened. Close it in other programs, open it in the viewer, "
              "then try again.");
}

QString CameraTexts::settingsNotRestored()
{
    return tr("The camera's original settings couldn't be restored. Load them from a user set or a "
              "settings file.");
}

QString CameraTexts::settingsNotRestoredYet()
{
    return tr("The camera's original settings couldn't be restored. Check the connection of the "
              "camera and try again, or cancel.");
}

QString CameraTexts::settingsNotBackedUp()
{
    return tr("The camera's settings couldn't be backed up. Check the connection of the camera and "
              "try again, or cancel.");
}

QString CameraTexts::userSetUncertain(const QString& userSet)
{
    return tr("The connection to the camera was lost while its settings were being stored in the "
              "user set \"%1\". Whether it holds the new settings is not known. Open the camera "
              "again and check it, and which user set the camera starts with.")
        .arg(userSet);
}

} // namespace Core::CameraPoolComponents
