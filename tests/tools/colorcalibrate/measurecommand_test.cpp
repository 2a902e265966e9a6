// SPDX-License-Identifier: Apache-2.0
// "measure" on good and bad images and grids.
#include "charttargets.h"
#include "colormath.h"
#include "commandtest.h"
#include "patchfile.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

class MeasureCommand : public CommandTest
{
protected:
    Outcome measure(const QString& image, const QStringList& options = {}) const
    {
        return runTool(
            QStringList{QStringLiteral("measure"), image, QStringLiteral("--grid"), chartGrid()} +
            options);
    }

    static ColorCalibration::PatchColors parsed(const std::string& text)
    {
        return ColorCalibrate::parsePatchColors(QByteArray::fromStdString(text), QString());
    }

    static void expectTargets(const ColorCalibration::PatchColors& colors, double tolerance)
    {
        const auto targets = ColorCalibration::ChartTargets().TargetColors();
        for (int i = 0; i < 24; ++i)
            for (int channel = 0; channel < 3; ++channel)
                EXPECT_NEAR(colors(i, channel), targets(i, channel), tolerance)
                    << "patch " << i << ", channel " << channel;
    }
};

} // namespace

TEST_F(MeasureCommand, MeasuresSixteenBits)
{
    for (const char* name : {"a.png", "a.tif"}) {
        const Outcome outcome =
            measure(writeChart(QLatin1String(name), QImage::Format_RGBX64, 65536));
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
        // Steps of the image, of QColor, and of the ratio to 65536 that is shown on 255.
        expectTargets(parsed(outcome.out), 0.01);
    }
}

TEST_F(MeasureCommand, MeasuresEightBits)
{
    for (const char* name : {"a.png", "a.tif", "a.bmp"}) {
        const Outcome outcome = measure(writeChart(QLatin1String(name), QImage::Format_RGB32, 256));
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        expectTargets(parsed(outcome.out), 1.0);
    }
    EXPECT_TRUE(
        chartImage(QImage::Format_RGB32, 256).save(path(QStringLiteral("a.jpg")), nullptr, 100));
    expectTargets(parsed(measure(path(QStringLiteral("a.jpg"))).out), 3.0);
}

TEST_F(MeasureCommand, ShowsASaturatedChannelJustBelowItsScale)
{
    QImage image(150, 120, QImage::Format_RGB32);
    image.fill(QColor(255, 0, 0));
    ASSERT_TRUE(image.save(path(QStringLiteral("a.png"))));
    const auto colors = parsed(measure(path(QStringLiteral("a.png"))).out);
    EXPECT_NEAR(colors(0, 0), 255.0 * 255.0 / 256.0, 0.002); // QColor keeps 16 bits
    EXPECT_EQ(colors(0, 1), 0.0);
}

TEST_F(MeasureCommand, TakesOffTheSrgbCurve)
{
    QImage image(150, 120, QImage::Format_RGB32);
    image.fill(QColor(128, 188, 10));
    ASSERT_TRUE(image.save(path(QStringLiteral("a.png"))));
    const auto colors =
        parsed(measure(path(QStringLiteral("a.png")), {QStringLiteral("--linearize")}).out);
    // IEC 61966-2-1 of 128/256, 188/256 and 10/256.
    EXPECT_NEAR(colors(5, 0), 255.0 * std::pow((0.5 + 0.055) / 1.055, 2.4), 0.01);
    EXPECT_NEAR(colors(5, 1), 255.0 * std::pow((188.0 / 256.0 + 0.055) / 1.055, 2.4), 0.01);
    EXPECT_NEAR(colors(5, 2), 255.0 * 10.0 / 256.0 / 12.92, 0.01);
}

TEST_F(MeasureCommand, PrintsTheSameAsJson)
{
    const QString file = writeChart(QStringLiteral("a.png"), QImage::Format_RGBX64, 65536);
    const auto expected = parsed(measure(file).out);
    const Outcome outcome = measure(file, {QStringLiteral("--json")});
    EXPECT_EQ(outcome.code, 0);
    const QJsonObject object =
        QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    const QJsonArray colors = object.value(QStringLiteral("colors")).toArray();
    ASSERT_EQ(colors.size(), 24);
    for (int i = 0; i < 24; ++i) {
        ASSERT_EQ(colors.at(i).toArray().size(), 3);
        for (int channel = 0; channel < 3; ++channel)
            EXPECT_EQ(colors.at(i).toArray().at(channel).toDouble(), expected(i, channel));
    }
}

TEST_F(MeasureCommand, WantsAnImageAndAGrid)
{
    expectFailure(runTool({QStringLiteral("measure")}), 2, {QStringLiteral("argument is missing")});
    expectFailure(runTool({QStringLiteral("measure"), QStringLiteral("a.png")}), 2,
                  {QStringLiteral("--grid is missing")});
    expectFailure(runTool({QStringLiteral("measure"), QStringLiteral("a.png"),
                           QStringLiteral("b.png"), QStringLiteral("--grid"), chartGrid()}),
                  2, {QStringLiteral("b.png"), QStringLiteral("too many")});
    expectFailure(
        runTool({QStringLiteral("measure"), QStringLiteral("a.png"), QStringLiteral("--grid")}), 2,
        {QStringLiteral("grid")});
    expectFailure(runTool({QStringLiteral("measure"), QStringLiteral("a.png"),
                           QStringLiteral("--raster"), QStringLiteral("x")}),
                  2, {QStringLiteral("raster")});
}

TEST_F(MeasureCommand, RefusesGridsThatCannotBe)
{
    const QString file = writeChart(QStringLiteral("a.png"), QImage::Format_RGB32, 256);
    const auto withGrid = [&](const char* grid) {
        return runTool(
            {QStringLiteral("measure"), file, QStringLiteral("--grid"), QLatin1String(grid)});
    };
    expectFailure(withGrid("1,2 3,4 5,6"), 2, {QStringLiteral("3 points")});
    expectFailure(withGrid("0,0 0,0 0,0 0,0"), 2, {QStringLiteral("one line")});
    expectFailure(withGrid("0,0 100,0 100,80 0,80"), 2, {QStringLiteral("crosses")});
    expectFailure(
        withGrid("10,20 151,20 10,100 130,100"), 1,
        {QStringLiteral("upper right"), QStringLiteral("151"), QStringLiteral("150 x 120")});
    expectFailure(withGrid("10,20 30,20 10,40 30,40"), 1,
                  {QStringLiteral("patch 1 "), QStringLiteral("fewer than 24 pixels")});
}

TEST_F(MeasureCommand, RefusesImagesThatCannotBeMeasured)
{
    expectFailure(measure(writeFile(QStringLiteral("text.png"), "text")), 1,
                  {QStringLiteral("text.png"), QStringLiteral("no image")});
    expectFailure(measure(writeChart(QStringLiteral("gray.png"), QImage::Format_Grayscale16, 256)),
                  1, {QStringLiteral("gray.png"), QStringLiteral("gray")});
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    ASSERT_TRUE(pixel.save(path(QStringLiteral("one.png"))));
    expectFailure(measure(path(QStringLiteral("one.png"))), 1, {QStringLiteral("1 x 1")});
}
