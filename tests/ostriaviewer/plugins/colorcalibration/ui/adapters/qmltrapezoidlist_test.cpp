// SPDX-License-Identifier: Apache-2.0
// Tests of the grid over the chart as QML sees it.
#include "qmltrapezoidlist.h"

#include "logrecorder.h"
#include "recordingmodel.h"

#include <QQmlListReference>
#include <QSignalSpy>
#include <QtQml>

#include <gtest/gtest.h>

namespace ColorCalibration {
namespace {

QVector<QColor> grays(int count, int first)
{
    QVector<QColor> colors;
    for (int i = 0; i < count; ++i)
        colors << QColor(first + i, first + i, first + i);
    return colors;
}

class QmlTrapezoidListTest : public testing::Test
{
protected:
    QmlTrapezoidListTest()
    {
        // Two squares of 40 pixels that share the border x = 50, and one far away.
        m_model.patches = {TrapezoidPoints({10, 10}, {50, 10}, {10, 50}, {50, 50}),
                           TrapezoidPoints({50, 10}, {90, 10}, {50, 50}, {90, 50}),
                           TrapezoidPoints({200, 10}, {240, 10}, {200, 50}, {240, 50})};
        m_model.colors = grays(24, 150);
        m_model.initialColors = grays(24, 100);
        m_model.targetColors = grays(24, 50);
    }

    RecordingModel m_model;
    QmlTrapezoidList m_list{&m_model};
};

TEST_F(QmlTrapezoidListTest, UpdateHandsTheOutlineOverAndRebuildsTheList)
{
    const QSignalSpy changed(&m_list, &QmlTrapezoidList::listChanged);
    m_list.transformer()->setScale(2.0);
    m_list.transformer()->setOffset({10, 0});
    m_list.outlineView()->setUpperLeft({60, 25});
    EXPECT_TRUE(m_model.calls().isEmpty()) << "a corner alone does not reach the model";
    m_list.update();
    EXPECT_EQ(m_model.calls(), QStringList({"SetGridPosition", "GetColorPatchTrapezoids"}));
    EXPECT_EQ(m_model.outline.upperLeft(), QPoint(100, 50));
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_list.count(), 3);
    qmlRegisterType<QmlTrapezoid>("tavrin.trapezoid", 1, 0, "Trapezoid");
    QQmlListReference list(&m_list, "list");
    ASSERT_EQ(list.count(), 3);
    EXPECT_EQ(list.at(0)->property("upperLeft").toPoint(), QPoint(15, 5));
    EXPECT_EQ(list.at(2)->property("lowerRight").toPoint(), QPoint(130, 25));
    EXPECT_FALSE(list.at(3));
}

TEST_F(QmlTrapezoidListTest, UpdateThatTheModelRefusesLeavesAnEmptyListAndSaysSo)
{
    m_list.update();
    m_model.refused << "SetGridPosition";
    const QSignalSpy changed(&m_list, &QmlTrapezoidList::listChanged);
    m_list.update();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_EQ(m_list.count(), 0);
}

TEST_F(QmlTrapezoidListTest, TheOutlineIsTheDefaultAtFirst)
{
    m_list.update();
    EXPECT_EQ(m_model.outline, TrapezoidPoints({0, 0}, {2, 0}, {0, 2}, {2, 2}));
    EXPECT_EQ(m_list.selectedPatch(), -1);
    EXPECT_TRUE(m_list.property("lastError").toString().isEmpty());
}

TEST_F(QmlTrapezoidListTest, LoadOutlineTakesTheModelsOutlineAndHandsItBack)
{
    m_model.outline = TrapezoidPoints({5, 6}, {70, 8}, {9, 100}, {110, 120});
    m_list.loadOutline();
    EXPECT_EQ(m_model.calls(), QStringList({"SetGridPosition"}));
    EXPECT_EQ(m_list.outlineView()->lowerRight(), QPoint(110, 120));
}

TEST_F(QmlTrapezoidListTest, ColorsAreFetchedCalibratedFirstFromANewImage)
{
    m_list.loadPatchColors();
    EXPECT_EQ(m_model.calls(),
              QStringList({"GetColorPatchValues true", "GetInitialColorPatchValues",
                           "GetTargetColorPatchValues"}));
    EXPECT_EQ(m_list.calibratedColorAt(23), QColor(173, 173, 173));
    EXPECT_EQ(m_list.originalColorAt(0), QColor(100, 100, 100));
    EXPECT_EQ(m_list.targetColorAt(19), QColor(69, 69, 69));
    EXPECT_TRUE(m_list.takeLastError().isEmpty());
}

TEST_F(QmlTrapezoidListTest, TheFirstRefusalStopsAndIsToldOnce)
{
    const QVector<QPair<QString, QString>> failures{
        {"GetColorPatchValues", "Unable to fetch color patch values! <br> "},
        {"GetInitialColorPatchValues", "Unable to fetch original color patch values! <br> "},
        {"GetTargetColorPatchValues", "Unable to fetch target color patch values! <br> "}};
    int asked = 0;
    for (const auto& failure : failures) {
        m_list.loadPatchColors();
        m_model.refused = {failure.first};
        m_model.takeCalls();
        const QSignalSpy told(&m_list, &QmlTrapezoidList::lastErrorChanged);
        m_list.loadPatchColors();
        EXPECT_EQ(m_model.calls().size(), ++asked);
        EXPECT_EQ(told.count(), 1);
        EXPECT_EQ(m_list.property("lastError").toString(), failure.second);
        EXPECT_EQ(m_list.property("lastError").toString(), QString());
        EXPECT_FALSE(m_list.targetColorAt(0).isValid()) << "old colors must not stay";
        m_model.refused.clear();
    }
}

TEST_F(QmlTrapezoidListTest, AnIndexPastTheEndIsLoggedAndInvalid)
{
    m_list.loadPatchColors();
    const LogRecorder log;
    EXPECT_FALSE(m_list.originalColorAt(24).isValid());
    EXPECT_FALSE(m_list.targetColorAt(25).isValid());
    EXPECT_FALSE(m_list.calibratedColorAt(26).isValid());
    QStringList texts;
    for (const LogEntry& entry : log.entries()) {
        EXPECT_EQ(entry.level, Core::Logging::Debug);
        EXPECT_EQ(entry.category, "ostria.viewer.plugins.colorCalibration.trapezoidList");
        texts << entry.text;
    }
    EXPECT_EQ(texts, QStringList({"Unable to get original color patch at index 24",
                                  "Unable to get original color patch at index 25",
                                  "Unable to get calibrated color patch at index 26"}));
}

TEST_F(QmlTrapezoidListTest, ThePointTellsPatchAndRegion)
{
    m_list.update();
    m_list.loadPatchColors();
    const QSignalSpy selected(&m_list, &QmlTrapezoidList::selectedPatchChanged);
    // In the first square the center is (30, 30), the middle of the lower edge (30, 50).
    EXPECT_EQ(m_list.colorAtPoint(30, 15), QColor(50, 50, 50)) << "upper triangle: target";
    EXPECT_EQ(m_list.colorAtPoint(15, 35), QColor(100, 100, 100)) << "left: original";
    EXPECT_EQ(m_list.colorAtPoint(45, 35), QColor(150, 150, 150)) << "right: calibrated";
    EXPECT_EQ(m_list.selectedPatch(), 0);
    EXPECT_EQ(selected.count(), 1) << "the patch has changed once";
    EXPECT_EQ(m_list.colorAtPoint(220, 15), QColor(52, 52, 52));
    EXPECT_EQ(m_list.selectedPatch(), 2);
    EXPECT_EQ(selected.count(), 2);
}

TEST_F(QmlTrapezoidListTest, OutsideAllPatchesIsTransparentAndSelectsNone)
{
    m_list.update();
    m_list.loadPatchColors();
    m_list.colorAtPoint(30, 15);
    EXPECT_EQ(m_list.colorAtPoint(150, 30), QColor(Qt::transparent)) << "between two patches";
    EXPECT_EQ(m_list.selectedPatch(), -1);
    EXPECT_EQ(m_list.colorAtPoint(-5, 1000), QColor("transparent"));
}

TEST_F(QmlTrapezoidListTest, ASharedBorderGoesToTheFirstPatch)
{
    // Both contain their left border alone by the odd-even rule, so overlap them by a pixel.
    m_model.patches[0] = TrapezoidPoints({10, 10}, {52, 10}, {10, 50}, {52, 50});
    m_list.update();
    m_list.loadPatchColors();
    m_list.colorAtPoint(51, 30);
    EXPECT_EQ(m_list.selectedPatch(), 0);
}

TEST_F(QmlTrapezoidListTest, APatchFacesTheCanvasNotTheImage)
{
    m_list.transformer()->setScale(2.0);
    m_list.transformer()->setOffset({100, 7});
    m_list.update();
    m_list.loadPatchColors();
    m_list.colorAtPoint(15, 12);
    EXPECT_EQ(m_list.selectedPatch(), -1);
    m_list.colorAtPoint(115, 15);
    EXPECT_EQ(m_list.selectedPatch(), 0);
}

TEST_F(QmlTrapezoidListTest, TheCaptionNumbersPatchesFromOneWithTwoDigits)
{
    EXPECT_EQ(m_list.textOfColor(QColor(1, 2, 3)), "Patch00 R: 1 G: 2 B: 3") << "none selected";
    m_model.patches.clear();
    for (int i = 0; i < 24; ++i)
        m_model.patches << TrapezoidPoints({i * 20, 0}, {i * 20 + 15, 0}, {i * 20, 15},
                                           {i * 20 + 15, 15});
    m_list.update();
    m_list.loadPatchColors();
    const auto captionOf = [this](int patch) {
        m_list.colorAtPoint(patch * 20 + 5, 5);
        return m_list.textOfColor(QColor(255, 0, 128));
    };
    EXPECT_EQ(captionOf(0), "Patch01 R: 255 G: 0 B: 128");
    EXPECT_EQ(captionOf(8), "Patch09 R: 255 G: 0 B: 128");
    EXPECT_EQ(captionOf(9), "Patch10 R: 255 G: 0 B: 128");
    EXPECT_EQ(captionOf(23), "Patch24 R: 255 G: 0 B: 128");
}

TEST_F(QmlTrapezoidListTest, ResetForgetsAllButTheModelsOutline)
{
    m_list.update();
    m_list.loadPatchColors();
    m_list.colorAtPoint(30, 15);
    m_list.transformer()->setScale(3.0);
    m_list.transformer()->setOffset({5, 5});
    m_model.outline = TrapezoidPoints({5, 6}, {70, 8}, {9, 100}, {110, 120});
    m_list.reset();
    EXPECT_EQ(m_list.count(), 0);
    EXPECT_EQ(m_list.selectedPatch(), -1);
    EXPECT_FALSE(m_list.originalColorAt(0).isValid());
    EXPECT_EQ(m_list.outlineView()->upperLeft(), QPoint(5, 6)) << "in image pixels again";
}

} // namespace
} // namespace ColorCalibration
