// SPDX-License-Identifier: Apache-2.0
// The texts of the wizard's frame, which the translations are found by: to the letter.
#pragma once

#include <utility>

constexpr std::pair<const char*, const char*> wizardTexts[] = {
    {"tStep1", "Position Grid"},
    {"tStep2", "Adjust Brightness"},
    {"tStep3", "Review Calibration Results"},
    {"tStep4", "Save Calibration Results"},
    {"tPrev", "Back"},
    {"tNext", "Next"},
    {"tFinish", "Finish"},
    {"tCancel", "Cancel"},
    {"tCancelWarning", "If you cancel the color calibration, any changes you made will be lost. "
                       "The original settings will be restored. \nDo you really want to cancel?"},
    {"tLiveView", "Live View"},
    {"tTextShowGrid", "Show Grid"},
    {"tTextShowGridTooltip", "Show/hide grid pattern."},
    {"tShowAutoRefresh", "Continuous Shot"},
    {"tShowAutoRefreshTooltip", "Continuously capture five images per second."},
    {"tSelectedCamera", "Selected Camera: "},
    {"tPreviousCalibration", "Load camera settings"},
    {"tPreviousCalibrationTooltip",
     "Load camera settings that were saved in a .cst file in a previous session."},
    {"tAdjustGridExplanation",
     "To manually change the size and position of the grid, use the handles provided. The grid "
     "must be at least the same size as the color chart.<br>Click <b>Next</b> to confirm the "
     "position of the grid."},
    {"tAutoChartFinder", "Auto-position Grid"},
    {"tAutoChartFinderTooltip", "Automatically position the grid over the color chart."},
    {"tAuto", "Auto"},
    {"tAutoTooltip", "Automatically adjust the exposure time and the gain once."},
    {"tStep2Explanation",
     "Change the <b>Exposure Time</b> and <b>Gain</b> settings, using the sliders or the arrow "
     "keys of your keyboard, to adjust the brightness in the image (the needle should point to the "
     "green section of the dial). Clicking the <b>Auto</b> button will adjust the settings "
     "automatically. The image is temporarily displayed in grayscale to achieve an optimal "
     "calibration result. Any changes you make here will immediately change the camera’s settings. "
     "Click <b>Next</b> to start the calibration."},
    {"tGrabPicture", "Single Shot"},
    {"tGrabPictureTooltip", "Capture a single image."},
    {"tExposureTime", "Exposure Time"},
    {"tExposureTimeTooltip", "Set the exposure time."},
    {"tGain", "Gain"},
    {"tGainTooltip", "Set the gain."},
    {"tSaveCalibration", "Save camera settings to file"},
    {"tSaveCalibrationTooltip", "Save camera settings as .cst file."},
    {"tSaveSummary", "Save calibration summary"},
    {"tSaveSummaryTooltip", "Save camera settings, images, and the calibration report."},
    {"tStep4Explanation",
     "Use the slider to compare the colors in the image before and after calibration. Click "
     "<b>Save</b> to save all selected files and settings. Click <b>Finish</b> to complete the "
     "calibration. If you click <b>Cancel</b>, the original settings will be restored."},
    {"tSaveSettings", "Save"},
    {"tSaveSettingsTooltip", "Execute all selected save options."},
    {"tSaveSettingsAsUserSet", "Save camera settings in user set"},
    {"tSaveSettingsAsUserSetTooltip", "Save camera settings in a user set."},
    {"tSaveSettingsAsDefault", "Save settings as default"},
    {"tSaveSettingsAsDefaultTooltip", "Save settings as default."},
    {"tValueSummaries", "Calibration Reports"},
    {"tValueSummariesTooltip",
     "Show an overview of the original and new camera settings by parameter."},
    {"tCompareCalibratedExplanation",
     "Review the color values in the above image by moving the mouse over the patches in the grid. "
     "To display an overview of the values of a certain parameter, pick an item in the "
     "<b>Calibration Reports</b> list. Click <b>Next</b> to continue with these values."},
    {"tLut", "To use the Color Calibrator, the LUT had to be disabled. Using a LUT and the Color "
             "Calibrator at the same time, would adversely affect the color calibration."},
    {"tTargetValue", "1 - Target Value"},
    {"tOriginalValue", "2 - Original Value"},
    {"tCalibratedValue", "3 - Current Value"},
    {"tNone", "None"},
    {"tSkalaTooltip", "Shows whether the target value for calibration has been reached."},
    {"tTooBright", "Too bright"},
    {"tTooDark", "Too dark"},
    {"tJustRight", "Just right"},
    {"tImageOverlayTooltip",
     "Use the slider to compare the colors in images before and after calibration."},
    {"tBeforeCalibration", "Before Calibration"},
    {"tAfterCalibration", "After Calibration"},
    {"tAutoCalibration", "Recalibrate Camera"},
    {"tAutoCalibrationToolTip", "Automatically recalibrate the camera."},
    {"tMsgHeader", "Color Calibrator"},
    {"tAutoAdjustValuesImpossible", "Autoadjust values <br> impossible!"},
    {"tMsgErrImageSizeTooSmall",
     "The image size is too small to achieve a good calibration result. Ideally, the color checker "
     "should fill the whole image view area."},
    {"tMsgErrImageTooDark", "The image is too dark and the calibration failed. Adjust the exposure "
                            "time and the gain to achieve optimum brightness.<br>"},
    {"tMsgErrImageTooBright", "The image is too bright and the calibration failed. Adjust the "
                              "exposure time and the gain to achieve optimum brightness.<br>"},
    {"tMsgErrSelectSaveOption", "You haven’t selected any of the save options. To save settings or "
                                "results, select one of the available options.<br>"},
    {"tMsgErrSaveToFilePath", "Couldn't save settings to file path!<br>"},
    {"tMsgErrSaveSummary", "Couldn't save summary!<br>"},
    {"tMsgErrSaveUserSet", "Couldn't store settings in user set: "},
    {"tWarningAutoChartFailed", "Grid could not be positioned automatically."},
    {"tMsgWarningImageTooDark", "The image is too dark. Adjust the exposure time and the gain to "
                                "achieve optimum brightness.<br>"},
    {"tMsgWarningImageTooBright", "The image is too bright. Adjust the exposure time and the gain "
                                  "to achieve optimum brightness.<br>"},
    {"tMsgWarningImageTooBrightOrTooDark",
     "The calibration process failed because the image is either too bright or too dark. Adjust "
     "the brightness and try again."},
    {"tSource", "Source"},
    {"tBlue", "Blue"},
    {"tGreen", "Green"},
    {"tRed", "Red"},
    {"tMagenta", "Magenta"},
    {"tYellow", "Yellow"},
    {"tCyan", "Cyan"},
};
