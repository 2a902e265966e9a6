// SPDX-License-Identifier: Apache-2.0
// Stand-ins for what the pages of results see; each notes its calls, and fails where it is told to.
#pragma once

#include <QAbstractVideoSurface>
#include <QColor>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QQuickImageProvider>
#include <QQuickItem>
#include <QSet>
#include <QSize>
#include <QStringList>
#include <QUrl>
#include <QVariantList>
#include <QVector>

#include <atomic>

/// Calls in the order in which they came, and the names of those that are to answer false.
struct Calls
{
    QStringList made;
    QSet<QString> failing;

    bool note(const QString& call)
    {
        made << call;
        return !failing.contains(call.section('(', 0, 0));
    }
};

class ModelDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(int activeStep READ activeStep WRITE setActiveStep NOTIFY activeStepChanged)
    Q_PROPERTY(QString originalImageUrl MEMBER m_originalImageUrl NOTIFY originalImageUrlChanged)
    Q_PROPERTY(double gray80PercentHitRate MEMBER m_hitRate NOTIFY gray80PercentHitRateChanged)
    Q_PROPERTY(QString previousCalibrationFile MEMBER m_previous NOTIFY previousChanged)
    Q_PROPERTY(QString calibrationFileToSave MEMBER m_settingsFile NOTIFY settingsFileChanged)
    Q_PROPERTY(QString summaryFileToSave MEMBER m_summaryFile NOTIFY summaryFileChanged)
    Q_PROPERTY(bool showGrid MEMBER m_showGrid NOTIFY showGridChanged)
    Q_PROPERTY(bool initial MEMBER m_initial NOTIFY initialChanged)
    Q_PROPERTY(bool singleShotEnabled MEMBER m_singleShot NOTIFY singleShotEnabledChanged)
    Q_PROPERTY(QString calibrationsResultsJson MEMBER m_results NOTIFY resultsChanged)
    Q_PROPERTY(bool useAutoCalibration MEMBER m_exhibition NOTIFY exhibitionChanged)
    Q_PROPERTY(QString ostriaStandardLocation MEMBER m_location NOTIFY locationChanged)

public:
    explicit ModelDouble(Calls& calls)
        : m_calls(calls)
    {}

    int activeStep() const { return m_activeStep; }
    void setActiveStep(int step)
    {
        m_activeStep = step;
        emit activeStepChanged();
    }

    Q_INVOKABLE void updateTrapezoidList() { m_calls.note("updateTrapezoidList"); }
    Q_INVOKABLE void grabOriginalImage();
    Q_INVOKABLE bool setNeutralSettings() { return m_calls.note("setNeutralSettings"); }
    Q_INVOKABLE bool saveSettingsToFilePath() { return m_calls.note("saveSettingsToFilePath"); }
    Q_INVOKABLE bool saveSummaryToFilePath() { return m_calls.note("saveSummaryToFilePath"); }
    Q_INVOKABLE bool storeSettingsInUserSet(const QString& value, bool setAsDefault = false);
    Q_INVOKABLE void getGridPosition() { m_calls.note("getGridPosition"); }
    Q_INVOKABLE bool restoreSettingsBackup(bool intialImage = false);
    Q_INVOKABLE QString getAvailableUserSets() { return m_userSets; }
    Q_INVOKABLE bool autoAdjustGray80PercentPatch();
    Q_INVOKABLE bool executeCalibrationAndApply();
    Q_INVOKABLE bool applyInitialColorPatchValues();
    Q_INVOKABLE bool applyInitialCameraImageAndPatchValues();
    Q_INVOKABLE void cancel() { m_calls.note("cancel"); }
    Q_INVOKABLE void finish() { m_calls.note("finish"); }

    QString m_originalImageUrl = "image://cameraImageOriginal/0_0";
    double m_hitRate = 1000.0;
    QString m_previous;
    QString m_settingsFile;
    QString m_summaryFile;
    bool m_showGrid = true;
    bool m_initial = true;
    bool m_singleShot = false;
    QString m_results = "{}";
    bool m_exhibition = false;
    QString m_location = "file:///tmp";
    QString m_userSets = R"({"UserSets":[]})";

signals:
    void activeStepChanged();
    void originalImageUrlChanged();
    void gray80PercentHitRateChanged();
    void previousChanged();
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
    Calls& m_calls;
    int m_activeStep = 1;
    int m_fetched = 0;
};

class CameraDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QAbstractVideoSurface* videoSurface READ videoSurface WRITE setVideoSurface NOTIFY
                   videoSurfaceChanged)
    Q_PROPERTY(QSize size MEMBER m_size NOTIFY sizeChanged)
    Q_PROPERTY(QSize originalSize MEMBER m_originalSize NOTIFY originalSizeChanged)

public:
    explicit CameraDouble(Calls& calls)
        : m_calls(calls)
    {}

    QAbstractVideoSurface* videoSurface() const { return m_surface; }
    void setVideoSurface(QAbstractVideoSurface* surface) { m_surface = surface; }

    /// Shows one color all over the live image.
    void show(const QColor& color);

    Q_INVOKABLE void startGrab() { m_calls.note("startGrab"); }
    Q_INVOKABLE void stopGrab() { m_calls.note("stopGrab"); }
    Q_INVOKABLE void singleGrab() { m_calls.note("singleGrab"); }

    QSize m_size{4, 3};
    QSize m_originalSize{1600, 1200};

signals:
    void videoSurfaceChanged();
    void sizeChanged();
    void originalSizeChanged();
    void intervalChanged();
    void imageChanged();
    void imageFailed();

private:
    Calls& m_calls;
    QPointer<QAbstractVideoSurface> m_surface;
};

/// A patch in canvas pixels.
class PatchDouble : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QPoint upperLeft MEMBER m_upperLeft NOTIFY changed)
    Q_PROPERTY(QPoint upperRight MEMBER m_upperRight NOTIFY changed)
    Q_PROPERTY(QPoint lowerLeft MEMBER m_lowerLeft NOTIFY changed)
    Q_PROPERTY(QPoint lowerRight MEMBER m_lowerRight NOTIFY changed)
    Q_PROPERTY(QPoint center MEMBER m_center NOTIFY changed)
    Q_PROPERTY(QPoint bottomCenter MEMBER m_bottomCenter NOTIFY changed)

public:
    /// An upright square.
    PatchDouble(const QPoint& upperLeft, int side);

signals:
    void changed();
    void resetOutline();

private:
    QPoint m_upperLeft;
    QPoint m_upperRight;
    QPoint m_lowerLeft;
    QPoint m_lowerRight;
    QPoint m_center;
    QPoint m_bottomCenter;
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

/// A dialog that ends at once, with the folder of s_answer, or without one where that is empty.
class FileDialogDouble : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QUrl fileUrl MEMBER m_fileUrl NOTIFY changed)
    Q_PROPERTY(QUrl folder MEMBER m_folder NOTIFY changed)
    Q_PROPERTY(QString title MEMBER m_title NOTIFY changed)
    Q_PROPERTY(QStringList nameFilters MEMBER m_nameFilters NOTIFY changed)
    Q_PROPERTY(bool selectMultiple MEMBER m_selectMultiple NOTIFY changed)
    Q_PROPERTY(bool selectFolder MEMBER m_selectFolder NOTIFY changed)

public:
    Q_INVOKABLE void open();

    static QUrl s_answer;
    /// The folder in which the last dialog was opened.
    static QUrl s_folder;

signals:
    void changed();
    void accepted();
    void rejected();

private:
    QUrl m_fileUrl;
    QUrl m_folder;
    QString m_title;
    QStringList m_nameFilters;
    bool m_selectMultiple = false;
    bool m_selectFolder = false;
};

/// The image from before the calibration: of one color, with its last column and row blue.
class OriginalImageDouble : public QQuickImageProvider
{
public:
    OriginalImageDouble()
        : QQuickImageProvider(Image, ForceAsynchronousImageLoading)
    {}

    QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override;

    static std::atomic<QRgb> s_color;
};
