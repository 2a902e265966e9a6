// SPDX-License-Identifier: Apache-2.0
// The script's own arithmetic, by figures worked out by hand.
#include <QFile>
#include <QJSEngine>

#include <gtest/gtest.h>

namespace {

class Functions : public testing::Test
{
protected:
    Functions()
    {
        run(R"(
            var strokes = ""
            var ctx = {
                moveTo: function(x, y) { strokes += "m" + x.toFixed(1) + "," + y.toFixed(1) + " " },
                lineTo: function(x, y) { strokes += "l" + x.toFixed(1) + "," + y.toFixed(1) + " " },
                beginPath: function() { strokes += "begin " },
                closePath: function() { strokes += "close " },
                stroke: function() { strokes += "stroke" }
            }
            var Qt = { platform: { os: "linux" } }
        )");
        QFile script(":/ColCal/qml/functions.js");
        EXPECT_TRUE(script.open(QIODevice::ReadOnly));
        run(QString::fromUtf8(script.readAll()));
    }

    std::string run(const QString& code)
    {
        const QJSValue value = m_engine.evaluate(code);
        EXPECT_FALSE(value.isError()) << value.toString().toStdString();
        return value.toString().toStdString();
    }

    QJSEngine m_engine;
};

TEST_F(Functions, DashALineFromItsStart)
{
    EXPECT_EQ(run("drawDashed(ctx, 0, 0, 10, 0, 3); strokes"),
              "m0.0,0.0 l3.0,0.0 m6.0,0.0 l9.0,0.0 ");
}

TEST_F(Functions, DashUpToTheEndWhereItIsADashesTurn)
{
    EXPECT_EQ(run("drawDashed(ctx, 0, 0, 0, 8, 3); strokes"),
              "m0.0,0.0 l0.0,3.0 m0.0,6.0 l0.0,8.0 ");
}

TEST_F(Functions, DashALineShorterThanADashWhole)
{
    EXPECT_EQ(run("drawDashed(ctx, 1, 1, 4, 5, 9); strokes"), "m1.0,1.0 l4.0,5.0 ");
}

TEST_F(Functions, DashNothingOfALineWithoutLength)
{
    EXPECT_EQ(run("drawDashed(ctx, 5, 5, 5, 5, 3); strokes"), "");
}

TEST_F(Functions, DrawAQuadrilateralFromItsLowerLeftCorner)
{
    run("var t = { lowerLeft: {x: 1, y: 9}, lowerRight: {x: 8, y: 7}, upperRight: {x: 6, y: 2},"
        " upperLeft: {x: 3, y: 4} }");
    EXPECT_EQ(run("drawTrapezoid(ctx, t); strokes"),
              "begin m1.0,9.0 l8.0,7.0 l6.0,2.0 l3.0,4.0 close stroke");
    EXPECT_EQ(run("strokes = ''; drawTrapezoidMoved(ctx, t, 1, 2); strokes"),
              "begin m2.0,11.0 l9.0,9.0 l7.0,4.0 l4.0,6.0 close stroke");
}

TEST_F(Functions, KnowColorsInHexadecimal)
{
    for (const char* hex : {"#fff", "#A0b1C2", "#000000"})
        EXPECT_EQ(run(QString("isHexRepresentation('%1')").arg(hex)), "true") << hex;
    for (const char* other : {"", "#", "fff", "#ff", "#ffff", "#fffffff", "#ggg", " #fff", "#fff "})
        EXPECT_EQ(run(QString("isHexRepresentation('%1')").arg(other)), "false") << other;
    EXPECT_EQ(run("isHexRepresentation(12.5)"), "false");
}

TEST_F(Functions, WriteColorsAsNumbers)
{
    EXPECT_EQ(run("convertHexToRGB('#0a80FF')"), "R: 10 G: 128 B: 255");
    EXPECT_EQ(run("convertHexToRGB('#1fA')"), "R: 17 G: 255 B: 170");
}

TEST_F(Functions, WriteTheColorsOfAModelAsNumbersAndNothingElse)
{
    EXPECT_EQ(run("var row = { Current: '#010203', DeltaE: 1.5, source: 'Blue' };"
                  " convertModelValuesToRGB(row); JSON.stringify(row)"),
              R"({"Current":"R: 1 G: 2 B: 3","DeltaE":1.5,"source":"Blue"})");
}

TEST_F(Functions, TakePathsOutOfUrls)
{
    EXPECT_EQ(run("pathOfUrl('/home/a%20b/c.cst')"), "/home/a b/c.cst");
    EXPECT_EQ(run("pathOfUrl('file:///home/a%20b/c.cst')"), "/home/a b/c.cst");
    EXPECT_EQ(run("pathOfUrl('/home/100%25/c.cst')"), "/home/100%/c.cst");
    EXPECT_EQ(run("pathOfUrl('/home/file:///c.cst')"), "/home/file:///c.cst");
    EXPECT_EQ(run("Qt.platform.os = 'windows'; pathOfUrl('file:///C:/a%20b/c.cst')"),
              "C:/a b/c.cst");
}

/// Fits an image into a canvas of 400 by 300.
class Fitting : public Functions
{
protected:
    std::string fit(int width, int height)
    {
        return run(QString(R"(
            var distanceToImage = -1
            var camera = { originalSize: { width: %1, height: %2 } }
            var transformer = { scale: 0, setX: function(x) { this.x = x },
                                setY: function(y) { this.y = y } }
            var canvas = { width: 400, height: 300 }
            fitTransformation(canvas)
            ;[canvas.transformedWidth, canvas.transformedHeight, canvas.transformedOffsetX,
              canvas.transformedOffsetY, distanceToImage, transformer.scale, transformer.x,
              transformer.y].join(" ")
        )")
                       .arg(width)
                       .arg(height));
    }
};

TEST_F(Fitting, LeavesRoomUnderAWideImage)
{
    EXPECT_EQ(fit(1600, 800), "400 200 0 0 100 4 0 0");
}

TEST_F(Fitting, CentersATallImage)
{
    EXPECT_EQ(fit(300, 600), "150 300 125 0 0 2 125 0");
}

TEST_F(Fitting, EnlargesASmallImage)
{
    EXPECT_EQ(fit(200, 100), "400 200 0 0 100 0.5 0 0");
}

TEST_F(Fitting, DoesNothingWithoutAnImage)
{
    EXPECT_EQ(fit(0, 600), "    -1 0  ");
    EXPECT_EQ(fit(600, 0), "    -1 0  ");
}

} // namespace
