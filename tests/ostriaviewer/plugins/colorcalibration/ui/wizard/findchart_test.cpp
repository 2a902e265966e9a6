// SPDX-License-Identifier: Apache-2.0
// Tests of the search for the chart as the wizard starts it.
#include "qmldatamodelinterface.h"

#include "chartscene.h"
#include "recordingmodel.h"

#include <QApplication>
#include <QCursor>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>
#include <QThreadPool>

#include <gtest/gtest.h>

#include <memory>

namespace ColorCalibration {
namespace {

class FindChartTest : public testing::Test
{
protected:
    FindChartTest()
    {
        ChartScene::Scene scene;
        scene.size = QSize(640, 480);
        scene.corners = {QPointF(120, 100), QPointF(520, 100), QPointF(120, 367),
                         QPointF(520, 367)};
        m_model.image = ChartScene::render(scene);
    }

    /// Whether the model's outline lies on the chart, within some pixels.
    void expectOnChart() const
    {
        const auto near = [](const QPoint& found, const QPoint& drawn) {
            return (found - drawn).manhattanLength() <= 24;
        };
        EXPECT_TRUE(near(m_model.outline.upperLeft(), {120, 100}));
        EXPECT_TRUE(near(m_model.outline.upperRight(), {520, 100}));
        EXPECT_TRUE(near(m_model.outline.lowerLeft(), {120, 367}));
        EXPECT_TRUE(near(m_model.outline.lowerRight(), {520, 367}));
    }

    RecordingModel m_model;
    std::unique_ptr<QmlDataModelInterface> m_data =
        std::make_unique<QmlDataModelInterface>(&m_model);
    QSignalSpy m_found{m_data.get(), &QmlDataModelInterface::autoChartFindFinished};
};

TEST_F(FindChartTest, PutsTheGridOnTheChartBeforeItReturns)
{
    Qt::CursorShape during = Qt::ArrowCursor;
    m_model.onGrab = [&during] {
        if (const QCursor* cursor = QApplication::overrideCursor())
            during = cursor->shape();
    };
    ASSERT_TRUE(QMetaObject::invokeMethod(m_data.get(), "findChart"));
    ASSERT_EQ(m_found.count(), 1);
    EXPECT_TRUE(m_found[0][0].toBool());
    EXPECT_EQ(m_model.calls(),
              QStringList({"GrabImage false", "SetGridPosition", "GetColorPatchTrapezoids"}));
    expectOnChart();
    EXPECT_EQ(during, Qt::BusyCursor);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(FindChartTest, AnImageWithoutAChartLeavesTheGridWhereItWas)
{
    m_model.image = QImage(64, 48, QImage::Format_RGB32);
    m_model.image.fill(Qt::white);
    m_data->findChart();
    ASSERT_EQ(m_found.count(), 1);
    EXPECT_FALSE(m_found[0][0].toBool());
    EXPECT_EQ(m_model.calls(), QStringList("GrabImage false"));
    EXPECT_EQ(m_model.outline, TrapezoidPoints());
}

TEST_F(FindChartTest, WithoutAnImageNothingIsSaidButTheCursorIsGivenBack)
{
    m_model.refused = {"GrabImage"};
    m_data->findChart();
    EXPECT_EQ(m_found.count(), 0);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(FindChartTest, TheSearchInTheBackgroundSaysNothingWithoutAnImageEither)
{
    m_model.refused = {"GrabImage"};
    m_data->findChartAsync();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QApplication::overrideCursor(); }, 60000));
    EXPECT_EQ(m_model.calls(), QStringList("GrabImage false"));
    EXPECT_EQ(m_found.count(), 0);
}

TEST_F(FindChartTest, TheSearchInTheBackgroundDoesNotKeepTheGuiThread)
{
    QSemaphore release;
    QThread* grabbing = nullptr;
    m_model.onGrab = [&] {
        grabbing = QThread::currentThread();
        release.acquire();
    };
    QThread* told = nullptr;
    QObject::connect(m_data.get(), &QmlDataModelInterface::autoChartFindFinished,
                     [&told] { told = QThread::currentThread(); });
    ASSERT_TRUE(QMetaObject::invokeMethod(m_data.get(), "findChartAsync"));
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    EXPECT_EQ(m_found.count(), 0);
    release.release();
    ASSERT_TRUE(m_found.wait(60000));
    EXPECT_TRUE(m_found[0][0].toBool());
    EXPECT_NE(grabbing, m_data->thread());
    EXPECT_EQ(told, m_data->thread());
    expectOnChart();
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(FindChartTest, AResultForASceneThatHasGoneIsDropped)
{
    QSemaphore release;
    m_model.onGrab = [&release] {
        release.acquire();
    };
    m_data->findChartAsync();
    m_data->resetScene();
    const TrapezoidPoints before = m_model.outline;
    release.release();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_found.count(), 0);
    EXPECT_EQ(m_model.outline, before);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(FindChartTest, AResultForAWizardThatHasEndedIsDropped)
{
    for (const bool isCameraLost : {false, true}) {
        QSemaphore release;
        m_model.onGrab = [&release] {
            release.acquire();
        };
        m_data->findChartAsync();
        if (isCameraLost)
            emit m_model.cameraRemoved();
        else
            emit m_data->cleanupQML();
        const TrapezoidPoints before = m_model.outline;
        release.release();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        EXPECT_EQ(m_found.count(), 0) << isCameraLost;
        EXPECT_EQ(m_model.outline, before) << isCameraLost;
        EXPECT_FALSE(QApplication::overrideCursor()) << isCameraLost;
    }
}

TEST_F(FindChartTest, AResultForAStepThatHasGoneIsDropped)
{
    QSemaphore release;
    m_model.onGrab = [&release] {
        release.acquire();
    };
    m_data->findChartAsync();
    m_data->setActiveStep(2);
    const TrapezoidPoints before = m_model.outline;
    release.release();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_found.count(), 0);
    EXPECT_EQ(m_model.outline, before);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(FindChartTest, TheEndWaitsForASearchAndGivesTheCursorBack)
{
    QSemaphore started;
    bool grabbed = false;
    m_model.onGrab = [&] {
        started.release();
        grabbed = true;
    };
    m_data->findChartAsync();
    started.acquire();
    m_data.reset();
    EXPECT_TRUE(grabbed);
    EXPECT_FALSE(QApplication::overrideCursor());
}

} // namespace
} // namespace ColorCalibration
