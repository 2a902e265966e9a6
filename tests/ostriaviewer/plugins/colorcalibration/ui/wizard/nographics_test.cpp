// SPDX-License-Identifier: Apache-2.0
// A machine that cannot draw says so, and what to install.
#include "colorcorrectiontooldlg.h"
#include "qmldatamodelinterface.h"
#include "recordinglog.h"
#include "recordingmodel.h"
#include "scene.h"
#include "testsettings.h"

#include <QApplication>
#include <QLabel>
#include <QOpenGLContext>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace ColorCalibration {
namespace {

class NoGraphics : public testing::Test
{
protected:
    void SetUp() override
    {
        const bool isLeftUnused = qstrcmp(TEST_VARIABLE, "QT_QUICK_BACKEND") == 0;
        if (!isLeftUnused && QOpenGLContext().create())
            GTEST_SKIP() << "OpenGL comes from elsewhere";
    }

    /// Runs the window until it tells of a problem, and closes it.
    QString toldByWindow()
    {
        QString told;
        QTimer::singleShot(0, &m_dialog, [&] {
            const bool isTold =
                QTest::qWaitFor([&] { return label() && label()->isVisible(); }, 20000);
            if (isTold)
                told = label()->text();
            m_dialog.close();
        });
        m_dialog.exec();
        return told;
    }

    QLabel* label() { return m_dialog.findChild<QLabel*>("sceneProblem"); }

    RecordingModel m_model;
    QSharedPointer<RecordingLog> m_log = QSharedPointer<RecordingLog>::create();
    Scene m_scene{"healthy"};
    QmlDataModelInterface m_data{&m_model};
    ColorCorrectionToolDlg m_dialog{&m_data, m_log, nullptr};
};

TEST_F(NoGraphics, IsToldInsteadOfAnEmptyWindow)
{
    EXPECT_TRUE(toldByWindow().contains("libgl1-mesa-dri"));
    EXPECT_EQ(m_model.takeCalls().constLast(), "Close");
    ASSERT_EQ(m_log->entries.size(), 1);
    EXPECT_EQ(m_log->entries[0].level, Core::Logging::Error);
    m_data.resetScene();
    EXPECT_TRUE(toldByWindow().contains("libgl1-mesa-dri")) << "at a second start too";
}

} // namespace
} // namespace ColorCalibration

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    qputenv(TEST_VARIABLE, TEST_VALUE);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const TestSettings settings;
    return RUN_ALL_TESTS();
}
