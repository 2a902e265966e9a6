// SPDX-License-Identifier: Apache-2.0
// The handles of the grid's corners: where each may go, by figures worked out by hand. The grid
// spans (100, 100) to (300, 250), so that its handles stand at 92 and 292, and at 92 and 242.
#include "wizardwindow.h"

#include <QAbstractEventDispatcher>
#include <QAccessible>
#include <QQmlProperty>
#include <QTest>

namespace {

/// A corner, where the mouse takes it from its place, and where it may stand then.
struct Move
{
    const char* corner;
    QPoint to;
    QPoint expected;
};

std::string nameOf(const testing::TestParamInfo<Move>& info)
{
    return "To" + std::to_string(info.param.to.x()) + "And" + std::to_string(info.param.to.y());
}

void PrintTo(const Move& move, std::ostream* out)
{
    *out << move.corner << " to " << move.to.x() << ", " << move.to.y();
}

class GridHandles : public WizardWindow
{
protected:
    void openGrid()
    {
        openAt(1);
        ASSERT_EQ(property("canvasStep12", "transformedWidth").toInt(), 780);
        ASSERT_GT(property("canvasStep12", "transformedHeight").toInt(), 300);
    }

    QPoint corner(const char* name) { return m_outline.property(name).toPoint(); }
    QPoint handle(const char* name) { return item(name)->position().toPoint(); }

    void release(const char* name)
    {
        QTest::mouseRelease(m_view.get(), Qt::LeftButton, {}, middleOf(item(name)));
    }

    void focus(const char* name)
    {
        item(name)->forceActiveFocus();
        takeCalls();
    }

    static constexpr QPoint half{8, 8};
};

class GridHandleMoves : public GridHandles, public testing::WithParamInterface<Move>
{};

TEST_P(GridHandleMoves, AreTakenOrRefused)
{
    openGrid();
    const auto& move = GetParam();
    const QPoint from = corner(move.corner);
    drag(move.corner, move.to - from);
    EXPECT_EQ(corner(move.corner), move.expected);
    EXPECT_EQ(handle(move.corner), move.to - half);
    EXPECT_EQ(takeCalls().count("updateTrapezoidList()") > 0, move.expected != from);
    release(move.corner);
    EXPECT_EQ(handle(move.corner), move.expected - half);
    for (const char* other : {"upperLeft", "upperRight", "lowerRight", "lowerLeft"})
        EXPECT_EQ(handle(other), corner(other) - half) << other;
}

INSTANTIATE_TEST_SUITE_P(UpperLeft, GridHandleMoves,
                         testing::Values(Move{"upperLeft", {110, 120}, {110, 120}},
                                         Move{"upperLeft", {1, 100}, {1, 100}},
                                         Move{"upperLeft", {0, 100}, {100, 100}},
                                         Move{"upperLeft", {100, 1}, {100, 1}},
                                         Move{"upperLeft", {100, 0}, {100, 100}},
                                         Move{"upperLeft", {291, 100}, {291, 100}},
                                         Move{"upperLeft", {292, 100}, {100, 100}},
                                         Move{"upperLeft", {100, 241}, {100, 241}},
                                         Move{"upperLeft", {100, 242}, {100, 100}},
                                         // x is taken before y would lead across the diagonal.
                                         Move{"upperLeft", {250, 200}, {250, 100}}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(UpperRight, GridHandleMoves,
                         testing::Values(Move{"upperRight", {320, 90}, {320, 90}},
                                         Move{"upperRight", {779, 100}, {779, 100}},
                                         Move{"upperRight", {780, 100}, {300, 100}},
                                         Move{"upperRight", {101, 100}, {101, 100}},
                                         Move{"upperRight", {100, 100}, {300, 100}},
                                         Move{"upperRight", {300, 241}, {300, 241}},
                                         Move{"upperRight", {300, 242}, {300, 100}},
                                         Move{"upperRight", {150, 200}, {150, 100}}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(LowerRight, GridHandleMoves,
                         testing::Values(Move{"lowerRight", {310, 260}, {310, 260}},
                                         Move{"lowerRight", {101, 250}, {101, 250}},
                                         Move{"lowerRight", {100, 250}, {300, 250}},
                                         Move{"lowerRight", {300, 101}, {300, 101}},
                                         Move{"lowerRight", {300, 100}, {300, 250}},
                                         Move{"lowerRight", {150, 120}, {150, 250}}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(LowerLeft, GridHandleMoves,
                         testing::Values(Move{"lowerLeft", {90, 240}, {90, 240}},
                                         Move{"lowerLeft", {291, 250}, {291, 250}},
                                         Move{"lowerLeft", {292, 250}, {100, 250}},
                                         Move{"lowerLeft", {100, 101}, {100, 101}},
                                         Move{"lowerLeft", {100, 100}, {100, 250}},
                                         Move{"lowerLeft", {250, 120}, {250, 250}}),
                         nameOf);

TEST_F(GridHandles, StayBesideTheOppositeCornerOfAHollowGrid)
{
    m_outline.m_lowerRight = {180, 120};
    openGrid();
    drag("upperLeft", {70, 50});
    EXPECT_EQ(corner("upperLeft"), QPoint(170, 100));
    release("upperLeft");
    drag("upperLeft", {-20, 30});
    EXPECT_EQ(corner("upperLeft"), QPoint(150, 130));
    release("upperLeft");
}

TEST_F(GridHandles, DoNotMoveWhereTheyAreOnlyPressed)
{
    openGrid();
    takeCalls();
    drag("upperLeft", {0, 0});
    release("upperLeft");
    EXPECT_EQ(corner("upperLeft"), QPoint(100, 100));
    EXPECT_EQ(handle("upperLeft"), QPoint(92, 92));
}

TEST_F(GridHandles, FollowTheArrowKeysByAPixel)
{
    openGrid();
    focus("lowerRight");
    press(Qt::Key_Right);
    EXPECT_EQ(corner("lowerRight"), QPoint(301, 250));
    EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
    press(Qt::Key_Down);
    EXPECT_EQ(corner("lowerRight"), QPoint(301, 251));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    EXPECT_EQ(corner("lowerRight"), QPoint(299, 251));
    press(Qt::Key_Up);
    EXPECT_EQ(corner("lowerRight"), QPoint(299, 250));
    EXPECT_EQ(handle("lowerRight"), QPoint(291, 242));
}

TEST_F(GridHandles, TakeTheKeysWhenTheyAreClicked)
{
    openGrid();
    for (const char* name : {"lowerRight", "upperLeft"}) {
        const QPoint from = corner(name);
        click(name);
        EXPECT_TRUE(item(name)->hasActiveFocus()) << name;
        press(Qt::Key_Right);
        EXPECT_EQ(corner(name), from + QPoint(1, 0)) << name;
    }
}

TEST_F(GridHandles, LeaveTheirCornerForAWhileWhereAKeyIsRefused)
{
    m_outline.m_upperLeft = {1, 100};
    openGrid();
    EXPECT_EQ(property("checkTimerKeyDragging", "interval").toInt(), 5000);
    EXPECT_FALSE(property("checkTimerKeyDragging", "running").toBool());
    focus("upperLeft");
    press(Qt::Key_Left);
    EXPECT_EQ(corner("upperLeft"), QPoint(1, 100));
    EXPECT_EQ(handle("upperLeft"), QPoint(-8, 92));
    EXPECT_TRUE(takeCalls().isEmpty());
    EXPECT_TRUE(property("checkTimerKeyDragging", "running").toBool());
    EXPECT_TRUE(property("checkTimerKeyDragging", "isKeyDragging").toBool());

    QMetaObject::invokeMethod(object("checkTimerKeyDragging"), "triggered");
    EXPECT_EQ(handle("upperLeft"), QPoint(-7, 92));
    EXPECT_FALSE(property("checkTimerKeyDragging", "isKeyDragging").toBool());
}

TEST_F(GridHandles, AskForOnePictureAMove)
{
    openGrid();
    focus("upperLeft");
    const auto isAskedFor = [this] {
        return !QAbstractEventDispatcher::instance()->registeredTimers(m_view.get()).isEmpty();
    };
    ASSERT_TRUE(waitFor([&] { return !isAskedFor(); }));
    const QObject context;
    QVector<bool> askedAgain;
    QObject::connect(m_view.get(), &QQuickWindow::afterAnimating, &context,
                     [&] { askedAgain << isAskedFor(); });
    press(Qt::Key_Right);
    ASSERT_TRUE(isAskedFor());
    ASSERT_TRUE(waitFor([&] { return !askedAgain.isEmpty(); }));
    EXPECT_FALSE(askedAgain.first()) << "while it painted this one";
}

TEST_F(GridHandles, ShowTheirFocusAndTheHandCursor)
{
    openGrid();
    focus("upperRight");
    auto* disc = item("upperRight")->childItems().first();
    EXPECT_EQ(disc->width(), 16);
    EXPECT_EQ(QQmlProperty::read(disc, "border.width").toInt(), 1);
    EXPECT_EQ(QQmlProperty::read(disc, "color").value<QColor>(), QColor("#333333"));
    focus("upperLeft");
    EXPECT_EQ(QQmlProperty::read(disc, "border.width").toInt(), 0);
}

TEST_F(GridHandles, StandAtTheBorderAfterAReset)
{
    openGrid();
    const int height = property("canvasStep12", "height").toInt();
    m_camera.setOriginalSize({780, height - 50});
    ASSERT_EQ(property("canvasStep12", "transformedHeight").toInt(), height - 50);
    takeCalls();
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(takeCalls(), QStringList{"updateTrapezoidList()"});
    // Half of the 50 pixels under the image, 10 from the border, and the handle's radius of 8.
    EXPECT_EQ(handle("upperLeft"), QPoint(2, 27));
    EXPECT_EQ(handle("upperRight"), QPoint(754, 27));
    EXPECT_EQ(handle("lowerRight"), QPoint(754, height - 51));
    EXPECT_EQ(handle("lowerLeft"), QPoint(2, height - 51));
    EXPECT_EQ(corner("upperLeft"), QPoint(10, 35));
    EXPECT_EQ(corner("upperRight"), QPoint(762, 35));
    EXPECT_EQ(corner("lowerRight"), QPoint(762, height - 43));
    EXPECT_EQ(corner("lowerLeft"), QPoint(10, height - 43));
}

TEST_F(GridHandles, AreNotResetOnTheSecondStep)
{
    openAt(2);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(corner("upperLeft"), QPoint(100, 100));
    EXPECT_TRUE(takeCalls().isEmpty());
}

TEST_F(GridHandles, TellScreenReadersWhichCornerTheyMove)
{
    openGrid();
    const auto nameOf = [this](const char* handle) {
        const auto* reader = QAccessible::queryAccessibleInterface(item(handle));
        return reader ? reader->text(QAccessible::Name) : QString();
    };
    EXPECT_EQ(nameOf("upperLeft"), "Upper left corner of the grid");
    EXPECT_EQ(nameOf("upperRight"), "Upper right corner of the grid");
    EXPECT_EQ(nameOf("lowerRight"), "Lower right corner of the grid");
    EXPECT_EQ(nameOf("lowerLeft"), "Lower left corner of the grid");
}

} // namespace
