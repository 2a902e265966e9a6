// SPDX-License-Identifier: Apache-2.0
// The grid over the chart as QML sees it: outline, patches and their colors.
#pragma once

#include "pointtransformer.h"
#include "qmltrapezoid.h"
#include "trapezoidpoints.h"

#include <QColor>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QVector>

#include <memory>
#include <vector>

namespace ColorCalibration {

class CalibrationInterface;

/// Corners are kept in image pixels and shown in canvas pixels. Indices are those of the chart's
/// patches, row by row from the upper left. Thread-bound: GUI thread.
class QmlTrapezoidList : public QObject
{
    Q_OBJECT
    /// Valid until the next update().
    Q_PROPERTY(QQmlListProperty<ColorCalibration::QmlTrapezoid> list READ list NOTIFY listChanged)
    /// Index of the patch under the mouse, -1 for none.
    Q_PROPERTY(int selectedPatch READ selectedPatch NOTIFY selectedPatchChanged)
    /// Text of the last failure; a read empties it.
    Q_PROPERTY(QString lastError READ takeLastError NOTIFY lastErrorChanged)

public:
    /// \param model  lent for the life of this object
    explicit QmlTrapezoidList(CalibrationInterface* model, QObject* parent = nullptr);
    ~QmlTrapezoidList() override;

    QQmlListProperty<QmlTrapezoid> list();
    int selectedPatch() const { return m_selectedPatch; }
    QString takeLastError();

    /// Hands the outline to the model and rebuilds the list.
    Q_INVOKABLE void update();
    Q_INVOKABLE int count() const;

    /// Measured colors before and after calibration, and what they should be. Past the end: logs,
    /// and returns an invalid color. The index must not be negative.
    Q_INVOKABLE QColor originalColorAt(int index) const;
    Q_INVOKABLE QColor targetColorAt(int index) const;
    Q_INVOKABLE QColor calibratedColorAt(int index) const;

    /// The color that the page paints at a canvas point, transparent outside all patches. Selects
    /// the patch there.
    Q_INVOKABLE QColor colorAtPoint(int x, int y);

    /// Caption of a color of the selected patch.
    Q_INVOKABLE QString textOfColor(const QColor& color) const;

    /// Fetches the three lists of colors; those under the calibrated settings from a new image.
    /// Stops at the first that the model refuses, which sets lastError.
    Q_INVOKABLE void loadPatchColors();

    /// Takes over the model's outline, and lets the model compute its patches anew.
    Q_INVOKABLE void loadOutline();

    /// Forgets everything but the model's outline, before the scene is loaded again.
    void reset();

    /// Replaces the outline; nobody is told.
    /// \param outline  image pixels
    void setOutline(const TrapezoidPoints& outline) { m_outline = outline; }

    PointTransformer* transformer() { return &m_transformer; }
    QmlTrapezoid* outlineView() { return &m_outlineView; }

signals:
    void listChanged();
    void selectedPatchChanged();
    void lastErrorChanged();

private:
    int patchAt(const QPoint& point) const;
    void select(int patch);
    void fail(const QString& text);

    CalibrationInterface* m_model;
    QVector<TrapezoidPoints> m_patches;
    std::vector<std::unique_ptr<QmlTrapezoid>> m_trapezoids;
    PointTransformer m_transformer;
    TrapezoidPoints m_outline;
    QmlTrapezoid m_outlineView;
    QVector<QColor> m_originalColors;
    QVector<QColor> m_targetColors;
    QVector<QColor> m_calibratedColors;
    int m_selectedPatch = -1;
    QString m_lastError;
};

} // namespace ColorCalibration
