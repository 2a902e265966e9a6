// SPDX-License-Identifier: Apache-2.0
// Stand-ins for the objects that the wizard sees; each notes its calls, and fails where it is told
// to.
#pragma once

#include <QAbstractVideoSurface>
#include <QColor>
#include <QHash>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QVariantList>
#include <QVector>

#include <functional>

/// Calls in the order in which they came, and those that are to answer false.
struct CallLog
{
    QStringList made;
    /// "name(arguments)", with "#2" behind it to let only the second such call fail, or the name
    /// alone for any arguments.
    QSet<QString> failing;
    /// What happens in the middle of the next such call, as in the event loop of one that waits.
    QHash<QString, std::function<void()>> during;

    bool note(const QString& call)
    {
        made << call;
        if (const auto happens = during.take(call))
            happens();
        return !failing.contains(call) && !failing.contains(call.section('(', 0, 0)) &&
               !failing.contains(QString("%1#%2").arg(call).arg(made.count(call)));
    }
};

class ModelDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int activeStep READ activeStep WRITE setActiveStep NOTIFY activeStepChanged)
    Q_PROPERTY(QString originalImageUrl MEMBER m_originalImageUrl NOTIFY originalImageUrlChanged)
    Q_PROPERTY(double gray80PercentHitRate MEMBER m_hitRate NOTIFY gray80PercentHitRateChanged)
    Q_PROPERTY(
        QString previousCalibrationFile MEMBER m_previousFile NOTIFY previousCalibrationFileChanged)
    Q_PROPERTY(QString calibrationFileToSave MEMBER m_settingsFile NOTIFY settingsFileChanged)
    Q_PROPERTY(QString summaryFileToSave MEMBER m_summaryFile NOTIFY summaryFileChanged)
    Q_PROPERTY(bool showGrid MEMBER m_showGrid NOTIFY showGridChanged)
    Q_PROPERTY(bool initial MEMBER m_initial NOTIFY initialChanged)
    Q_PROPERTY(bool singleShotEnabled MEMBER m_singleShotEnabled NOTIFY singleShotEnabledChanged)
    Q_PROPERTY(QString calibrationsResultsJson MEMBER m_results NOTIFY resultsChanged)
    Q_PROPERTY(bool useAutoCalibration MEMBER m_exhibition NOTIFY exhibitionChanged)
    Q_PROPERTY(QString ostriaStandardLocation MEMBER m_location NOTIFY locationChanged)

public:
    explicit ModelDouble(CallLog& log)
        : m_log(log)
    {}

    int activeStep() const { return m_activeStep; }
    void setActiveStep(int step);
    void setHitRate(double hitRate);

    Q_INVOKABLE bool createSettingsBackup(bool intialImage = false);
    Q_INVOKABLE bool restoreSettingsBackup(bool intialImage = false);
    Q_INVOKABLE bool isBackupOwed() const { return m_backupOwed; }
    Q_INVOKABLE QString restoreProblem() const { return QStringLiteral("not restored"); }
    Q_INVOKABLE QString backupProblem() const { return QStringLiteral("not backed up"); }
    Q_INVOKABLE bool loadSettings(const QString& path);
    Q_INVOKABLE bool setNeutralSettings() { return m_log.note("setNeutralSettings()"); }
    Q_INVOKABLE bool executeWhitebalance() { return m_log.note("executeWhitebalance()"); }
    Q_INVOKABLE void activateMonoImage() { m_log.note("activateMonoImage()"); }
    Q_INVOKABLE void disableAutoFunctions() { m_log.note("disableAutoFunctions()"); }
    Q_INVOKABLE bool storeDetectedExposureAndGain();
    Q_INVOKABLE bool restoreDetectedExposureAndGain();
    Q_INVOKABLE bool applyInitialCameraImageAndPatchValues();
    Q_INVOKABLE bool applyInitialColorPatchValues();
    Q_INVOKABLE bool executeCalibrationAndApply();
    Q_INVOKABLE bool autoAdjustGray80PercentPatch();
    Q_INVOKABLE void updateTrapezoidList() { m_log.note("updateTrapezoidList()"); }
    Q_INVOKABLE void getGridPosition() { m_log.note("getGridPosition()"); }
    Q_INVOKABLE void findChartAsync() { m_log.note("findChartAsync()"); }
    Q_INVOKABLE void grabOriginalImage();
    Q_INVOKABLE QString getAvailableUserSets() { return m_userSets; }
    Q_INVOKABLE bool saveSettingsToFilePath() { return m_log.note("saveSettingsToFilePath()"); }
    Q_INVOKABLE bool saveSummaryToFilePath() { return m_log.note("saveSummaryToFilePath()"); }
    Q_INVOKABLE bool storeSettingsInUserSet(const QString& value, bool setAsDefault = false);
    Q_INVOKABLE void cancel() { m_log.note("cancel()"); }
    Q_INVOKABLE void finish() { m_log.note("finish()"); }

    QString m_originalImageUrl = "image://cameraImageOriginal/0_0";
    double m_hitRate = 1000.0;
    QString m_previousFile;
    QString m_settingsFile;
    QString m_summaryFile;
    bool m_showGrid = true;
    bool m_initial = true;
    bool m_singleShotEnabled = false;
    QString m_results = "{}";
    bool m_exhibition = false;
    QString m_location = "file:///tmp";
    QString m_userSets = R"({"UserSets":[]})";

signals:
    void activeStepChanged();
    void originalImageUrlChanged();
    void gray80PercentHitRateChanged();
    void previousCalibrationFileChanged();
    void settingsFileChanged();
    void summaryFileChanged();
    void showGridChanged();
    void initialChanged();
    void singleShotEnabledChanged();
    void resultsChanged();
    void exhibitionChanged();
    void locationChanged();
    void cleanupQML();
    void cameraLost();
    void autoAdjustGray80PercentPatchFinished();
    void autoChartFindFinished(bool valid);
    void calibrationFinished();

private:
    CallLog& m_log;
    int m_activeStep = 1;
    int m_fetched = 0;
    bool m_backupOwed = false;
};

class CameraDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractVideoSurface* videoSurface READ videoSurface WRITE setVideoSurface NOTIFY
                   videoSurfaceChanged)
    Q_PROPERTY(QSize size MEMBER m_size NOTIFY sizeChanged)
    Q_PROPERTY(
        QSize originalSize READ originalSize WRITE setOriginalSize NOTIFY originalSizeChanged)

public:
    explicit CameraDouble(CallLog& log)
        : m_log(log)
    {}

    QAbstractVideoSurface* videoSurface() const { return m_surface; }
    void setVideoSurface(QAbstractVideoSurface* surface) { m_surface = surface; }
    QSize originalSize() const { return m_originalSize; }
    void setOriginalSize(const QSize& size);

    /// Shows one color all over the live image.
    void show(const QColor& color);

    Q_INVOKABLE void startGrab() { m_log.note("startGrab()"); }
    Q_INVOKABLE void stopGrab() { m_log.note("stopGrab()"); }
    Q_INVOKABLE void singleGrab() { m_log.note("singleGrab()"); }

    QSize m_size{4, 3};

signals:
    void videoSurfaceChanged();
    void sizeChanged();
    void originalSizeChanged();
    void imageChanged();
    void imageFailed();

private:
    CallLog& m_log;
    QPointer<QAbstractVideoSurface> m_surface;
    QSize m_originalSize{4, 3};
};

/// A quadrilateral in canvas pixels.
class TrapezoidDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QPoint upperLeft MEMBER m_upperLeft NOTIFY upperLeftChanged)
    Q_PROPERTY(QPoint upperRight MEMBER m_upperRight NOTIFY upperRightChanged)
    Q_PROPERTY(QPoint lowerRight MEMBER m_lowerRight NOTIFY lowerRightChanged)
    Q_PROPERTY(QPoint lowerLeft MEMBER m_lowerLeft NOTIFY lowerLeftChanged)
    Q_PROPERTY(QPoint center MEMBER m_center NOTIFY centerChanged)
    Q_PROPERTY(QPoint bottomCenter MEMBER m_bottomCenter NOTIFY bottomCenterChanged)

public:
    /// An upright rectangle.
    TrapezoidDouble(const QPoint& upperLeft, const QPoint& lowerRight);

    QPoint m_upperLeft;
    QPoint m_upperRight;
    QPoint m_lowerRight;
    QPoint m_lowerLeft;
    QPoint m_center;
    QPoint m_bottomCenter;

signals:
    void upperLeftChanged();
    void upperRightChanged();
    void lowerRightChanged();
    void lowerLeftChanged();
    void centerChanged();
    void bottomCenterChanged();
    void resetOutline();
};

class GridDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariantList list MEMBER m_list NOTIFY listChanged)
    Q_PROPERTY(int selectedPatch MEMBER m_selectedPatch NOTIFY selectedPatchChanged)
    Q_PROPERTY(QString lastError MEMBER m_lastError NOTIFY lastErrorChanged)

public:
    Q_INVOKABLE int count() const { return m_list.size(); }
    Q_INVOKABLE QColor targetColorAt(int index) const { return m_target.value(index); }
    Q_INVOKABLE QColor originalColorAt(int index) const { return m_original.value(index); }
    Q_INVOKABLE QColor colorAtPoint(int x, int y);
    Q_INVOKABLE QString textOfColor(const QColor& color) const { return "of " + color.name(); }

    QVariantList m_list;
    QVector<QColor> m_target;
    QVector<QColor> m_original;
    /// What is answered for each point, and the points that were asked for.
    QColor m_colorAtPoint = QColor("transparent");
    QVector<QPoint> m_points;
    int m_selectedPatch = -1;
    QString m_lastError;

signals:
    void listChanged();
    void selectedPatchChanged();
    void lastErrorChanged();
};

/// Exposure or gain; its calls are noted behind its name.
class AdapterDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double min MEMBER m_min NOTIFY signalMinChanged)
    Q_PROPERTY(double max MEMBER m_max NOTIFY signalMaxChanged)
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY signalValueChanged)
    Q_PROPERTY(QString lastError READ takeLastError NOTIFY lastErrorChanged)

public:
    AdapterDouble(CallLog& log, const QString& name)
        : m_log(log)
        , m_name(name)
    {}

    double value() const { return m_value; }
    void setValue(double value);
    QString takeLastError();
    void report(double value);
    void refuse(const QString& text);

    Q_INVOKABLE bool initialize() { return m_log.note(m_name + ".initialize()"); }

    double m_min = 0.0;
    double m_max = 1.0;
    double m_value = 0.5;
    QString m_lastError;

signals:
    void signalMinChanged();
    void signalMaxChanged();
    void signalValueChanged();
    void lastErrorChanged();

private:
    CallLog& m_log;
    QString m_name;
};
