// SPDX-License-Identifier: Apache-2.0
// Stand-ins for the objects that the wizard sees; each notes its calls, and fails where it is told
// to.
#pragma once

#include <QAbstractVideoSurface>
#include <QColor>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QVariantList>

/// Calls in the order in which they came, and those that are to answer false.
struct CallLog
{
    QStringList made;
    /// "name(arguments)", or with "#2" behind it to let only the second such call fail.
    QSet<QString> failing;

    bool note(const QString& call)
    {
        made << call;
        return !failing.contains(call) &&
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
    Q_INVOKABLE void grabOriginalImage() { m_log.note("grabOriginalImage()"); }
    Q_INVOKABLE QString getAvailableUserSets() { return R"({"UserSets":[]})"; }
    Q_INVOKABLE void cancel() { m_log.note("cancel()"); }
    Q_INVOKABLE void finish() { m_log.note("finish()"); }

    QString m_originalImageUrl;
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
    void autoAdjustGray80PercentPatchFinished();
    void autoChartFindFinished(bool valid);
    void calibrationFinished();

private:
    CallLog& m_log;
    int m_activeStep = 1;
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
    Q_INVOKABLE QColor targetColorAt(int) const { return Qt::gray; }
    Q_INVOKABLE QColor originalColorAt(int) const { return Qt::gray; }
    Q_INVOKABLE QColor colorAtPoint(int, int) const { return QColor(0, 0, 0, 0); }
    Q_INVOKABLE QString textOfColor(const QColor&) const { return {}; }

    QVariantList m_list;
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
