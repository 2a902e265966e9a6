// SPDX-License-Identifier: Apache-2.0
// What "calibrate" leaves behind: files and a user set of the camera.
#pragma once

#include "colorcorrectionmodel.h"
#include "commandline.h"
#include "hostcamera.h"

#include <QString>
#include <QStringList>

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

struct SavingOutcome
{
    bool isCancelled = false;  ///< before the user set: the camera keeps nothing
    bool isCameraLost = false; ///< before or while it was saved
    QStringList folders;       ///< that settings and summary were saved into
    QStringList failures;      ///< what could not be saved, with the reasons
    QString uncertainUserSet;  ///< nobody knows whether it was stored; empty if it is known
};

bool isAllSaved(const SavingOutcome& outcome);

/// What could not be saved for certain, and whether the camera is still calibrated. Something must
/// be left unsaved.
QString unsavedMessage(const SavingOutcome& outcome);

/// Saves in the wizard's order: settings, summary, user set; one that fails keeps none of the
/// others from being tried. Nothing is saved any more once it was cancelled; a user set that is
/// being stored is the end, and can be cancelled no more.
/// \param model        open and calibrated
/// \param progress     is told each step as it begins
/// \param isCancelled  is asked between the steps
SavingOutcome saveOutcome(ColorCalibration::ColorCorrectionModel& model,
                          const SavingOptions& options,
                          const std::function<void(const QString& step)>& progress,
                          const std::function<bool()>& isCancelled);

} // namespace ColorCalibrate
