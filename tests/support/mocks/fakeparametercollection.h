// SPDX-License-Identifier: Apache-2.0
// A parameter collection in memory that records what is done with it.
#pragma once

#include "fakeparameters.h"
#include "iparametercollection.h"

class FakeParameterCollection : public Core::ParameterCollection::IParameterCollection
{
public:
    explicit FakeParameterCollection(const QVersionNumber& version)
        : m_version(version)
    {}

    /// The features behind it.
    FakeFeatures& features() { return *m_features; }

    void addFloat(const QString& name, double value,
                  double minimum = std::numeric_limits<double>::lowest(),
                  double maximum = std::numeric_limits<double>::max(), double resolution = 0.0)
    {
        FakeFeature feature;
        feature.value = value;
        feature.minimum = minimum;
        feature.maximum = maximum;
        feature.resolution = resolution;
        m_features->add(name, feature);
    }

    void addInteger(const QString& name, qint64 value, double minimum = -1e9, double maximum = 1e9)
    {
        FakeFeature feature;
        feature.kind = FakeKind::Integer;
        feature.value = value;
        feature.minimum = minimum;
        feature.maximum = maximum;
        m_features->add(name, feature);
    }

    void addBoolean(const QString& name, bool value)
    {
        FakeFeature feature;
        feature.kind = FakeKind::Boolean;
        feature.value = value;
        m_features->add(name, feature);
    }

    void addEnumeration(const QString& name, const QStringList& entries = {})
    {
        FakeFeature feature;
        feature.kind = FakeKind::Enumeration;
        feature.value = entries.value(0);
        feature.entries = entries;
        m_features->add(name, feature);
    }

    void addCommand(const QString& name)
    {
        FakeFeature feature;
        feature.kind = FakeKind::Command;
        m_features->add(name, feature);
    }

    /// Names as they were asked for, each once.
    QStringList lookups() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_lookups;
    }

    /// Says that a parameter which was asked for has changed.
    void emitChanged(const QString& name)
    {
        Core::ParameterCollection::ParameterPtr known;
        {
            const QMutexLocker lock(&m_mutex);
            for (const auto& parameter : qAsConst(m_parameters))
                if (parameter->name() == name)
                    known = parameter;
        }
        if (known)
            emit known->parameterDataChangedDecoupled();
    }

    Core::ParameterCollection::ParameterPtr parameter(const QString& name) override
    {
        switch (m_features->get(resolve(name)).kind) {
        case FakeKind::Integer:
            return integerParameter(name);
        case FakeKind::Boolean:
            return booleanParameter(name);
        case FakeKind::Enumeration:
            return enumerationParameter(name);
        case FakeKind::Command:
            return commandParameter(name);
        default:
            return floatParameter(name);
        }
    }
    Core::ParameterCollection::FloatParameterPtr floatParameter(const QString& name) override
    {
        return find<FakeFloat>(name, FakeKind::Float);
    }
    Core::ParameterCollection::IntegerParameterPtr integerParameter(const QString& name) override
    {
        return find<FakeInteger>(name, FakeKind::Integer);
    }
    Core::ParameterCollection::BooleanParameterPtr booleanParameter(const QString& name) override
    {
        return find<FakeBoolean>(name, FakeKind::Boolean);
    }
    Core::ParameterCollection::EnumerationParameterPtr
    enumerationParameter(const QString& name) override
    {
        return find<FakeEnumeration>(name, FakeKind::Enumeration);
    }
    Core::ParameterCollection::CommandParameterPtr commandParameter(const QString& name) override
    {
        return find<FakeCommand>(name, FakeKind::Command);
    }

    /// Answers to the next questions for the version, for a camera that changes its mind.
    mutable QVector<QVersionNumber> nextVersions;

    QVersionNumber sfncVersion() const override
    {
        m_features->announce(QStringLiteral("version"));
        return nextVersions.isEmpty() ? m_version : nextVersions.takeFirst();
    }

    /// One "name<tab>value" a line, by name, booleans as 0 or 1; without what cannot be read or
    /// written now.
    void saveFeatures(QString& out, const QString& nodeMap) override
    {
        m_features->announce(QStringLiteral("save %1").arg(nodeMap));
        m_features->record(QStringLiteral("save %1").arg(nodeMap));
        for (const QString& name : m_features->names()) {
            const FakeFeature feature = m_features->get(name);
            if (feature.readable && feature.writable)
                out += QStringLiteral("%1\t%2\n").arg(name, textOf(feature));
        }
    }

    void loadFeatures(const QString& text, QString& errors, const QString& nodeMap) override
    {
        m_features->announce(QStringLiteral("load %1").arg(nodeMap));
        m_features->record(QStringLiteral("load %1: %2").arg(nodeMap, text));
        for (const QString& line : text.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            const QString name = line.section(QLatin1Char('\t'), 0, 0);
            const FakeFeature before = m_features->get(name);
            if (m_features->contains(name) && before.writable && !before.refuses)
                m_features->change(name, [&line](FakeFeature& feature) {
                    feature.value = line.section(QLatin1Char('\t'), 1);
                });
            else
                errors += line + QLatin1Char('\n');
        }
    }

private:
    static QString textOf(const FakeFeature& feature)
    {
        if (feature.kind != FakeKind::Boolean)
            return feature.value.toString();
        return QLatin1String(feature.value.toBool() ? "1" : "0");
    }

    /// The first alternative that exists, or the first of all, without its node map.
    QString resolve(const QString& name) const
    {
        QStringList plain;
        for (const QString& alternative : name.split(QLatin1Char('|')))
            plain.append(alternative.startsWith(QLatin1String("@CameraDevice/"))
                             ? alternative.mid(int(sizeof "@CameraDevice/") - 1)
                             : alternative);
        for (const QString& alternative : plain)
            if (m_features->contains(alternative))
                return alternative;
        return plain.first();
    }

    template <typename Parameter>
    QSharedPointer<Parameter> find(const QString& name, FakeKind kind)
    {
        const QMutexLocker lock(&m_mutex);
        if (!m_lookups.contains(name))
            m_lookups.append(name);
        const QString resolved = resolve(name);
        auto& known =
            m_parameters[QStringLiteral("%1 %2").arg(static_cast<int>(kind)).arg(resolved)];
        if (!known)
            known = QSharedPointer<Parameter>::create(m_features, resolved, kind);
        return known.template staticCast<Parameter>();
    }

    std::shared_ptr<FakeFeatures> m_features = std::make_shared<FakeFeatures>();
    QVersionNumber m_version;
    mutable QRecursiveMutex m_mutex;
    QStringList m_lookups;
    QHash<QString, Core::ParameterCollection::ParameterPtr> m_parameters;
};
