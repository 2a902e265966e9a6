// SPDX-License-Identifier: Apache-2.0
// "find" and "measure --grid auto" on images with and without a chart.
#include "chartscene.h"
#include "colorcorrectionautochartfinder.h"
#include "command.h"
#include "commandtest.h"
#include "grid.h"

#include <QColor>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineF>

namespace {

class FindCommand : public CommandTest
{
protected:
    static ChartScene::Scene scene()
    {
        ChartScene::Scene made;
        made.size = {640, 480};
        made.corners = ChartScene::cornersOf({{310.0, 230.0}, 420.0, 1.0});
        return made;
    }

    QString writeScene(const char* name) const
    {
        const QString file = path(QLatin1String(name));
        EXPECT_TRUE(ChartScene::render(scene()).save(file, nullptr, 95)) << name;
        return file;
    }

    static Outcome find(const QString& file, const QStringList& options = {})
    {
        return runTool(QStringList{QStringLiteral("find"), file} + options);
    }

    static QVector<QPoint> cornersIn(const std::string& text)
    {
        QVector<QPoint> corners;
        for (const QString& word :
             QString::fromStdString(text).simplified().split(QLatin1Char(' ')))
            corners.append({word.section(QLatin1Char(','), 0, 0).toInt(),
                            word.section(QLatin1Char(','), 1).toInt()});
        return corners;
    }
};

} // namespace

TEST_F(FindCommand, FindsTheChartInEveryFormat)
{
    for (const char* name : {"a.png", "a.jpg", "a.tif", "a.bmp"}) {
        SCOPED_TRACE(name);
        const Outcome outcome = find(writeScene(name));
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        EXPECT_EQ(outcome.err, "");
        const QVector<QPoint> corners = cornersIn(outcome.out);
        ASSERT_EQ(corners.size(), 4) << outcome.out;
        const double quarterPitch = 420.0 / 6.0 / 4.0;
        for (int i = 0; i < 4; ++i)
            EXPECT_LT(QLineF(corners.at(i), scene().corners[static_cast<std::size_t>(i)]).length(),
                      quarterPitch)
                << i;
    }
}

TEST_F(FindCommand, TellsAsJsonWhatTheFinderAnswers)
{
    const QString file = writeScene("a.png");
    const Outcome outcome = find(file, {QStringLiteral("--json")});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    const QJsonObject found =
        QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
    const auto expected = ColorCalibration::ColorCorrectionAutoChartFinder().findChart(
        QImage(file).convertToFormat(QImage::Format_RGB32));
    const auto point = [&](const char* corner) {
        const QJsonArray values = found.value(QLatin1String(corner)).toArray();
        return QPoint(values.at(0).toInt(), values.at(1).toInt());
    };
    EXPECT_TRUE(found.value(QStringLiteral("valid")).toBool());
    EXPECT_EQ(point("upperLeft"), expected.upperLeft);
    EXPECT_EQ(point("upperRight"), expected.upperRight);
    EXPECT_EQ(point("lowerLeft"), expected.lowerLeft);
    EXPECT_EQ(point("lowerRight"), expected.lowerRight);
    EXPECT_GT(found.value(QStringLiteral("milliseconds")).toDouble(), 0.0);
}

TEST_F(FindCommand, PaintsTheGridOverTheImage)
{
    const QString file = writeScene("a.png");
    const QString drawn = path(QStringLiteral("drawn.png"));
    const Outcome outcome = find(file, {QStringLiteral("--draw"), drawn});
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const QImage before(file);
    const QImage after(drawn);
    ASSERT_EQ(after.size(), before.size());
    const QVector<QPoint> corners = cornersIn(outcome.out);
    // The outline's light blue half way along the top edge; the middle of a patch left alone.
    const QPoint top = (corners.at(0) + corners.at(1)) / 2;
    bool isLineSeen = false;
    for (int y = top.y() - 2; y <= top.y() + 2; ++y) {
        const QColor pixel = after.pixelColor(top.x(), y);
        isLineSeen = isLineSeen || (pixel.blue() > 200 && pixel.red() < 100);
    }
    EXPECT_TRUE(isLineSeen);
    const QPointF center =
        corners.at(0) + QPointF(corners.at(3) - corners.at(0)) * 0.125 + QPointF(8.0, 0.0);
    EXPECT_EQ(after.pixelColor(center.toPoint()), before.pixelColor(center.toPoint()));
    EXPECT_NE(before, after.convertToFormat(before.format()));
}

TEST_F(FindCommand, PaintsWhatItRefusesToo)
{
    QImage green(640, 480, QImage::Format_RGB32);
    green.fill(Qt::darkGreen);
    const QString file = path(QStringLiteral("green.png"));
    ASSERT_TRUE(green.save(file));
    const QString drawn = path(QStringLiteral("drawn.png"));
    find(file, {QStringLiteral("--draw"), drawn});
    EXPECT_EQ(QImage(drawn).size(), green.size());
}

TEST_F(FindCommand, RefusesCornersThatMeasureWouldRefuse)
{
    ColorCalibration::ColorCorrectionAutoChartFinderResult found;
    found.upperLeft = {20, 18};
    found.upperRight = {63, 34};
    found.lowerLeft = {10, 49};
    found.lowerRight = {72, 36};
    found.valid = true;
    EXPECT_THROW(ColorCalibrate::toGrid(found, {100, 100}), ColorCalibrate::CommandError);
    found.lowerRight = {72, 60};
    EXPECT_NO_THROW(ColorCalibrate::toGrid(found, {100, 100}));
    found.valid = false;
    EXPECT_THROW(ColorCalibrate::toGrid(found, {100, 100}), ColorCalibrate::CommandError);
}

TEST_F(FindCommand, SaysThatATallImageIsNotSearched)
{
    QImage tall(40, 900, QImage::Format_RGB32);
    tall.fill(Qt::darkGreen);
    const QString file = path(QStringLiteral("tall.png"));
    ASSERT_TRUE(tall.save(file));
    expectFailure(find(file), 1, {QStringLiteral("40 x 900"), QStringLiteral("tall")});
}

TEST_F(FindCommand, SaysWhereItCannotPaint)
{
    expectFailure(find(writeScene("a.png"),
                       {QStringLiteral("--draw"), QStringLiteral("/no/such/folder/drawn.png")}),
                  1, {QStringLiteral("/no/such/folder/drawn.png")});
}

TEST_F(FindCommand, SaysThatThereIsNoChart)
{
    QImage strip(20000, 20, QImage::Format_RGB32);
    strip.fill(Qt::darkGreen);
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    for (const QImage& image : {strip, pixel}) {
        const QString file = path(QStringLiteral("none.png"));
        ASSERT_TRUE(image.save(file));
        expectFailure(find(file), 1, {QStringLiteral("no chart was found")});
        const Outcome outcome = find(file, {QStringLiteral("--json")});
        EXPECT_EQ(outcome.code, 1);
        const QJsonObject found =
            QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out)).object();
        EXPECT_TRUE(found.contains(QStringLiteral("valid")));
        EXPECT_FALSE(found.value(QStringLiteral("valid")).toBool());
        expectFailure(runTool({QStringLiteral("measure"), file, QStringLiteral("--grid"),
                               QStringLiteral("auto")}),
                      1, {QStringLiteral("no chart was found")});
    }
}

TEST_F(FindCommand, RefusesWhatIsNoImage)
{
    expectFailure(find(writeFile(QStringLiteral("text.png"), "text")), 1,
                  {QStringLiteral("no image")});
    QFile zeros(path(QStringLiteral("zeros.png")));
    ASSERT_TRUE(zeros.open(QIODevice::WriteOnly) && zeros.resize(100 << 20));
    zeros.close();
    expectFailure(find(zeros.fileName()), 1, {QStringLiteral("no image")});
    const QString whole = writeScene("whole.png");
    QFile cut(whole);
    ASSERT_TRUE(cut.open(QIODevice::ReadWrite) && cut.resize(cut.size() / 2));
    cut.close();
    expectFailure(find(whole), 1, {QStringLiteral("truncated")});
    expectFailure(runTool({QStringLiteral("find")}), 2, {QStringLiteral("missing")});
}

TEST_F(FindCommand, PlacesTheGridForMeasuring)
{
    const QString file = writeScene("a.png");
    const Outcome found = find(file);
    const auto measureAt = [&](const QString& grid) {
        return runTool({QStringLiteral("measure"), file, QStringLiteral("--grid"), grid});
    };
    const Outcome measured = measureAt(QStringLiteral("auto"));
    EXPECT_EQ(measured.code, 0) << measured.err;
    EXPECT_EQ(measured.out, measureAt(QString::fromStdString(found.out)).out);
}
