// SPDX-License-Identifier: Apache-2.0
// What the adapters of both sliders of the brightness page have in common.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace ColorCalibration {

class CalibrationInterface;

/// A value of the camera between its limits, on the scale of a slider. Thread-bound: GUI thread.
class SliderAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double min READ min NOTIFY signalMinChanged)
    Q_PROPERTY(double max READ max NOTIFY signalMaxChanged)
    /// -1.0 as long as there is none.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY signalValueChanged)
    /// Text of the last failure; a read empties it.
    Q_PROPERTY(QString lastError READ takeLastError NOTIFY lastErrorChanged)

public:
    virtual double min() const = 0;
    virtual double max() const = 0;

    /// May announce new limits.
    virtual double value() = 0;
    QString takeLastError();

    /// Reads value and limits from the camera, and writes the value back.
    /// \return  false if the camera refuses one of both
    Q_INVOKABLE bool initialize();

    Q_INVOKABLE virtual void setValue(double value) = 0;

    /// Forgets value and limits.
    void reset();

public slots:
    /// \param value  as the model says, in the camera's unit. Within 10 ms after a write or a
    ///               notification it is kept without a signal, so that echoes do not move the
    ///               slider.
    void onChangedValue(double value);

signals:
    void signalMinChanged();
    void signalMaxChanged();
    void signalValueChanged();
    void lastErrorChanged();

protected:
    /// \param model  lent for the life of this object
    SliderAdapter(CalibrationInterface* model, QObject* parent);

    CalibrationInterface& model() const { return *m_model; }
    double rawMin() const { return m_rawMin; }
    double rawMax() const { return m_rawMax; }
    double rawValue() const { return m_rawValue; }

    /// Keeps a value of the slider that is not written to the camera.
    void keepRaw(double value) { m_rawValue = value; }

    /// Writes to the camera, also if it is refused kept as the value.
    /// \param failure  text for the user, translated
    void writeRaw(double value, const QString& failure);

    /// The camera's value between its limits, in its own unit.
    /// \return  false if the model has none
    virtual bool readRange(double& min, double& value, double& max) = 0;
    virtual bool write(double value) = 0;

    /// How far the slider moves when the value changes from the raw value to this one.
    virtual double moveTo(double value) const = 0;

private:
    CalibrationInterface* m_model;
    double m_rawMin = -1.0;
    double m_rawMax = -1.0;
    double m_rawValue = -1.0;
    QTimer* m_quiet;
    QString m_lastError;
};

} // namespace ColorCalibration
