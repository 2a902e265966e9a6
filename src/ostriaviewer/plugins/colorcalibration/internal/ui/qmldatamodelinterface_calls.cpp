// SPDX-License-Identifier: Apache-2.0
// What the scene of the wizard asks of the model.
#include "qmldatamodelinterface.h"

#include "baseexception.h"
#include "cameratexts.h"
#include "colorcorrectionmodel.h"
#include "guarded.h"
#include "originalimageprovider.h"
#include "qmlostriacamera.h"
#include "settingsfile.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QtConcurrent>

#include <algorithm>
#include <optional>
#include <utility>

using Core::CameraPoolComponents::CameraTexts;

namespace ColorCalibration {
namespace {

/// Shows the busy cursor while it lives.
class BusyCursor
{
public:
    BusyCursor() { QApplication::setOverrideCursor(Qt::BusyCursor); }
    ~BusyCursor() { QApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(QmlDataModelInterface)
};

QString compactText(const QJsonObject& object)
{
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

} // namespace

void QmlDataModelInterface::updateTrapezoidList()
{
    m_grid.update();
}

void QmlDataModelInterface::grabOriginalImage()
{
    if (!m_view)
        return;
    m_imageProvider->grabInitialImage();
    emit originalImageUrlChanged();
}

bool QmlDataModelInterface::loadSettings(QString cstString)
{
    const auto text =
        guarded("", "QmlDataModelInterface::loadSettings", std::optional<QString>(), [&cstString] {
            QFile file(cstString);
            if (!file.open(QIODevice::ReadOnly))
                throw Core::Exception::BaseException(
                    QStringLiteral("%1: %2").arg(cstString, file.errorString()));
            return readSettingsText(file);
        });
    return text && m_model->AreOwnSettings(*text) && m_model->LoadSettings(*text);
}

void QmlDataModelInterface::cancel()
{
    giveSettingsBack();
    emit signalCancel();
}

void QmlDataModelInterface::abandon()
{
    giveSettingsBack();
}

void QmlDataModelInterface::giveSettingsBack()
{
    m_model->StopGrabbing();
    if (!restoreSettingsBackup(false) || isBackupOwed())
        noteClosingProblem(CameraTexts::settingsNotRestored());
    noteUncertainUserSet();
}

void QmlDataModelInterface::noteUncertainUserSet()
{
    const QString userSet = m_model->UncertainUserSet();
    if (userSet.isEmpty())
        return;
    const QString problem = CameraTexts::userSetUncertain(userSet);
    LogMessage(problem, Core::Logging::Error);
    noteClosingProblem(problem);
}

void QmlDataModelInterface::noteClosingProblem(const QString& problem)
{
    if (!m_closingProblems.contains(problem))
        m_closingProblems.append(problem);
}

QString QmlDataModelInterface::takeClosingProblem()
{
    return std::exchange(m_closingProblems, {}).join(QStringLiteral("\n\n"));
}

void QmlDataModelInterface::finish()
{
    m_model->StopGrabbing();
    // What a calibration that failed has left must not pass for the result of one.
    if (isBackupOwed()) {
        LogMessage(CameraTexts::settingsNotRestored(), Core::Logging::Error);
        noteClosingProblem(CameraTexts::settingsNotRestored());
    }
    noteUncertainUserSet();
    emit signalFinished();
}

bool QmlDataModelInterface::setNeutralSettings()
{
    m_calibrationResults = QJsonObject();
    return m_model->SetNeutralSettings();
}

bool QmlDataModelInterface::tellOutcome(bool success, const QString& whenDone,
                                        const QString& whenFailed, const QString& target)
{
    if (success)
        emit forwardLogMessage(whenDone + target, Core::Logging::Information);
    else
        emit forwardLogMessage(whenFailed + target, Core::Logging::Error);
    return success;
}

bool QmlDataModelInterface::saveSettingsToFilePath()
{
    const BusyCursor busy;
    if (m_calibrationFileToSave.isEmpty())
        return true;
    return tellOutcome(m_model->SaveSettingsToFile(m_calibrationFileToSave),
                       Texts::tr("Settings have been saved successfully in "),
                       Texts::tr("Settings couldn’t be saved in "), m_calibrationFileToSave);
}

bool QmlDataModelInterface::storeSettingsInUserSet(QString userSetSelectorName, bool setAsDefault)
{
    const BusyCursor busy;
    return tellOutcome(m_model->StoreSettingsInUserSet(userSetSelectorName, setAsDefault),
                       Texts::tr("Settings were saved successfully in "),
                       Texts::tr("Settings couldn’t be saved in "), userSetSelectorName);
}

bool QmlDataModelInterface::saveSummaryToFilePath()
{
    const BusyCursor busy;
    if (m_summaryFileToSave.isEmpty())
        return true;
    return tellOutcome(m_model->SaveSummaryToFile(m_summaryFileToSave),
                       Texts::tr("Summary has been saved successfully in "),
                       Texts::tr("Summary couldn’t be saved in "), m_summaryFileToSave);
}

void QmlDataModelInterface::getGridPosition()
{
    m_grid.setOutline(m_model->GetGridPosition());
}

bool QmlDataModelInterface::restoreSettingsBackup(bool intialImage)
{
    const bool restored = m_model->RestoreSettingsBackup(intialImage);
    if (!intialImage && (!restored || isBackupOwed()))
        LogMessage(CameraTexts::settingsNotRestored(), Core::Logging::Error);
    return restored;
}

bool QmlDataModelInterface::isBackupOwed() const
{
    return m_model->IsBackupOwed();
}

QString QmlDataModelInterface::restoreProblem() const
{
    return CameraTexts::settingsNotRestoredYet();
}

QString QmlDataModelInterface::backupProblem() const
{
    return CameraTexts::settingsNotBackedUp();
}

bool QmlDataModelInterface::createSettingsBackup(bool intialImage)
{
    const bool created = m_model->CreateSettingsBackup(intialImage);
    if (!created)
        LogMessage(CameraTexts::settingsNotBackedUp(), Core::Logging::Error);
    return created;
}

bool QmlDataModelInterface::restoreDetectedExposureAndGain()
{
    return m_model->RestoreDetectedExposureAndGain();
}

bool QmlDataModelInterface::storeDetectedExposureAndGain()
{
    return m_model->StoreDetectedExposureAndGain();
}

QString QmlDataModelInterface::getAvailableUserSets()
{
    return compactText(m_model->GetAvailableUserSetsJson());
}

QString QmlDataModelInterface::getCalibrationsResultsJson()
{
    return compactText(m_calibrationResults);
}

bool QmlDataModelInterface::autoAdjustGray80PercentPatch()
{
    return m_model->AutoAdjustGray80PercentPatch();
}

bool QmlDataModelInterface::executeCalibrationAndApply()
{
    return m_model->ExecuteCalibrationAndApply();
}

bool QmlDataModelInterface::executeWhitebalance()
{
    return m_model->ExecuteWhitebalance();
}

void QmlDataModelInterface::activateMonoImage()
{
    m_model->ActivateMonoImage();
}

bool QmlDataModelInterface::applyInitialColorPatchValues()
{
    return m_model->ApplyInitialColorPatchValues();
}

bool QmlDataModelInterface::applyInitialCameraImageAndPatchValues()
{
    return m_model->ApplyInitialCameraImageAndPatchValues();
}

void QmlDataModelInterface::disableAutoFunctions()
{
    m_model->DisableAutoFunctions();
}

void QmlDataModelInterface::forceReload()
{
    emit activeStepChanged();
}

void QmlDataModelInterface::findChart()
{
    beginBusyCursor();
    endChartSearch(searchChart(), m_scene, m_activeStep);
}

void QmlDataModelInterface::findChartAsync()
{
    m_camera->setBusyIndication(true);
    beginBusyCursor();
    const auto isDone = [](const QFuture<void>& search) {
        return search.isFinished();
    };
    m_searches.erase(std::remove_if(m_searches.begin(), m_searches.end(), isDone),
                     m_searches.end());
    // The pool grabs and searches alone. Outline, list and cursor belong to the GUI thread, where
    // the pages read them at any time.
    m_searches.append(QtConcurrent::run([this, scene = m_scene, step = m_activeStep] {
        const ChartSearch search = searchChart();
        QMetaObject::invokeMethod(
            this, [this, search, scene, step] { endChartSearch(search, scene, step); },
            Qt::QueuedConnection);
    }));
}

QmlDataModelInterface::ChartSearch QmlDataModelInterface::searchChart()
{
    ChartSearch search;
    try {
        QImage image;
        search.grabbed = m_model->GrabImage(image, false);
        if (search.grabbed)
            search.result = m_chartFinder.findChart(image.copy());
    } catch (const std::exception&) {
        // Too large for the memory: the same as a chart that is not there.
        search.result = {};
    }
    return search;
}

void QmlDataModelInterface::endChartSearch(const ChartSearch& search, int scene, int step)
{
    // What was found for a scene or a step that has gone must not move the grid of the next one.
    if (search.grabbed && scene == m_scene && step == m_activeStep) {
        if (search.result.valid) {
            const PointTransformer& transformer = *m_grid.transformer();
            QmlTrapezoid& outline = *m_grid.outlineView();
            outline.setUpperLeft(transformer.toCanvas(search.result.upperLeft));
            outline.setUpperRight(transformer.toCanvas(search.result.upperRight));
            outline.setLowerLeft(transformer.toCanvas(search.result.lowerLeft));
            outline.setLowerRight(transformer.toCanvas(search.result.lowerRight));
            updateTrapezoidList();
        }
        emit autoChartFindFinished(search.result.valid);
    }
    m_camera->setBusyIndication(false);
    endBusyCursor();
}

void QmlDataModelInterface::beginBusyCursor()
{
    QApplication::setOverrideCursor(Qt::BusyCursor);
    ++m_busyCursors;
}

void QmlDataModelInterface::endBusyCursor()
{
    --m_busyCursors;
    QApplication::restoreOverrideCursor();
}

} // namespace ColorCalibration
