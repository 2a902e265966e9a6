// SPDX-License-Identifier: Apache-2.0
// A camera's features as parameters of five kinds.
#pragma once

#include "coreexport.h"

#include <QObject>
#include <QString>
#include <QVector>

namespace Core::ParameterCollection {

/// What all parameters have in common.
///
/// A parameter object may stand for a feature that the camera does not have: it is empty then, is
/// neither readable nor writable, and every other call throws. Calls throw
/// GenICam::RuntimeException with the feature's name and the reason: not there, not readable or
/// writable now, out of range, refused by the camera, connection lost. A write that throws has
/// changed nothing that the caller did not ask for. Thread-safe.
class OSTRIAVIEWER_CORE_EXPORT IParameter : public QObject
{
    Q_OBJECT

public:
    ~IParameter() override;

    /// The feature's name, without a node map.
    virtual QString name() const = 0;

    /// The name for people, the feature's name where the camera has no other.
    virtual QString displayName() const = 0;

    /// Whether the camera has no such feature at all.
    virtual bool isEmpty() const = 0;

    /// Whether the feature is there with the camera's present settings.
    virtual bool isAvailable() const = 0;
    virtual bool isReadable() const = 0;

    /// False also while the feature is locked.
    virtual bool isWritable() const = 0;

    /// What the camera says about the feature, for people; empty where it says nothing.
    virtual QString description() const { return {}; }

    /// The unit of a number, as in "us"; empty where there is none.
    virtual QString unit() const { return {}; }

signals:
    /// Value, limits or access may have changed, also because another feature was written.
    /// Arrives from the event loop of the thread that the object lives in, never during the write,
    /// so that a receiver may use the camera. Several changes may arrive as one.
    void parameterDataChangedDecoupled();

protected:
    using QObject::QObject;
};

class OSTRIAVIEWER_CORE_EXPORT IFloatParameter : public IParameter
{
    Q_OBJECT

public:
    virtual double value() const = 0;

    /// \return  what the camera keeps, or the default if it cannot be read
    virtual double valueOrDefault(double defaultValue) const = 0;

    /// Limits with the camera's present settings; the lowest and highest double where there is
    /// none.
    virtual double minimum() const = 0;
    virtual double maximum() const = 0;

    /// The camera may round the value to its own resolution.
    virtual void setValue(double value) = 0;

    /// \return  false if the value was not written
    virtual bool trySetValue(double value) noexcept = 0;

protected:
    using IParameter::IParameter;
};

class OSTRIAVIEWER_CORE_EXPORT IIntegerParameter : public IParameter
{
    Q_OBJECT

public:
    virtual qint64 value() const = 0;
    virtual qint64 minimum() const = 0;
    virtual qint64 maximum() const = 0;

    /// Step between values, counted from the minimum; at least 1.
    virtual qint64 increment() const = 0;

    /// \param verify  reads back and throws if the camera keeps another value
    virtual void setValue(qint64 value, bool verify) = 0;

protected:
    using IParameter::IParameter;
};

class OSTRIAVIEWER_CORE_EXPORT IBooleanParameter : public IParameter
{
    Q_OBJECT

public:
    virtual bool value() const = 0;

    /// \param verify  reads back and throws if the camera keeps another value
    virtual void setValue(bool value, bool verify) = 0;

protected:
    using IParameter::IParameter;
};

/// One value of an enumeration.
struct EnumerationEntry
{
    QString name;        ///< as it is written
    QString displayName; ///< for people
    bool isSettable;     ///< whether it can be chosen with the camera's present settings
};

class OSTRIAVIEWER_CORE_EXPORT IEnumerationParameter : public IParameter
{
    Q_OBJECT

public:
    /// The name of the present entry.
    virtual QString value() const = 0;

    /// All entries in the camera's order.
    virtual QVector<EnumerationEntry> entries() const = 0;

    /// Throws if there is no such entry, or it cannot be chosen now.
    virtual void setValue(const QString& entry) = 0;

    /// \return  false if the entry was not chosen
    virtual bool trySetValue(const QString& entry) noexcept = 0;

protected:
    using IParameter::IParameter;
};

class OSTRIAVIEWER_CORE_EXPORT ITextParameter : public IParameter
{
    Q_OBJECT

public:
    virtual QString value() const = 0;
    virtual void setValue(const QString& value) = 0;

protected:
    using IParameter::IParameter;
};

class OSTRIAVIEWER_CORE_EXPORT ICommandParameter : public IParameter
{
    Q_OBJECT

public:
    /// Executes and waits until the camera says that it is done.
    virtual void execute() = 0;

protected:
    using IParameter::IParameter;
};

} // namespace Core::ParameterCollection
