// SPDX-License-Identifier: Apache-2.0
// The page of results: its tables, its captions, the parts of its patches.
#include "resultspages.h"

#include <QAbstractItemModel>
#include <QMap>
#include <QQmlProperty>
#include <QTest>

namespace {

const char* const results = R"({
  "Original": {
    "BC6x2": {"Hue": {"Blue": "h1", "Cyan": "h2", "Green": "h3", "Magenta": "h4", "Red": "h5", "Yellow": "h6"},
              "Saturation": {"Blue": "s1", "Cyan": "s2", "Green": "s3", "Magenta": "s4", "Red": "s5", "Yellow": "s6"}},
    "BlackLevel": "0.5", "Gamma": "1",
    "HSBC": {"Brightness": "b", "Contrast": "c", "Hue": "N/A", "Saturation": "1.25"},
    "Matrix": {"Gain00": "1", "Gain01": "2", "Gain02": "3", "Gain10": "4", "Gain11": "5", "Gain12": "6",
               "Gain20": "7", "Gain21": "8", "Gain22": "9"},
    "WhiteBalance": {"Blue": "3", "Green": "2", "Red": "1"}},
  "Calibrated": {
    "BC6x2": {"Hue": {"Blue": "H1", "Cyan": "H2", "Green": "H3", "Magenta": "H4", "Red": "H5", "Yellow": "H6"},
              "Saturation": {"Blue": "S1", "Cyan": "S2", "Green": "S3", "Magenta": "S4", "Red": "S5", "Yellow": "S6"}},
    "BlackLevel": "0.25", "Gamma": "0.45",
    "HSBC": {"Brightness": "B", "Contrast": "C", "Hue": "0", "Saturation": "2"},
    "Matrix": {"Gain00": "1.5", "Gain01": "2.5", "Gain02": "3.5", "Gain10": "4.5", "Gain11": "5.5", "Gain12": "6.5",
               "Gain20": "7.5", "Gain21": "8.5", "Gain22": "9.5"},
    "WhiteBalance": {"Blue": "1.5", "Green": "1", "Red": "1.75"}},
  "Colors": {
    "Patch01": {"Current": "#735244", "DeltaC": "1.0000", "DeltaE": "2.0000", "Initial": "#ff0080", "Target": "#abc"},
    "Patch02": {"Current": "N/A", "DeltaC": "N/A", "DeltaE": "#12345", "Initial": "#000000", "Target": "#FFFFFF"}}
})";

QString patches(int count)
{
    QStringList entries;
    for (int i = 1; i <= count; ++i)
        entries << QString(R"("Patch%1":{"Current":"#000001"})").arg(i, 2, 10, QChar('0'));
    return "{\"Colors\":{" + entries.join(',') + "}}";
}

class Step3 : public ResultsPages
{
protected:
    struct Column
    {
        QString role;
        QString title;
        int width;
        bool operator==(const Column& other) const
        {
            return role == other.role && title == other.title && width == other.width;
        }
    };

    QQuickItem* table(int index) { return item(qPrintable(QString("report%1").arg(index))); }

    QObject* column(int index, int position)
    {
        return call(table(index), "getColumn", position).value<QObject*>();
    }

    QVector<Column> columns(int index)
    {
        QVector<Column> found;
        for (int i = 0; i < table(index)->property("columnCount").toInt(); ++i) {
            auto* one = column(index, i);
            found << Column{one->property("role").toString(), one->property("title").toString(),
                            one->property("width").toInt()};
        }
        return found;
    }

    /// The cells of a table as its columns show them.
    QVector<QStringList> rows(int index)
    {
        auto* model = table(index)->property("model").value<QAbstractItemModel*>();
        QVector<QStringList> found;
        for (int row = 0; row < model->rowCount(); ++row) {
            QStringList cells;
            for (const auto& one : columns(index))
                cells << model
                             ->data(model->index(row, 0), model->roleNames().key(one.role.toUtf8()))
                             .toString();
            found << cells;
        }
        return found;
    }

    QVector<int> selectedRows()
    {
        QVector<int> found;
        auto* selection = table(0)->property("selection").value<QObject*>();
        for (int i = 0; i < rows(0).size(); ++i) {
            QVariant contains;
            QMetaObject::invokeMethod(selection, "contains", Q_RETURN_ARG(QVariant, contains),
                                      Q_ARG(QVariant, i));
            if (contains.toBool())
                found << i;
        }
        return found;
    }

    void chooseReport(int index) { item("reports")->setProperty("currentIndex", index); }

    void select(int patch)
    {
        m_grid.m_selectedPatch = patch;
        emit m_grid.selectedPatchChanged();
    }
};

QVector<QStringList> twoRows(const QStringList& original, const QStringList& current)
{
    return {QStringList{"Original"} + original, QStringList{"Current"} + current};
}

TEST_F(Step3, ShowsOneRowOfEachOfOriginalAndCurrentSettings)
{
    m_model.m_results = results;
    open(3);
    EXPECT_EQ(rows(1), twoRows({"0.5"}, {"0.25"}));
    EXPECT_EQ(rows(2), twoRows({"3", "2", "1"}, {"1.5", "1", "1.75"}));
    EXPECT_EQ(rows(3), twoRows({"1", "2", "3", "4", "5", "6", "7", "8", "9"},
                               {"1.5", "2.5", "3.5", "4.5", "5.5", "6.5", "7.5", "8.5", "9.5"}));
    EXPECT_EQ(rows(4),
              twoRows({"h1", "h2", "h3", "h4", "h5", "h6"}, {"H1", "H2", "H3", "H4", "H5", "H6"}));
    EXPECT_EQ(rows(5),
              twoRows({"s1", "s2", "s3", "s4", "s5", "s6"}, {"S1", "S2", "S3", "S4", "S5", "S6"}));
    EXPECT_EQ(rows(6), twoRows({"1"}, {"0.45"}));
    EXPECT_EQ(rows(7), twoRows({"b", "c", "N/A", "1.25"}, {"B", "C", "0", "2"}));
    EXPECT_TRUE(rows(8).isEmpty());
}

TEST_F(Step3, ShowsHexadecimalColorsInDecimalAndLeavesOtherTexts)
{
    m_model.m_results = results;
    open(3);
    // 0x73 = 115, 0x52 = 82, 0x44 = 68; #abc is #aabbcc; five digits are no color.
    const QVector<QStringList> expected{
        {"Patch01", "R: 115 G: 82 B: 68", "2.0000", "1.0000", "R: 255 G: 0 B: 128",
         "R: 170 G: 187 B: 204"},
        {"Patch02", "N/A", "#12345", "N/A", "R: 0 G: 0 B: 0", "R: 255 G: 255 B: 255"}};
    EXPECT_EQ(rows(0), expected);
}

TEST_F(Step3, HasTheColumnsOfEachReport)
{
    open(3);
    const QVector<Column> colors{{"source", "Source", 75},     {"Current", "Current", 150},
                                 {"DeltaE", "Delta E", 80},    {"DeltaC", "Delta C", 80},
                                 {"Initial", "Original", 150}, {"Target", "Target", 150}};
    EXPECT_EQ(columns(0), colors);
    const Column source{"source", "Source", 90};
    EXPECT_EQ(columns(1), (QVector<Column>{source, {"BlackLevel", "Black Level", 75}}));
    EXPECT_EQ(columns(2),
              (QVector<Column>{
                  source, {"Blue", "Blue", 75}, {"Green", "Green", 75}, {"Red", "Red", 75}}));
    QVector<Column> matrix{source};
    for (const char* gain :
         {"Gain00", "Gain01", "Gain02", "Gain10", "Gain11", "Gain12", "Gain20", "Gain21", "Gain22"})
        matrix << Column{gain, gain, 75};
    EXPECT_EQ(columns(3), matrix);
    QVector<Column> sectors{source};
    for (const char* color : {"Blue", "Cyan", "Green", "Magenta", "Red", "Yellow"})
        sectors << Column{color, color, 75};
    EXPECT_EQ(columns(4), sectors);
    EXPECT_EQ(columns(5), sectors);
    EXPECT_EQ(columns(6), (QVector<Column>{source, {"Gamma", "Gamma", 75}}));
    QVector<Column> hsbc{source};
    for (const char* name : {"Brightness", "Contrast", "Hue", "Saturation"})
        hsbc << Column{name, name, 75};
    EXPECT_EQ(columns(7), hsbc);
    ASSERT_EQ(columns(8).size(), 1);
    EXPECT_EQ(columns(8)[0].role, "explanation");
    EXPECT_EQ(columns(8)[0].title, m_view->rootObject()->property("tLut").toString());
    EXPECT_EQ(columns(8)[0].width, 1000);
}

TEST_F(Step3, ShowsTheChosenReportAlone)
{
    open(3);
    for (int chosen = 0; chosen < 9; ++chosen) {
        chooseReport(chosen);
        for (int index = 0; index < 9; ++index)
            EXPECT_EQ(table(index)->isVisible(), index == chosen) << index << " of " << chosen;
    }
}

TEST_F(Step3, NamesTheReports)
{
    open(3);
    EXPECT_EQ(item("reports")->property("model").toStringList(),
              (QStringList{"Colors", "Black Level", "White Balance", "Color Transformation",
                           "Color Adjustment Hue", "Color Adjustment Saturation", "Gamma",
                           "Hue, Saturation, Brightness, Contrast", "LUT"}));
}

TEST_F(Step3, KeepsColumnsWideEnoughToBeSeen)
{
    open(3);
    column(0, 1)->setProperty("width", 10);
    EXPECT_EQ(column(0, 1)->property("width").toInt(), 60);
    column(0, 4)->setProperty("width", 55);
    EXPECT_EQ(column(0, 4)->property("width").toInt(), 55);
    column(0, 4)->setProperty("width", 10);
    EXPECT_EQ(column(0, 4)->property("width").toInt(), 50);
    column(3, 9)->setProperty("width", 59);
    EXPECT_EQ(column(3, 9)->property("width").toInt(), 60);
}

TEST_F(Step3, CallsAllButTheOriginalCurrent)
{
    open(3);
    EXPECT_EQ(call(page("toolBoxLoader"), "translateRootKey", "Original"), "Original");
    EXPECT_EQ(call(page("toolBoxLoader"), "translateRootKey", "Calibrated"), "Current");
}

TEST_F(Step3, SelectsThePatchUnderTheMouseAndScrollsItToTheTop)
{
    m_model.m_results = patches(24);
    open(3);
    picture();
    select(3);
    EXPECT_EQ(selectedRows(), (QVector<int>{3}));
    const auto row = [this](int y) {
        QVariant found;
        QMetaObject::invokeMethod(table(0), "rowAt", Q_RETURN_ARG(QVariant, found),
                                  Q_ARG(QVariant, 5), Q_ARG(QVariant, y));
        return found.toInt();
    };
    // The header is 22 pixels high.
    EXPECT_EQ(row(26), 3);
    select(5);
    EXPECT_EQ(selectedRows(), (QVector<int>{5}));
    EXPECT_EQ(row(26), 5);
    select(-1);
    EXPECT_EQ(selectedRows(), (QVector<int>{5}));
    select(0);
    EXPECT_EQ(selectedRows(), (QVector<int>{0}));
    EXPECT_EQ(row(26), 0);
}

TEST_F(Step3, MarksTheSelectedRow)
{
    m_model.m_results = patches(24);
    open(3);
    picture();
    select(0);
    const QPoint row = inWindow(table(0), {3, 30});
    EXPECT_EQ(picture().pixelColor(row), QColor("#a3a3a3"));
}

TEST_F(Step3, ShowsWhetherTheTableOfColorsHasTheFocus)
{
    open(3);
    const QPoint corner = inWindow(table(0), {0, 0});
    EXPECT_EQ(picture().pixelColor(corner), QColor("#828790"));
    table(0)->forceActiveFocus();
    EXPECT_EQ(picture().pixelColor(corner), QColor("black"));
}

TEST_F(Step3, TellsWhyColorsCouldNotBeFetched)
{
    m_grid.m_lastError = "Unable to fetch color patch values! <br> ";
    open(3);
    EXPECT_EQ(takeMessage(), "Unable to fetch color patch values! <br> ");
}

TEST_F(Step3, SaysNothingWithoutAnError)
{
    open(3);
    EXPECT_EQ(takeMessage(), "");
}

TEST_F(Step3, BeginsAtTheListOfReports)
{
    open(3);
    EXPECT_TRUE(item("reports")->hasActiveFocus());
}

TEST_F(Step3, ExplainsAPatchInASquareOfFourLines)
{
    open(3);
    auto* square = item("legendSquare");
    QVector<QQuickItem*> lines;
    for (auto* text : square->parentItem()->childItems().constFirst()->childItems())
        lines << text;
    ASSERT_EQ(lines.size(), 3);
    const QStringList expected{"1 - Target Value", "2 - Original Value", "3 - Current Value"};
    for (int line = 0; line < lines.size(); ++line)
        EXPECT_EQ(lines[line]->property("text").toString(), expected[line]);
    const double side = 4 * lines[0]->height();
    EXPECT_EQ(square->size(), QSizeF(side, side));
    EXPECT_EQ(square->property("color").value<QColor>(), QColor("white"));
    EXPECT_EQ(QQmlProperty(square, "border.color").read().value<QColor>(), QColor("#828790"));
    QMap<QString, QPointF> digits;
    for (auto* child : square->childItems())
        if (child->inherits("QQuickText"))
            digits[child->property("text").toString()] =
                child->position() + QPointF(child->width(), child->height()) / 2;
    ASSERT_EQ(digits.keys(), QStringList({"1", "2", "3"}));
    EXPECT_LT(digits["1"].y(), side / 2);
    EXPECT_LT(digits["2"].x(), side / 2);
    EXPECT_GT(digits["3"].x(), side / 2);
}

TEST_F(Step3, FillsTheTablesAnewAfterACalibration)
{
    m_model.m_results = results;
    open(3);
    m_model.m_results = patches(3);
    emit m_model.calibrationFinished();
    EXPECT_EQ(rows(0).size(), 3);
    EXPECT_TRUE(rows(1).isEmpty());
}

TEST_F(Step3, PaintsTargetAndOriginalColorsOverTheLiveImage)
{
    TrapezoidDouble first({100, 100}, {160, 160});
    TrapezoidDouble second({200, 100}, {260, 160});
    m_grid.m_list = {QVariant::fromValue<QObject*>(&first), QVariant::fromValue<QObject*>(&second)};
    m_grid.m_target = {Qt::red, Qt::yellow};
    m_grid.m_original = {Qt::blue, Qt::cyan};
    open(3);
    auto* canvas = item("canvasStep3");
    const auto pixel = [&](int x, int y) {
        return picture().pixelColor(inWindow(canvas, QPointF(x, y)));
    };
    m_camera.show(Qt::green);
    ASSERT_TRUE(waitFor([&] { return pixel(130, 110) == QColor(Qt::red); }));
    ASSERT_TRUE(waitFor([&] { return pixel(180, 200) == QColor(Qt::green); }));
    EXPECT_EQ(pixel(110, 130), QColor(Qt::blue));
    EXPECT_EQ(pixel(150, 130), QColor(Qt::green));
    EXPECT_EQ(pixel(230, 110), QColor(Qt::yellow));
    EXPECT_EQ(pixel(210, 130), QColor(Qt::cyan));
    EXPECT_EQ(pixel(250, 130), QColor(Qt::green));
    // Half of the line of one pixel falls on either side of the patch's edge.
    EXPECT_LT(pixel(160, 145).green(), 200);
    // A changed camera shows at once in the part of the current color, and in no other.
    m_camera.show(Qt::magenta);
    ASSERT_TRUE(waitFor([&] { return pixel(150, 130) == QColor(Qt::magenta); }));
    EXPECT_EQ(pixel(110, 130), QColor(Qt::blue));
}

TEST_F(Step3, LeavesTheImageWhereAColorIsNotKnown)
{
    TrapezoidDouble first({100, 100}, {160, 160});
    m_grid.m_list = {QVariant::fromValue<QObject*>(&first)};
    m_grid.m_target = {Qt::red};
    open(3);
    auto* canvas = item("canvasStep3");
    const auto pixel = [&](int x, int y) {
        return picture().pixelColor(inWindow(canvas, QPointF(x, y)));
    };
    m_camera.show(Qt::green);
    ASSERT_TRUE(waitFor([&] { return pixel(130, 110) == QColor(Qt::red); }));
    ASSERT_TRUE(waitFor([&] { return pixel(110, 130) == QColor(Qt::green); }));
}

TEST_F(Step3, CaptionsTheColorUnderTheMouse)
{
    open(3);
    auto* caption = item("caption");
    auto* canvas = item("canvasStep3");
    EXPECT_FALSE(caption->isVisible());
    m_grid.m_colorAtPoint = QColor(1, 2, 3);
    moveMouse(inWindow(canvas, {300, 200}));
    moveMouse(inWindow(canvas, {310, 210}));
    EXPECT_EQ(m_grid.m_points.last(), QPoint(310, 210));
    EXPECT_TRUE(caption->isVisible());
    EXPECT_EQ(caption->property("text"), "of #010203");
    EXPECT_EQ(caption->position(), QPointF(310, 200));
    const auto texts = caption->childItems();
    ASSERT_EQ(texts.size(), 2);
    EXPECT_EQ(texts[0]->property("color").value<QColor>(), QColor("black"));
    EXPECT_EQ(texts[0]->position(), QPointF(0, 0));
    EXPECT_EQ(texts[1]->property("color").value<QColor>(), QColor("white"));
    EXPECT_EQ(texts[1]->position(), QPointF(1, 1));
}

TEST_F(Step3, HidesAndEmptiesTheCaptionOffTheGrid)
{
    open(3);
    auto* caption = item("caption");
    auto* canvas = item("canvasStep3");
    m_grid.m_colorAtPoint = QColor(1, 2, 3);
    moveMouse(inWindow(canvas, {300, 200}));
    moveMouse(inWindow(canvas, {310, 210}));
    ASSERT_TRUE(caption->isVisible());
    m_grid.m_colorAtPoint = QColor("transparent");
    moveMouse(inWindow(canvas, {320, 210}));
    EXPECT_FALSE(caption->isVisible());
    EXPECT_EQ(caption->property("text"), "");
}

TEST_F(Step3, StartsTheLiveImage)
{
    open(3);
    EXPECT_EQ(m_log.made, (QStringList{"activeStep=3", "startGrab()"}));
}

TEST_F(Step3, TakesOneImageWhereTheLiveImageIsOff)
{
    open(4);
    m_view->rootObject()->setProperty("autoRefreshChecked", false);
    m_log.made.clear();
    m_model.setActiveStep(3);
    EXPECT_EQ(m_log.made, (QStringList{"activeStep=3", "singleGrab()"}));
}

TEST_F(Step3, GivesTheCameraBackWhenTheDialogEnds)
{
    open(3);
    m_view->rootObject()->setProperty("autoRefreshChecked", false);
    m_log.made.clear();
    emit m_model.cleanupQML();
    EXPECT_EQ(m_log.made, (QStringList{"stopGrab()"}));
    EXPECT_TRUE(m_view->rootObject()->property("autoRefreshChecked").toBool());
}

} // namespace
