// SPDX-License-Identifier: Apache-2.0
// Tests of a quadrilateral as QML sees it.
#include "qmltrapezoid.h"

#include "pointtransformer.h"
#include "trapezoidpoints.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <map>
#include <memory>

namespace ColorCalibration {
namespace {

TEST(QmlTrapezoid, WithoutPointsReadsTheDefaultOutlineWhateverTheTransformer)
{
    PointTransformer transformer;
    transformer.setScale(4.0);
    transformer.setOffset({50, 60});
    const QmlTrapezoid plain;
    const QmlTrapezoid transformed(nullptr, &transformer);
    for (const QmlTrapezoid* trapezoid : {&plain, &transformed}) {
        EXPECT_EQ(trapezoid->upperLeft(), QPoint(0, 0));
        EXPECT_EQ(trapezoid->upperRight(), QPoint(2, 0));
        EXPECT_EQ(trapezoid->lowerLeft(), QPoint(0, 2));
        EXPECT_EQ(trapezoid->lowerRight(), QPoint(2, 2));
        EXPECT_EQ(trapezoid->center(), QPoint(1, 1));
        EXPECT_EQ(trapezoid->bottomCenter(), QPoint(1, 2));
    }
}

TEST(QmlTrapezoid, ReadsAndWritesThroughTheTransformer)
{
    PointTransformer transformer;
    transformer.setScale(2.0);
    transformer.setOffset({10, 0});
    TrapezoidPoints points({100, 50}, {300, 50}, {100, 250}, {300, 250});
    QmlTrapezoid trapezoid(&points, &transformer);
    EXPECT_EQ(trapezoid.upperLeft(), QPoint(60, 25));
    EXPECT_EQ(trapezoid.lowerRight(), QPoint(160, 125));
    trapezoid.setUpperLeft({61, 26});
    EXPECT_EQ(points.upperLeft(), QPoint(102, 52));
    trapezoid.setUpperRight({0, 0});
    EXPECT_EQ(points.upperRight(), QPoint(-20, 0));
    trapezoid.setLowerLeft({10, 100});
    EXPECT_EQ(points.lowerLeft(), QPoint(0, 200));
    trapezoid.setLowerRight({110, 100});
    EXPECT_EQ(points.lowerRight(), QPoint(200, 200));
}

TEST(QmlTrapezoid, WithoutATransformerIsInImagePixels)
{
    TrapezoidPoints points({1, 2}, {31, 2}, {1, 42}, {31, 42});
    QmlTrapezoid trapezoid(&points, nullptr);
    EXPECT_EQ(trapezoid.upperRight(), QPoint(31, 2));
    trapezoid.setLowerLeft({7, 8});
    EXPECT_EQ(points.lowerLeft(), QPoint(7, 8));
}

TEST(QmlTrapezoid, AWriteEmitsItsOwnSignalAloneAlsoWithoutAChangeAndWithoutPoints)
{
    TrapezoidPoints points;
    QmlTrapezoid withPoints(&points, nullptr);
    QmlTrapezoid withoutPoints;
    for (QmlTrapezoid* trapezoid : {&withPoints, &withoutPoints}) {
        std::map<std::string, std::unique_ptr<QSignalSpy>> spies;
        const auto watch = [&](const char* name, auto signal) {
            spies[name] = std::make_unique<QSignalSpy>(trapezoid, signal);
        };
        watch("upperLeft", &QmlTrapezoid::upperLeftChanged);
        watch("upperRight", &QmlTrapezoid::upperRightChanged);
        watch("lowerRight", &QmlTrapezoid::lowerRightChanged);
        watch("lowerLeft", &QmlTrapezoid::lowerLeftChanged);
        watch("center", &QmlTrapezoid::centerChanged);
        watch("bottomCenter", &QmlTrapezoid::bottomCenterChanged);
        for (const char* name : {"upperLeft", "upperRight", "lowerRight", "lowerLeft"}) {
            for (auto& spy : spies)
                spy.second->clear();
            ASSERT_TRUE(trapezoid->setProperty(name, trapezoid->property(name)));
            for (const auto& spy : spies)
                EXPECT_EQ(spy.second->count(), spy.first == name ? 1 : 0) << name << spy.first;
        }
    }
}

TEST(QmlTrapezoid, CenterIsWhereTheDiagonalsMeetTruncated)
{
    // Diagonals (0, 0)-(9, 9) and (10, 0)-(0, 5) meet where x = y and x = 10 - 2 y,
    // that is at 10 / 3.
    TrapezoidPoints points({0, 0}, {10, 0}, {0, 5}, {9, 9});
    EXPECT_EQ(QmlTrapezoid(&points, nullptr).center(), QPoint(3, 3));
    EXPECT_EQ(QmlTrapezoid(&points, nullptr).bottomCenter(), QPoint(4, 7));
    // The same shape left of and above the origin truncates towards zero too.
    TrapezoidPoints mirrored({0, 0}, {-10, 0}, {0, -5}, {-9, -9});
    EXPECT_EQ(QmlTrapezoid(&mirrored, nullptr).center(), QPoint(-3, -3));
    EXPECT_EQ(QmlTrapezoid(&mirrored, nullptr).bottomCenter(), QPoint(-4, -7));
}

TEST(QmlTrapezoid, CenterOfAFlatOutlineIsTheOrigin)
{
    TrapezoidPoints flat({10, 10}, {20, 10}, {30, 10}, {40, 10});
    EXPECT_EQ(QmlTrapezoid(&flat, nullptr).center(), QPoint(0, 0));
    TrapezoidPoints point({7, 7}, {7, 7}, {7, 7}, {7, 7});
    EXPECT_EQ(QmlTrapezoid(&point, nullptr).center(), QPoint(0, 0));
}

TEST(QmlTrapezoid, ResetOutlineChangesNothing)
{
    TrapezoidPoints points({1, 2}, {3, 4}, {5, 6}, {7, 8});
    const TrapezoidPoints before = points;
    QmlTrapezoid trapezoid(&points, nullptr);
    const QSignalSpy reset(&trapezoid, &QmlTrapezoid::resetOutline);
    ASSERT_TRUE(QMetaObject::invokeMethod(&trapezoid, "resetOutline"));
    EXPECT_EQ(reset.count(), 1);
    EXPECT_EQ(points, before);
}

} // namespace
} // namespace ColorCalibration
