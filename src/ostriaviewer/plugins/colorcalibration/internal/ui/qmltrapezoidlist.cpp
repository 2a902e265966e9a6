// SPDX-License-Identifier: Apache-2.0
// The grid over the chart as QML sees it: outline, patches and their colors.
#include "qmltrapezoidlist.h"

#include "calibrationinterface.h"
#include "logging.h"

#include <QCoreApplication>
#include <QPolygon>

#include <algorithm>

namespace ColorCalibration {
namespace {

using List = QQmlListProperty<QmlTrapezoid>;
using Trapezoids = std::vector<std::unique_ptr<QmlTrapezoid>>;

int countOf(List* list)
{
    return static_cast<int>(static_cast<Trapezoids*>(list->data)->size());
}

QmlTrapezoid* entryOf(List* list, int index)
{
    const auto& trapezoids = *static_cast<Trapezoids*>(list->data);
    if (index < 0 || static_cast<std::size_t>(index) >= trapezoids.size())
        return nullptr;
    return trapezoids[static_cast<std::size_t>(index)].get();
}

QColor entryOf(const QVector<QColor>& colors, int index, const QString& failure)
{
    if (index >= colors.size()) {
        Core::Logging::createLogEntry(Core::Logging::Debug,
                                      Core::Logging::getCatId(QStringLiteral(
                                          "ostria.viewer.plugins.colorCalibration.trapezoidList")),
                                      failure.arg(index));
        return {};
    }
    return colors.at(index);
}

QString noOriginalColor()
{
    return QStringLiteral("Unable to get original color patch at index %1");
}

bool contains(const QVector<QPoint>& corners, const QPoint& point)
{
    return QPolygon(corners).containsPoint(point, Qt::OddEvenFill);
}

} // namespace

QmlTrapezoidList::QmlTrapezoidList(CalibrationInterface* model, QObject* parent)
    : QObject(parent)
    , m_model(model)
    , m_outlineView(&m_outline, &m_transformer)
{}

QmlTrapezoidList::~QmlTrapezoidList() = default;

QQmlListProperty<QmlTrapezoid> QmlTrapezoidList::list()
{
    return {this, &m_trapezoids, &countOf, &entryOf};
}

QString QmlTrapezoidList::takeLastError()
{
    QString text;
    text.swap(m_lastError);
    return text;
}

void QmlTrapezoidList::update()
{
    m_trapezoids.clear();
    m_patches.clear();
    if (m_model->SetGridPosition(m_outline)) {
        m_model->GetColorPatchTrapezoids(m_patches);
        for (TrapezoidPoints& patch : m_patches)
            m_trapezoids.push_back(std::make_unique<QmlTrapezoid>(&patch, &m_transformer, this));
    }
    emit listChanged();
}

int QmlTrapezoidList::count() const
{
    return static_cast<int>(m_trapezoids.size());
}

QColor QmlTrapezoidList::originalColorAt(int index) const
{
    return entryOf(m_originalColors, index, noOriginalColor());
}

QColor QmlTrapezoidList::targetColorAt(int index) const
{
    return entryOf(m_targetColors, index, noOriginalColor());
}

QColor QmlTrapezoidList::calibratedColorAt(int index) const
{
    return entryOf(m_calibratedColors, index,
                   QStringLiteral("Unable to get calibrated color patch at index %1"));
}

int QmlTrapezoidList::patchAt(const QPoint& point) const
{
    const auto found = std::find_if(m_trapezoids.begin(), m_trapezoids.end(),
                                    [&](const std::unique_ptr<QmlTrapezoid>& patch) {
                                        return contains({patch->upperLeft(), patch->upperRight(),
                                                         patch->lowerRight(), patch->lowerLeft()},
                                                        point);
                                    });
    return found == m_trapezoids.end() ? -1 : static_cast<int>(found - m_trapezoids.begin());
}

void QmlTrapezoidList::select(int patch)
{
    if (m_selectedPatch == patch)
        return;
    m_selectedPatch = patch;
    emit selectedPatchChanged();
}

QColor QmlTrapezoidList::colorAtPoint(int x, int y)
{
    const QPoint point(x, y);
    const int index = patchAt(point);
    select(index);
    if (index == -1)
        return QColor(Qt::transparent);
    const QmlTrapezoid& patch = *m_trapezoids[static_cast<std::size_t>(index)];
    const QPoint center = patch.center();
    const QPoint bottom = patch.bottomCenter();
    if (contains({patch.upperLeft(), patch.upperRight(), center}, point))
        return targetColorAt(index);
    if (contains({patch.upperLeft(), patch.lowerLeft(), bottom, center}, point))
        return originalColorAt(index);
    if (contains({patch.upperRight(), patch.lowerRight(), bottom, center}, point))
        return calibratedColorAt(index);
    return QColor(Qt::transparent);
}

QString QmlTrapezoidList::textOfColor(const QColor& color) const
{
    return QStringLiteral("Patch%1%2 R: %3 G: %4 B: %5")
        .arg(m_selectedPatch < 9 ? QStringLiteral("0") : QString())
        .arg(m_selectedPatch + 1)
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue());
}

void QmlTrapezoidList::loadPatchColors()
{
    m_calibratedColors.clear();
    m_originalColors.clear();
    m_targetColors.clear();
    if (m_model->GetColorPatchValues(m_calibratedColors, true) == 0)
        fail(QCoreApplication::translate("QmlTrapezoidList",
                                         "Unable to fetch color patch values! <br> "));
    else if (m_model->GetInitialColorPatchValues(m_originalColors) == 0)
        fail(QCoreApplication::translate("QmlTrapezoidList",
                                         "Unable to fetch original color patch values! <br> "));
    else if (m_model->GetTargetColorPatchValues(m_targetColors) == 0)
        fail(QCoreApplication::translate("QmlTrapezoidList",
                                         "Unable to fetch target color patch values! <br> "));
}

void QmlTrapezoidList::fail(const QString& text)
{
    m_lastError = text;
    emit lastErrorChanged();
}

void QmlTrapezoidList::loadOutline()
{
    m_outline = m_model->GetGridPosition();
    m_model->SetGridPosition(m_outline);
}

void QmlTrapezoidList::reset()
{
    m_trapezoids.clear();
    m_patches.clear();
    m_calibratedColors.clear();
    m_originalColors.clear();
    m_targetColors.clear();
    m_selectedPatch = -1;
    m_lastError.clear();
    m_transformer.setScale(1.0);
    m_transformer.setOffset({0, 0});
    loadOutline();
}

} // namespace ColorCalibration
