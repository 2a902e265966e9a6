// SPDX-License-Identifier: Apache-2.0
// The camera's exposure time on the scale of a slider.
#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace ColorCalibration {

class CalibrationInterface;

/// The decimal logarithm of the exposure time in microseconds. Thread-bound: GUI thread.
class QMLExposureTime : public QObject
{
    Q_OBJECT
    /// Ends of the slider. They follow a read of value.
    Q_PROPERTY(double min READ min NOTIFY signalMinChanged)
    Q_PROPERTY(double max READ max NOTIFY signalMaxChanged)
    /// -1.0 as long as there is none. Every write of a positive number reaches the camera.
    Q_PROPERTY(double value READ value WRITE setValue NOTIFY signalValueChanged)
    /// Text of the last failure; a read empties it.
    Q_PROPERTY(QString lastError READ takeLastError NOTIFY lastErrorChanged)

public:
    /// \param model  lent for the life of this object
    explicit QMLExposureTime(CalibrationInterface* model, QObject* parent = nullptr);

    double min() const { return m_logMin; }
    double max() const { return m_logMax; }
    double value();
    QString takeLastError();

    /// Reads value and limits from the camera, and writes the value back.
    /// \return  false if the camera refuses one of both
    Q_INVOKABLE bool initialize();

    Q_INVOKABLE void setValue(double value);

    /// Forgets value and limits.
    void reset();

public slots:
    /// \param value  as the camera says, microseconds. Within 10 ms after a write or a notification
    ///               it is kept without a signal, so that echoes do not move the slider.
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
    double m_logMin = -1.0;
    double m_logMax = -1.0;
    QTimer* m_quiet;
    QString m_lastError;
};

} // namespace ColorCalibration
