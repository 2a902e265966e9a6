// SPDX-License-Identifier: Apache-2.0
// Settings files that a user has chosen.
#pragma once

#include "iparametercollection.h"

#include <QIODevice>
#include <QString>
#include <QVector>

namespace ColorCalibration {

/// The text of a settings file, UTF-8, at least one line of which is a setting. Reentrant.
/// \param device  open for reading; need not tell its size nor ever end
/// \throws Core::Exception::BaseException  it cannot be read, is longer than such a file can be, is
///                                         no text, or has no setting
QString readSettingsText(QIODevice& device);

/// What stands before the tab in each line that is a setting. Reentrant.
QVector<QString> settingNames(const QString& text);

/// Whether the camera has the feature of at least one setting, and it is no command. Reentrant.
bool hasOwnSettings(const QString& text,
                    Core::ParameterCollection::IParameterCollection& parameters);

} // namespace ColorCalibration
