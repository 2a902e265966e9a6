// SPDX-License-Identifier: Apache-2.0
// The camera's gain on the scale of a slider.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace ColorCalibration {

class CalibrationInterface;

/// The gain between its limits, 0 to 1. Thread-bound: GUI thread.
class QMLGainvalue : public QObject
{
    Q_OBJECT
    /// Limits of the gain itself, in the model's unit.
    Q_PROPERTY(double min READ min NOTIFY signalMinChanged)
    Q_PROPERTY(double max READ max NOTIFY signalMaxChanged)
    /// 0 to 1; 0 where both limits are equal, -1.0 as long as there is none.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY signalValueChanged)
    /// Text of the last failure; a read empties it.
    Q_PROPERTY(QString lastError READ takeLastError NOTIFY lastErrorChanged)

public:
    /// \param model  lent for the life of this object
    explicit QMLGainvalue(CalibrationInterface* model, QObject* parent = nullptr);

    double min() const { return m_rawMin; }
    double max() const { return m_rawMax; }
    double value() const;
    QString takeLastError();

    /// Reads value and limits from the camera, and writes the value back.
    /// \return  false if the camera refuses one of both
    Q_INVOKABLE bool initialize();

    /// \param value  0 to 1; a negative one is ignored
    Q_INVOKABLE void setValue(double value);

    /// Forgets value and limits.
    void reset();

public slots:
    /// \param value  as the model says. Within 10 ms after a write or a notification it is kept
    ///               without a signal, so that echoes do not move the slider.
    void onChangedValue(double value);

signals:
    void signalMinChanged();
    void signalMaxChanged();
    void signalValueChanged();
    void lastErrorChanged();

private:
    CalibrationInterface* m_model;
    double m_rawMin = -1.0;
    double m_rawMax = -1.0;
    double m_rawValue = -1.0;
    QTimer* m_quiet;
    QString m_lastError;
};

} // namespace ColorCalibration
