// SPDX-License-Identifier: Apache-2.0
// Parameters of the five kinds over features in memory.
#pragma once

#include "fakefeature.h"
#include "iparameter.h"

#include <memory>

/// What the five kinds share.
template <typename Interface>
class FakeParameter : public Interface
{
public:
    FakeParameter(std::shared_ptr<FakeFeatures> features, const QString& name, FakeKind kind)
        : m_features(std::move(features))
        , m_name(name)
        , m_kind(kind)
    {}

    QString name() const override { return m_name; }
    QString displayName() const override { return m_name; }
    bool isEmpty() const override
    {
        return !m_features->contains(m_name) || m_features->get(m_name).kind != m_kind;
    }
    bool isAvailable() const override { return !isEmpty(); }
    bool isReadable() const override { return !isEmpty() && m_features->get(m_name).readable; }
    bool isWritable() const override { return !isEmpty() && m_features->get(m_name).writable; }

protected:
    FakeFeature read(const char* what) const
    {
        requireFeature();
        return m_features->read(m_name, QLatin1String(what));
    }

    void write(const QVariant& value, const QString& text)
    {
        requireFeature();
        m_features->write(m_name, value, text);
    }

    bool tryWrite(const QVariant& value, const QString& text) noexcept
    {
        try {
            write(value, text);
            return true;
        } catch (...) {
            return false;
        }
    }

private:
    void requireFeature() const
    {
        if (isEmpty())
            throw GenICam::RuntimeException(m_name.toStdString() + " does not exist");
    }

    std::shared_ptr<FakeFeatures> m_features;
    QString m_name;
    FakeKind m_kind;
};

class FakeFloat : public FakeParameter<Core::ParameterCollection::IFloatParameter>
{
public:
    using FakeParameter::FakeParameter;

    double value() const override { return read("value").value.toDouble(); }
    double valueOrDefault(double defaultValue) const override
    {
        return isReadable() ? value() : defaultValue;
    }
    double minimum() const override { return read("minimum").minimum; }
    double maximum() const override { return read("maximum").maximum; }
    void setValue(double value) override
    {
        write(value, QStringLiteral("%1 = %2").arg(name()).arg(value));
    }
    bool trySetValue(double value) noexcept override
    {
        return tryWrite(value, QStringLiteral("try %1 = %2").arg(name()).arg(value));
    }
};

class FakeInteger : public FakeParameter<Core::ParameterCollection::IIntegerParameter>
{
public:
    using FakeParameter::FakeParameter;

    qint64 value() const override { return read("value").value.toLongLong(); }
    qint64 minimum() const override { return static_cast<qint64>(read("minimum").minimum); }
    qint64 maximum() const override { return static_cast<qint64>(read("maximum").maximum); }
    qint64 increment() const override { return 1; }
    void setValue(qint64 value, bool verify) override
    {
        write(value, QStringLiteral("%1 = %2%3")
                         .arg(name())
                         .arg(value)
                         .arg(QLatin1String(verify ? " verified" : "")));
    }
};

class FakeBoolean : public FakeParameter<Core::ParameterCollection::IBooleanParameter>
{
public:
    using FakeParameter::FakeParameter;

    bool value() const override { return read("value").value.toBool(); }
    void setValue(bool value, bool verify) override
    {
        write(value, QStringLiteral("%1 = %2%3")
                         .arg(name(), QLatin1String(value ? "true" : "false"),
                              QLatin1String(verify ? " verified" : "")));
    }
};

class FakeEnumeration : public FakeParameter<Core::ParameterCollection::IEnumerationParameter>
{
public:
    using FakeParameter::FakeParameter;

    QString value() const override { return read("value").value.toString(); }
    QVector<Core::ParameterCollection::EnumerationEntry> entries() const override
    {
        QVector<Core::ParameterCollection::EnumerationEntry> all;
        for (const QString& entry : read("entries").entries)
            all.append({entry, entry, true});
        return all;
    }
    void setValue(const QString& entry) override
    {
        write(entry, QStringLiteral("%1 = %2").arg(name(), entry));
    }
    bool trySetValue(const QString& entry) noexcept override
    {
        return tryWrite(entry, QStringLiteral("try %1 = %2").arg(name(), entry));
    }
};

class FakeCommand : public FakeParameter<Core::ParameterCollection::ICommandParameter>
{
public:
    using FakeParameter::FakeParameter;

    void execute() override { write(QVariant(), QStringLiteral("execute %1").arg(name())); }
};
