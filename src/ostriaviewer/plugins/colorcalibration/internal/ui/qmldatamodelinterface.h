// SPDX-License-Identifier: Apache-2.0
// Everything that the wizard's scene calls.
#pragma once

#include "colorcorrectionautochartfinder.h"
#include "logging.h"
#include "qmlexposuretime.h"
#include "qmlgainvalue.h"
#include "qmltrapezoidlist.h"

#include <QFuture>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QQmlError>
#include <QQuickView>
#include <QString>
#include <QVector>

#include <memory>

namespace ColorCalibration {

class ColorCorrectionModel;
class OriginalImageProvider;
class QMLOstriaCamera;

/// Owns the view with the scene and the objects that the scene sees, forwards its calls to the
/// model and the model's signals to it. Failures are told by return values; no exception leaves
/// anything here. Thread-bound: GUI thread; signals are emitted there too, whichever thread the
/// model emits on.
class QmlDataModelInterface : public QObject
{
    Q_OBJECT
    /// Step of the wizard, 1 to 4. Every write is announced, also of the same step.
    Q_PROPERTY(int activeStep READ activeStep WRITE setActiveStep NOTIFY activeStepChanged)
    /// The image before calibration; changes whenever a new one was fetched.
    Q_PROPERTY(QString originalImageUrl READ originalImageUrl NOTIFY originalImageUrlChanged)
    /// Brightness of the gray patch in percent of its goal; 1000 as long as there is none.
    Q_PROPERTY(
        double gray80PercentHitRate READ gray80PercentHitRate NOTIFY gray80PercentHitRateChanged)
    /// Paths, empty where nothing is chosen.
    Q_PROPERTY(QString previousCalibrationFile READ previousCalibrationFile WRITE
                   setPreviousCalibrationFile NOTIFY previousCalibrationFileChanged)
    Q_PROPERTY(QString calibrationFileToSave READ calibrationFileToSave WRITE
                   setCalibrationFileToSave NOTIFY calibrationFileToSaveChanged)
    Q_PROPERTY(QString summaryFileToSave READ summaryFileToSave WRITE setSummaryFileToSave NOTIFY
                   summaryFileToSaveChanged)
    Q_PROPERTY(bool showGrid READ showGrid WRITE setShowGrid NOTIFY showGridChanged)
    /// True until the scene has fetched the saved grid.
    Q_PROPERTY(bool initial READ initial WRITE setInitial NOTIFY initialChanged)
    Q_PROPERTY(bool singleShotEnabled READ singleShotEnabled WRITE setSingleShotEnabled NOTIFY
                   singleShotEnabledChanged)
    /// The results of the last calibration as JSON text.
    Q_PROPERTY(QString calibrationsResultsJson READ getCalibrationsResultsJson NOTIFY
                   calibrationsResultsJsonChanged)
    /// Whether the wizard offers to calibrate again by itself, for exhibitions.
    Q_PROPERTY(bool useAutoCalibration READ useAutoCalibration NOTIFY useAutoCalibrationChanged)
    /// URL of the user's documents, where file dialogs begin.
    Q_PROPERTY(QString ostriaStandardLocation READ ostriaStandardLocation NOTIFY
                   ostriaStandardLocationChanged)

public:
    /// Loads the scene.
    /// \param model  lent for the life of this object
    explicit QmlDataModelInterface(ColorCorrectionModel* model);

    /// Waits for a search for the chart that is under way.
    ~QmlDataModelInterface() override;

    int activeStep() const { return m_activeStep; }
    QString originalImageUrl() const;
    double gray80PercentHitRate() const { return m_gray80PercentHitRate; }
    QString previousCalibrationFile() const { return m_previousCalibrationFile; }
    QString calibrationFileToSave() const { return m_calibrationFileToSave; }
    QString summaryFileToSave() const { return m_summaryFileToSave; }
    bool showGrid() const { return m_showGrid; }
    bool initial() const { return m_initial; }
    bool singleShotEnabled() const { return m_singleShotEnabled; }
    bool useAutoCalibration() const;
    QString ostriaStandardLocation() const;

    void setActiveStep(int activeStep);
    void setPreviousCalibrationFile(const QString& path);
    void setCalibrationFileToSave(const QString& path);
    void setSummaryFileToSave(const QString& path);
    void setShowGrid(bool showGrid);
    void setInitial(bool initial);
    void setSingleShotEnabled(bool singleShotEnabled);

    Q_INVOKABLE void updateTrapezoidList();
    Q_INVOKABLE void grabOriginalImage();

    /// \param cstString  path of a settings file
    /// \return  false if it cannot be read or applied
    Q_INVOKABLE bool loadSettings(QString cstString);

    /// Ends the wizard: with the camera's settings as they were, or as they are now.
    Q_INVOKABLE void cancel();
    Q_INVOKABLE void finish();

    Q_INVOKABLE bool setNeutralSettings();

    /// Save what was chosen; nothing chosen counts as success. The outcome also goes to the log.
    Q_INVOKABLE bool saveSettingsToFilePath();
    Q_INVOKABLE bool storeSettingsInUserSet(QString userSetSelectorName, bool setAsDefault = false);
    Q_INVOKABLE bool saveSummaryToFilePath();

    /// Takes the model's outline over into gridOutline; nobody is told.
    Q_INVOKABLE void getGridPosition();

    /// \param intialImage  which backup: that of the image before calibration, or that with which
    ///                     the camera is given back
    Q_INVOKABLE bool restoreSettingsBackup(bool intialImage = false);
    Q_INVOKABLE bool createSettingsBackup(bool intialImage = false);

    /// Whether the camera may hold other settings than the backup with which it is given back,
    /// although no calibration was written since.
    Q_INVOKABLE bool isBackupOwed() const;

    /// Texts for people, in their language: a backup could not be written to the camera, or made.
    Q_INVOKABLE QString restoreProblem() const;
    Q_INVOKABLE QString backupProblem() const;
    Q_INVOKABLE bool restoreDetectedExposureAndGain();
    Q_INVOKABLE bool storeDetectedExposureAndGain();

    /// \return  JSON text
    Q_INVOKABLE QString getAvailableUserSets();
    Q_INVOKABLE QString getCalibrationsResultsJson();

    /// Returns at once; autoAdjustGray80PercentPatchFinished follows.
    Q_INVOKABLE bool autoAdjustGray80PercentPatch();

    /// The results and calibrationFinished are there when it returns true.
    Q_INVOKABLE bool executeCalibrationAndApply();
    Q_INVOKABLE bool executeWhitebalance();
    Q_INVOKABLE void activateMonoImage();
    Q_INVOKABLE bool applyInitialColorPatchValues();
    Q_INVOKABLE bool applyInitialCameraImageAndPatchValues();
    Q_INVOKABLE void disableAutoFunctions();
    Q_INVOKABLE void forceReload();

    /// Puts the grid on the chart in a new image. autoChartFindFinished follows, unless there is no
    /// image. The second returns at once and searches on a thread of the pool.
    Q_INVOKABLE void findChart();
    Q_INVOKABLE void findChartAsync();

    /// Everything as at the beginning, with the scene loaded again.
    void resetScene();

    /// Null once a dialog that took it over has ended.
    QQuickView* view() const { return m_view; }
    ColorCorrectionModel* model() const { return m_model; }
    QMLOstriaCamera* camera() const { return m_camera.get(); }

    /// Gives the camera its settings back although the user neither canceled nor finished.
    void abandon();

    /// Text for people if the camera could not be given its settings back, or if nobody knows what
    /// one of its user sets holds; else empty. A read empties it.
    QString takeClosingProblem();

    /// Why the scene cannot be shown, for people; empty if it can.
    QString sceneProblem() const { return m_sceneProblem; }

public slots:
    void onCameraRemoved();
    void onCalibrationFinished();
    void onGray80PercentHitRateChanged(double hitRate);
    void onAutoAdjustGray80PercentPatchFinished();
    void LogMessage(QString message, Core::Logging::ELogLevel logLevel);

signals:
    void signalCancel();
    void signalFinished();
    void activeStepChanged();
    void originalImageUrlChanged();
    void gray80PercentHitRateChanged(double hitRate);
    void previousCalibrationFileChanged();
    void calibrationFileToSaveChanged();
    void summaryFileToSaveChanged();
    void showGridChanged();
    void initialChanged();
    /// The dialog has ended.
    void cleanupQML();
    void autoAdjustGray80PercentPatchFinished();
    void autoChartFindFinished(bool valid);
    void calibrationFinished();
    void calibrationsResultsJsonChanged();
    void useAutoCalibrationChanged();
    void ostriaStandardLocationChanged();
    void singleShotEnabledChanged();
    void forwardCameraRemoved();
    void forwardImageGrabFailed();
    void forwardLogMessage(QString message, Core::Logging::ELogLevel logLevel);

    /// There is a sceneProblem, or none any more.
    void sceneProblemChanged();

    /// The wizard will end as soon as this has been told. Comes before forwardCameraRemoved, whose
    /// message box lets everything else go on.
    void cameraLost();

private:
    struct ChartSearch
    {
        bool grabbed = false;
        ColorCorrectionAutoChartFinderResult result;
    };

    void exposeToScene();
    void connectModel();
    void loadScene();
    void checkOpenGl();
    void checkDrawing();
    void setDrawingProblem(const QString& error);
    void setSceneProblem(const QString& problem);
    void onSceneWarnings(const QList<QQmlError>& warnings);
    void giveSettingsBack();
    void noteUncertainUserSet();
    void noteClosingProblem(const QString& problem);
    bool tellOutcome(bool success, const QString& whenDone, const QString& whenFailed,
                     const QString& target);
    void dropSearches();
    ChartSearch searchChart();
    void endChartSearch(const ChartSearch& search, int scene, int step);
    void beginBusyCursor();
    void endBusyCursor();

    ColorCorrectionModel* m_model;
    std::unique_ptr<QMLOstriaCamera> m_camera;
    OriginalImageProvider* m_imageProvider;
    QmlTrapezoidList m_grid;
    QMLExposureTime m_exposure;
    QMLGainvalue m_gain;
    int m_activeStep = 1;
    bool m_showGrid = true;
    bool m_singleShotEnabled = false;
    bool m_initial = true;
    static constexpr double noHitRate = 1000.0;
    double m_gray80PercentHitRate = noHitRate;
    QJsonObject m_calibrationResults;
    QString m_previousCalibrationFile;
    QString m_calibrationFileToSave;
    QString m_summaryFileToSave;
    QPointer<QQuickView> m_view;
    ColorCorrectionAutoChartFinder m_chartFinder;
    QString m_sceneProblem;
    QString m_drawingProblem; // stays: graphics come back with the next start of the program alone
    QStringList m_closingProblems;
    QVector<QFuture<void>> m_searches;
    int m_busyCursors = 0;
    int m_scene = 0;
};

} // namespace ColorCalibration
