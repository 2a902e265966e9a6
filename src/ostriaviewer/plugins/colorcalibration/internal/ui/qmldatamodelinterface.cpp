// SPDX-License-Identifier: Apache-2.0
// The scene of the wizard: its making, what it sees, and what the model tells it.
#include "qmldatamodelinterface.h"

#include "colorcorrectionmodel.h"
#include "originalimageprovider.h"
#include "qmlfiledialog.h"
#include "qmlostriacamera.h"
#include "sceneproblem.h"

#include <QApplication>
#include <QOpenGLContext>
#include <QQmlContext>
#include <QQmlEngine>
#include <QSGRendererInterface>
#include <QSettings>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>

namespace ColorCalibration {
namespace {

// Registrations cannot be taken back, so one set serves all objects.
void registerTypes()
{
    static const bool once = [] {
        qRegisterMetaType<Core::Logging::ELogLevel>("Core::Logging::ELogLevel");
        qmlRegisterType<QmlTrapezoid>("tavrin.trapezoid", 1, 0, "Trapezoid");
        qmlRegisterType<QMLFileDialog>("tavrin.filedialog", 1, 0, "QMLFileDialog");
        return true;
    }();
    Q_UNUSED(once)
}

} // namespace

QmlDataModelInterface::QmlDataModelInterface(ColorCorrectionModel* model)
    : m_model(model)
    , m_camera(std::make_unique<QMLOstriaCamera>(model))
    , m_imageProvider(new OriginalImageProvider(model))
    , m_grid(model)
    , m_exposure(model)
    , m_gain(model)
    , m_view(new QQuickView)
{
    m_view->engine()->clearComponentCache();
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    registerTypes();
    exposeToScene();
    checkOpenGl();
    loadScene();
    connectModel();
}

QmlDataModelInterface::~QmlDataModelInterface()
{
    m_camera->stopGrab();
    for (QFuture<void>& search : m_searches)
        search.waitForFinished();
    for (; m_busyCursors > 0; --m_busyCursors)
        QApplication::restoreOverrideCursor();
    // The scene goes before what it sees.
    delete m_view;
}

void QmlDataModelInterface::exposeToScene()
{
    QQmlEngine* engine = m_view->engine();
    engine->addImageProvider(QStringLiteral("cameraImageOriginal"), m_imageProvider);
    connect(engine, &QQmlEngine::warnings, this, &QmlDataModelInterface::onSceneWarnings);
    // Not while it draws: whoever shows the problem hides the view.
    connect(
        m_view, &QQuickWindow::sceneGraphError, this,
        [this](QQuickWindow::SceneGraphError /*error*/, const QString& message) {
            setDrawingProblem(message);
        },
        Qt::QueuedConnection);
    connect(m_view, &QQuickWindow::sceneGraphInitialized, this,
            &QmlDataModelInterface::checkDrawing, Qt::QueuedConnection);
    QQmlContext* context = m_view->rootContext();
    context->setContextProperty(QStringLiteral("qmlModelInterface"), this);
    context->setContextProperty(QStringLiteral("gridOutline"), m_grid.outlineView());
    context->setContextProperty(QStringLiteral("camera"), m_camera.get());
    context->setContextProperty(QStringLiteral("grid"), &m_grid);
    context->setContextProperty(QStringLiteral("exposureTime"), &m_exposure);
    context->setContextProperty(QStringLiteral("gainValue"), &m_gain);
    context->setContextProperty(QStringLiteral("transformer"), m_grid.transformer());
}

void QmlDataModelInterface::connectModel()
{
    using Model = ColorCorrectionModel;
    connect(m_model, &Model::ExposureTimeValueChanged, &m_exposure,
            &QMLExposureTime::onChangedValue);
    connect(m_model, &Model::GainValueChanged, &m_gain, &QMLGainvalue::onChangedValue);
    connect(m_model, &Model::Gray80PercentHitRateChanged, this,
            &QmlDataModelInterface::onGray80PercentHitRateChanged);
    connect(m_model, &Model::CalibrationFinished, this,
            &QmlDataModelInterface::onCalibrationFinished);
    connect(m_model, &Model::AutoAdjustGray80PercentPatchFinished, this,
            &QmlDataModelInterface::onAutoAdjustGray80PercentPatchFinished);
    connect(m_model, &Model::cameraRemoved, this, &QmlDataModelInterface::onCameraRemoved);
    connect(m_camera.get(), &QMLOstriaCamera::imageFailed, this,
            &QmlDataModelInterface::forwardImageGrabFailed);
    connect(this, &QmlDataModelInterface::cleanupQML, this, &QmlDataModelInterface::dropSearches);
}

void QmlDataModelInterface::loadScene()
{
    setSceneProblem(m_drawingProblem);
    m_view->setSource(QUrl(QStringLiteral("qrc:/ColCal/main.qml")));
    if (m_view->status() == QQuickView::Error)
        setSceneProblem(sceneProblemText(m_view->errors()));
}

void QmlDataModelInterface::onSceneWarnings(const QList<QQmlError>& warnings)
{
    if (std::any_of(warnings.begin(), warnings.end(), leavesSceneBlank))
        setSceneProblem(sceneProblemText(warnings));
}

// Where it draws on this thread, Qt tells of a context that it cannot make and then uses it all the
// same.
void QmlDataModelInterface::checkOpenGl()
{
    QOpenGLContext context;
    context.setFormat(m_view->requestedFormat());
    if (!context.create())
        setDrawingProblem(QCoreApplication::translate("SceneProblem", "OpenGL cannot be used."));
}

// Where it was told to do without OpenGL, Qt draws no video, and says nothing.
void QmlDataModelInterface::checkDrawing()
{
    if (m_view && m_view->rendererInterface()->graphicsApi() == QSGRendererInterface::Software)
        setDrawingProblem(QCoreApplication::translate(
            "SceneProblem", "The camera's image cannot be drawn without OpenGL."));
}

void QmlDataModelInterface::setDrawingProblem(const QString& error)
{
    m_drawingProblem = drawingProblemText(error);
    setSceneProblem(m_drawingProblem);
}

void QmlDataModelInterface::setSceneProblem(const QString& problem)
{
    if (m_sceneProblem == problem)
        return;
    m_sceneProblem = problem;
    emit sceneProblemChanged();
}

void QmlDataModelInterface::resetScene()
{
    if (!m_view)
        return;
    dropSearches();
    m_closingProblems.clear();
    m_view->setSource(QUrl());
    m_view->engine()->clearComponentCache();
    m_imageProvider->reset();
    m_grid.reset();
    m_exposure.reset();
    m_gain.reset();
    m_showGrid = true;
    m_initial = true;
    m_activeStep = 1;
    m_gray80PercentHitRate = noHitRate; // the last one may be of another camera
    m_previousCalibrationFile.clear();
    m_calibrationFileToSave.clear();
    m_summaryFileToSave.clear();
    loadScene();
}

QString QmlDataModelInterface::originalImageUrl() const
{
    if (!m_view)
        return {};
    return QStringLiteral("image://cameraImageOriginal/%1_%2")
        .arg(m_imageProvider->firstCounter())
        .arg(m_imageProvider->secondCounter());
}

bool QmlDataModelInterface::useAutoCalibration() const
{
    QSettings settings;
    settings.beginGroup(QStringLiteral("ColCalPlugin"));
    return settings.value(QStringLiteral("EnableDemoMode"), false).toBool();
}

QString QmlDataModelInterface::ostriaStandardLocation() const
{
    // Three slashes in front of a drive letter; elsewhere the third is the path's own.
    return QUrl::fromLocalFile(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
        .toString();
}

void QmlDataModelInterface::setActiveStep(int activeStep)
{
    m_activeStep = activeStep;
    emit activeStepChanged();
}

void QmlDataModelInterface::setPreviousCalibrationFile(const QString& path)
{
    if (m_previousCalibrationFile == path)
        return;
    m_previousCalibrationFile = path;
    emit previousCalibrationFileChanged();
}

void QmlDataModelInterface::setCalibrationFileToSave(const QString& path)
{
    if (m_calibrationFileToSave == path)
        return;
    m_calibrationFileToSave = path;
    emit calibrationFileToSaveChanged();
}

void QmlDataModelInterface::setSummaryFileToSave(const QString& path)
{
    if (m_summaryFileToSave == path)
        return;
    m_summaryFileToSave = path;
    emit summaryFileToSaveChanged();
}

void QmlDataModelInterface::setShowGrid(bool showGrid)
{
    if (m_showGrid == showGrid)
        return;
    m_showGrid = showGrid;
    emit showGridChanged();
}

void QmlDataModelInterface::setInitial(bool initial)
{
    if (m_initial == initial)
        return;
    m_initial = initial;
    emit initialChanged();
}

void QmlDataModelInterface::setSingleShotEnabled(bool singleShotEnabled)
{
    if (m_singleShotEnabled == singleShotEnabled)
        return;
    m_singleShotEnabled = singleShotEnabled;
    emit singleShotEnabledChanged();
}

void QmlDataModelInterface::onCameraRemoved()
{
    m_camera->stopGrab();
    dropSearches();
    emit cameraLost();
    emit forwardCameraRemoved();
}

// Those that are under way come to their end, but no scene hears of it.
void QmlDataModelInterface::dropSearches()
{
    ++m_scene;
}

void QmlDataModelInterface::onCalibrationFinished()
{
    m_grid.loadPatchColors();
    m_calibrationResults = m_model->GetCalibrationResultsJson();
    emit calibrationFinished();
}

void QmlDataModelInterface::onGray80PercentHitRateChanged(double hitRate)
{
    m_gray80PercentHitRate = hitRate;
    emit gray80PercentHitRateChanged(hitRate);
}

void QmlDataModelInterface::onAutoAdjustGray80PercentPatchFinished()
{
    emit autoAdjustGray80PercentPatchFinished();
}

void QmlDataModelInterface::LogMessage(QString message, Core::Logging::ELogLevel logLevel)
{
    emit forwardLogMessage(message, logLevel);
}

} // namespace ColorCalibration
