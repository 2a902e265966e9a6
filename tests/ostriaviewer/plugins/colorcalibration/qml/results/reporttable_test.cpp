// SPDX-License-Identifier: Apache-2.0
// What a table of results makes of its values.
#include "resultspages.h"

#include <QAbstractItemModel>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace {

/// Relative luminance and contrast ratio of WCAG 2.1.
double luminance(const QColor& color)
{
    const auto linear = [](double level) {
        return level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const auto [darker, brighter] = std::minmax({luminance(one), luminance(other)});
    return (brighter + 0.05) / (darker + 0.05);
}

/// The color behind a text: that of the last rectangle that is painted before it under its middle.
QColor background(QQuickItem* item, const QPointF& place, const QQuickItem* text, bool& isReached)
{
    QColor found;
    if (item == text)
        isReached = true;
    if (isReached || !item->isVisible())
        return found;
    const bool isRectangle = item->inherits("QQuickRectangle");
    if (isRectangle && item->contains(item->mapFromScene(place)))
        found = item->property("color").value<QColor>();
    for (auto* child : item->childItems()) {
        const QColor inner = background(child, place, text, isReached);
        if (inner.isValid() && inner.alpha() > 0)
            found = inner;
    }
    return found;
}

class ReportTable : public ResultsPages
{
protected:
    /// The texts of a table that are seen.
    QVector<QQuickItem*> textItems(QQuickItem* table)
    {
        QVector<QQuickItem*> found;
        for (auto* child : table->childItems()) {
            if (!child->isVisible())
                continue;
            if (child->inherits("QQuickText") && !child->property("text").toString().isEmpty())
                found << child;
            found << textItems(child);
        }
        return found;
    }

    QStringList texts(QQuickItem* table)
    {
        QStringList found;
        for (const auto* text : textItems(table))
            found << text->property("text").toString();
        found.sort();
        return found;
    }

    void expectReadable(QQuickItem* table)
    {
        for (auto* text : textItems(table)) {
            bool isReached = false;
            const QColor behind = background(m_view->rootObject(), middleOf(text), text, isReached);
            // 4.5 is the least of level AA.
            EXPECT_GE(contrast(text->property("color").value<QColor>(), behind), 4.5)
                << qPrintable(text->property("text").toString()) << " on "
                << qPrintable(behind.name());
        }
    }

    int rows()
    {
        return item("report0")->property("model").value<QAbstractItemModel*>()->rowCount();
    }
};

TEST_F(ReportTable, RoundsWhatIsTooLongForAColumn)
{
    open(3);
    const QVector<QPair<QString, QString>> shown{{"-0.60546875", "-0.60547"},
                                                 {"1.59765625", "1.59766"},
                                                 {"0.0000001", "1.0000e-7"},
                                                 {"1.5", "1.5"},
                                                 {"2.0000", "2.0000"},
                                                 {"N/A", "N/A"},
                                                 {"R: 1 G: 2 B: 3", "R: 1 G: 2 B: 3"}};
    for (const auto& [value, expected] : shown)
        EXPECT_EQ(call(item("report3"), "shown", value).toString(), expected);
}

TEST_F(ReportTable, CanBeReadInADarkTheme)
{
    const QPalette before = QGuiApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::AlternateBase, QColor(40, 40, 40));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    QGuiApplication::setPalette(dark);
    m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"},"Patch02":{}}})";
    open(3);
    m_grid.m_selectedPatch = 1;
    emit m_grid.selectedPatchChanged();
    EXPECT_EQ(texts(item("report0")),
              QStringList({"Current", "Delta C", "Delta E", "Original", "Patch01", "Patch02",
                           "R: 0 G: 0 B: 1", "Source", "Target"}));
    expectReadable(item("report0"));
    item("reports")->setProperty("currentIndex", 8);
    ASSERT_EQ(texts(item("report8")).size(), 1) << "the message";
    expectReadable(item("report8"));
    QGuiApplication::setPalette(before);
}

TEST_F(ReportTable, DropsItsRowsWhereARecalibrationFails)
{
    m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"}}})";
    open(3);
    ASSERT_EQ(rows(), 1);
    m_log.failing = {"applyInitialColorPatchValues()"};
    m_model.m_results = "{}";
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(takeMessage(), "Apply initial values failed.");
}

} // namespace
