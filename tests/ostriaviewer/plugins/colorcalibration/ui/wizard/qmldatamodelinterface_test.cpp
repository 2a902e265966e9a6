// SPDX-License-Identifier: Apache-2.0
// Tests of the scene of the wizard: its making, its properties, and what the model tells it.
#include "qmldatamodelinterface.h"

#include "qmlostriacamera.h"
#include "recordingmodel.h"
#include "scene.h"

#include <QMetaProperty>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QUrl>

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace ColorCalibration {
namespace {

class QmlDataModelInterfaceTest : public testing::Test
{
protected:
    QmlDataModelInterfaceTest() { QSettings().clear(); }

    QObject* root() { return m_data->view()->rootObject(); }

    RecordingModel m_model;
    Scene m_scene{"healthy"};
    std::unique_ptr<QmlDataModelInterface> m_data =
        std::make_unique<QmlDataModelInterface>(&m_model);
};

TEST_F(QmlDataModelInterfaceTest, TheSceneSeesEverythingThatItNeeds)
{
    ASSERT_TRUE(root());
    EXPECT_EQ(m_data->sceneProblem(), QString());
    EXPECT_EQ(root()->property("corner").toPoint(), QPoint(0, 0));
    EXPECT_EQ(root()->property("canvasScale").toDouble(), 1.0);
    EXPECT_EQ(root()->property("exposure").toDouble(), -1.0);
    EXPECT_EQ(root()->property("gain").toDouble(), -1.0);
    EXPECT_EQ(root()->property("liveSize").toSize(), QSize(4, 3));
    const auto* trapezoid = root()->property("trapezoid").value<QObject*>();
    ASSERT_TRUE(trapezoid);
    EXPECT_EQ(trapezoid->property("center").toPoint(), QPoint(1, 1));
    QQmlContext* context = m_data->view()->rootContext();
    EXPECT_EQ(context->contextProperty("qmlModelInterface").value<QObject*>(), m_data.get());
    EXPECT_EQ(context->contextProperty("camera").value<QObject*>(), m_data->camera());
    EXPECT_TRUE(m_data->view()->engine()->imageProvider("cameraImageOriginal"));
}

TEST_F(QmlDataModelInterfaceTest, ValuesAtTheBeginning)
{
    EXPECT_EQ(m_data->activeStep(), 1);
    EXPECT_TRUE(m_data->showGrid());
    EXPECT_TRUE(m_data->initial());
    EXPECT_FALSE(m_data->singleShotEnabled());
    EXPECT_EQ(m_data->gray80PercentHitRate(), 1000.0);
    EXPECT_EQ(m_data->property("calibrationsResultsJson").toString(), "{}");
    EXPECT_EQ(m_data->property("originalImageUrl").toString(), "image://cameraImageOriginal/0_0");
    for (const char* path :
         {"previousCalibrationFile", "calibrationFileToSave", "summaryFileToSave"})
        EXPECT_EQ(m_data->property(path).toString(), QString()) << path;
}

TEST_F(QmlDataModelInterfaceTest, EveryPropertyHasASignalOfItsOwnName)
{
    const QMetaObject& meta = QmlDataModelInterface::staticMetaObject;
    EXPECT_EQ(meta.propertyCount() - meta.propertyOffset(), 12);
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        EXPECT_EQ(property.notifySignal().name(), QByteArray(property.name()) + "Changed");
    }
}

TEST_F(QmlDataModelInterfaceTest, TheStepIsAnnouncedAlsoWhenItIsTheSame)
{
    ASSERT_TRUE(m_data->setProperty("activeStep", 1));
    EXPECT_EQ(root()->property("stepChanges").toInt(), 1);
    ASSERT_TRUE(m_data->setProperty("activeStep", 3));
    EXPECT_EQ(root()->property("stepChanges").toInt(), 2);
    EXPECT_EQ(m_data->activeStep(), 3);
    m_data->forceReload();
    EXPECT_EQ(root()->property("stepChanges").toInt(), 3);
    EXPECT_EQ(m_data->activeStep(), 3);
}

TEST_F(QmlDataModelInterfaceTest, OtherPropertiesIgnoreAnEqualValue)
{
    const QVector<QPair<const char*, QVariant>> writes{{"previousCalibrationFile", "/a b.cst"},
                                                       {"calibrationFileToSave", "/c"},
                                                       {"summaryFileToSave", "/d"},
                                                       {"showGrid", false},
                                                       {"initial", false},
                                                       {"singleShotEnabled", true}};
    for (const auto& write : writes) {
        const QByteArray signal =
            QByteArray::number(QSIGNAL_CODE) + QByteArray(write.first) + "Changed()";
        const QSignalSpy changed(m_data.get(), signal.constData());
        ASSERT_TRUE(changed.isValid()) << write.first;
        ASSERT_TRUE(m_data->setProperty(write.first, write.second)) << write.first;
        ASSERT_TRUE(m_data->setProperty(write.first, write.second)) << write.first;
        EXPECT_EQ(changed.count(), 1) << write.first;
        EXPECT_EQ(m_data->property(write.first), write.second) << write.first;
    }
}

TEST_F(QmlDataModelInterfaceTest, TheExhibitionModeIsReadAtEachAccess)
{
    EXPECT_FALSE(m_data->property("useAutoCalibration").toBool());
    QSettings().setValue("ColCalPlugin/EnableDemoMode", true);
    EXPECT_TRUE(m_data->property("useAutoCalibration").toBool());
    QSettings().setValue("ColCalPlugin/EnableDemoMode", false);
    EXPECT_FALSE(m_data->property("useAutoCalibration").toBool());
}

TEST_F(QmlDataModelInterfaceTest, TheStandardLocationIsAUrlOfTheDocuments)
{
    const QString location = m_data->property("ostriaStandardLocation").toString();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    ASSERT_FALSE(documents.isEmpty());
    EXPECT_TRUE(location.startsWith("file:///")) << location.toStdString();
    EXPECT_EQ(QUrl(location).toLocalFile(), documents);
}

TEST_F(QmlDataModelInterfaceTest, SignalsOfTheModelReachTheAdapters)
{
    emit m_model.GainValueChanged(5.0);
    emit m_model.ExposureTimeValueChanged(1000.0);
    QQmlContext* context = m_data->view()->rootContext();
    const auto* exposure = context->contextProperty("exposureTime").value<QObject*>();
    const auto* gain = context->contextProperty("gainValue").value<QObject*>();
    EXPECT_DOUBLE_EQ(exposure->property("value").toDouble(), 3.0);
    EXPECT_EQ(gain->property("value").toDouble(), 0.0);
}

TEST_F(QmlDataModelInterfaceTest, SignalsOfAnotherThreadArriveOnTheGuiThread)
{
    QVector<QThread*> threads;
    const auto note = [&threads] {
        threads << QThread::currentThread();
    };
    QObject::connect(m_data.get(), &QmlDataModelInterface::gray80PercentHitRateChanged, note);
    QObject::connect(m_data.get(), &QmlDataModelInterface::autoAdjustGray80PercentPatchFinished,
                     note);
    QObject::connect(m_data.get(), &QmlDataModelInterface::calibrationFinished, note);
    QObject::connect(m_data.get(), &QmlDataModelInterface::forwardCameraRemoved, note);
    std::thread([this] {
        emit m_model.Gray80PercentHitRateChanged(97.5);
        emit m_model.AutoAdjustGray80PercentPatchFinished();
        emit m_model.CalibrationFinished();
        emit m_model.cameraRemoved();
    }).join();
    EXPECT_TRUE(threads.isEmpty()) << "nothing may arrive on the thread that tells";
    QCoreApplication::processEvents();
    EXPECT_EQ(threads, QVector<QThread*>(4, m_data->thread()));
    EXPECT_EQ(m_data->gray80PercentHitRate(), 97.5);
}

TEST_F(QmlDataModelInterfaceTest, TheSceneKnowsOfALossBeforeTheUserIsTold)
{
    QStringList told;
    QObject::connect(m_data.get(), &QmlDataModelInterface::forwardCameraRemoved,
                     [&told] { told << "user"; });
    QObject::connect(m_data.get(), &QmlDataModelInterface::cameraLost,
                     [&told] { told << "scene"; });
    emit m_model.cameraRemoved();
    EXPECT_EQ(told, QStringList({"scene", "user"}));
}

TEST_F(QmlDataModelInterfaceTest, AFailedImageIsForwarded)
{
    const QSignalSpy failed(m_data.get(), &QmlDataModelInterface::forwardImageGrabFailed);
    emit m_data->camera()->imageFailed();
    EXPECT_EQ(failed.count(), 1);
}

TEST_F(QmlDataModelInterfaceTest, ALogMessageIsForwarded)
{
    QSignalSpy logged(m_data.get(), &QmlDataModelInterface::forwardLogMessage);
    ASSERT_TRUE(QMetaObject::invokeMethod(m_data.get(), "LogMessage", Qt::QueuedConnection,
                                          Q_ARG(QString, "text"),
                                          Q_ARG(Core::Logging::ELogLevel, Core::Logging::Warning)));
    ASSERT_TRUE(logged.wait());
    EXPECT_EQ(logged[0][0].toString(), "text");
    EXPECT_EQ(logged[0][1].value<Core::Logging::ELogLevel>(), Core::Logging::Warning);
}

TEST_F(QmlDataModelInterfaceTest, ResetBringsBackTheBeginning)
{
    ASSERT_TRUE(m_data->setProperty("activeStep", 4));
    m_data->setShowGrid(false);
    m_data->setInitial(false);
    m_data->setSingleShotEnabled(true);
    m_data->setPreviousCalibrationFile("/a");
    m_data->setCalibrationFileToSave("/b");
    m_data->setSummaryFileToSave("/c");
    m_data->grabOriginalImage();
    emit m_model.GainValueChanged(5.0);
    emit m_model.Gray80PercentHitRateChanged(100.0);
    const QPointer<QObject> oldRoot = root();
    const QSignalSpy step(m_data.get(), &QmlDataModelInterface::activeStepChanged);
    const QSignalSpy grid(m_data.get(), &QmlDataModelInterface::showGridChanged);
    const QSignalSpy initial(m_data.get(), &QmlDataModelInterface::initialChanged);
    m_data->resetScene();
    EXPECT_EQ(step.count() + grid.count() + initial.count(), 0) << "without signals";
    EXPECT_EQ(m_data->activeStep(), 1);
    EXPECT_TRUE(m_data->showGrid());
    EXPECT_TRUE(m_data->initial());
    EXPECT_TRUE(m_data->singleShotEnabled()) << "keeps its value";
    EXPECT_TRUE(m_data->previousCalibrationFile().isEmpty());
    EXPECT_TRUE(m_data->calibrationFileToSave().isEmpty());
    EXPECT_TRUE(m_data->summaryFileToSave().isEmpty());
    EXPECT_EQ(m_data->originalImageUrl(), "image://cameraImageOriginal/0_0");
    EXPECT_EQ(m_data->gray80PercentHitRate(), 1000.0) << "the next camera has none yet";
    ASSERT_TRUE(root());
    EXPECT_NE(root(), oldRoot.data());
    EXPECT_EQ(root()->property("gain").toDouble(), -1.0);
}

TEST(QmlDataModelInterfaceScene, AMissingSceneIsNamed)
{
    RecordingModel model;
    const QmlDataModelInterface data(&model);
    EXPECT_TRUE(data.sceneProblem().contains("qrc:/ColCal/main.qml is missing"))
        << data.sceneProblem().toStdString();
}

TEST(QmlDataModelInterfaceScene, AMissingModuleIsNamedWhereverItIsNeeded)
{
    RecordingModel model;
    for (const char* scene : {"missingmodule", "modulelater"}) {
        const Scene missing(scene);
        const QmlDataModelInterface data(&model);
        EXPECT_TRUE(data.sceneProblem().contains("\"Not.There\"")) << scene;
        EXPECT_TRUE(data.sceneProblem().contains("qml-module-not-there")) << scene;
    }
}

TEST(QmlDataModelInterfaceScene, AMissingPageIsNamed)
{
    RecordingModel model;
    const Scene missing("blankpart");
    const QmlDataModelInterface data(&model);
    EXPECT_TRUE(data.sceneProblem().contains("qrc:/ColCal/qml/Absent.qml is missing"))
        << data.sceneProblem().toStdString();
}

TEST(QmlDataModelInterfaceScene, AResetThatFindsTheSceneEndsTheProblem)
{
    RecordingModel model;
    QmlDataModelInterface data(&model);
    ASSERT_FALSE(data.sceneProblem().isEmpty());
    const QSignalSpy changed(&data, &QmlDataModelInterface::sceneProblemChanged);
    const Scene healthy("healthy");
    data.resetScene();
    EXPECT_EQ(data.sceneProblem(), QString());
    EXPECT_GE(changed.count(), 1);
}

} // namespace
} // namespace ColorCalibration
