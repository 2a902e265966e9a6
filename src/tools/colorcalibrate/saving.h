// SPDX-License-Identifier: Apache-2.0
// What "calibrate" leaves behind: files and a user set of the camera.
#pragma once

#include "colorcorrectionmodel.h"
#include "commandline.h"
#include "hostcamera.h"

#include <QString>

#include <functional>

namespace ColorCalibrate {

/// Empty where nothing is to be saved.
struct SavingOptions
{
    QString settingsFolder;
    QString summaryFolder;
    QString userSet; ///< as the user names it, after resolveUserSet as it is written
    bool asDefault = false;
};

void addSavingOptions(CommandLine& line);

/// \throws CommandError  "--default" without a user set; a folder that cannot be written, so that
///                       it shows before the camera is touched
SavingOptions readSavingOptions(const CommandLine& line);

/// Finds the user set of an open camera by either of its names.
/// \throws CommandError  there is none; the message names those that there are
void resolveUserSet(const Cameras::HostCameraPtr& camera, SavingOptions& options);

/// Saves in the wizard's order: settings, summary, user set.
/// \param model     open and calibrated
/// \param progress  is told each step as it begins
/// \throws CommandError  after all was tried; the message names all that could not be saved
void saveOutcome(ColorCalibration::ColorCorrectionModel& model, const SavingOptions& options,
                 const std::function<void(const QString& step)>& progress);

} // namespace ColorCalibrate
