// SPDX-License-Identifier: Apache-2.0
// The features of a node map as the host's parameters.
#include "parametercollection.h"

#include "featurestream_p.h"
#include "featuretexts_p.h"
#include "featurewords_p.h"
#include "genicamexception.h"
#include "nodemap_p.h"
#include "numberfeature_p.h"
#include "parameters_p.h"

#include <optional>
#include <utility>

namespace Cameras::GenICam {

namespace {

using namespace Core::ParameterCollection;

QString nodeMapName()
{
    return QStringLiteral("@CameraDevice");
}

/// A name without this node map's prefix; with that of another it stays and finds nothing.
QString plainName(const QString& name)
{
    const QString prefix = nodeMapName() + QLatin1Char('/');
    return name.startsWith(prefix) ? name.mid(prefix.size()) : name;
}

void requireNodeMap(const QString& name)
{
    if (name != nodeMapName())
        throw ::GenICam::RuntimeException(
            FeatureTexts::tr("There is no node map \"%1\".").arg(name).toStdString());
}

class ParameterCollection : public IParameterCollection
{
public:
    ParameterCollection(std::shared_ptr<NodeMap> map, QString modelName)
        : m_map(std::move(map))
        , m_modelName(std::move(modelName))
    {}

    ParameterPtr parameter(const QString& name) override
    {
        return makeParameter(m_map, find(name));
    }

    FloatParameterPtr floatParameter(const QString& name) override
    {
        return makeFloatParameter(m_map, find(name, FeatureKind::Float));
    }

    IntegerParameterPtr integerParameter(const QString& name) override
    {
        return makeIntegerParameter(m_map, find(name, FeatureKind::Integer));
    }

    BooleanParameterPtr booleanParameter(const QString& name) override
    {
        return makeBooleanParameter(m_map, find(name, FeatureKind::Boolean));
    }

    EnumerationParameterPtr enumerationParameter(const QString& name) override
    {
        return makeEnumerationParameter(m_map, find(name, FeatureKind::Enumeration));
    }

    CommandParameterPtr commandParameter(const QString& name) override
    {
        return makeCommandParameter(m_map, find(name, FeatureKind::Command));
    }

    std::vector<FeatureCategory> categories() const override
    {
        const ReadLock lock(m_map->d());
        return featureCategories(m_map->d());
    }

    QVersionNumber sfncVersion() const override
    {
        const ReadLock lock(m_map->d());
        if (!m_sfncVersion)
            m_sfncVersion = readSfncVersion();
        return *m_sfncVersion;
    }

    void saveFeatures(QString& out, const QString& nodeMap) override
    {
        requireNodeMap(nodeMap);
        const WriteLock lock(m_map->d());
        out = writeFeatureStream(m_map->d(), {m_modelName, sfncVersion()});
    }

    void loadFeatures(const QString& text, QString& errors, const QString& nodeMap) override
    {
        errors.clear();
        requireNodeMap(nodeMap);
        const WriteLock lock(m_map->d());
        errors = readFeatureStream(m_map->d(), text);
    }

private:
    /// The first of the alternatives that the camera has.
    Feature find(const QString& names) const
    {
        const QStringList alternatives = names.split(QLatin1Char('|'));
        const ReadLock lock(m_map->d());
        for (const QString& name : alternatives) {
            const Feature feature = Feature::find(m_map->d(), plainName(name));
            if (!feature.isEmpty())
                return feature;
        }
        return Feature(plainName(alternatives.front()));
    }

    Feature find(const QString& names, FeatureKind kind) const
    {
        const Feature feature = find(names);
        return feature.kind() == kind ? feature : Feature(feature.name());
    }

    QVersionNumber readSfncVersion() const
    {
        const auto number = [this](const char* name) {
            const Feature feature = find(QLatin1String(name), FeatureKind::Integer);
            return feature.isEmpty() ? 0 : static_cast<int>(integerValue(feature));
        };
        if (find(QStringLiteral("DeviceSFNCVersionMajor"), FeatureKind::Integer).isEmpty())
            return QVersionNumber(1, 5, 1);
        return QVersionNumber(number("DeviceSFNCVersionMajor"), number("DeviceSFNCVersionMinor"),
                              number("DeviceSFNCVersionSubMinor"));
    }

    const std::shared_ptr<NodeMap> m_map;
    const QString m_modelName;
    mutable std::optional<QVersionNumber> m_sfncVersion;
};

} // namespace

ParameterCollectionPtr createParameterCollection(std::shared_ptr<NodeMap> nodeMap,
                                                 const QString& modelName)
{
    return ParameterCollectionPtr(new ParameterCollection(std::move(nodeMap), modelName));
}

} // namespace Cameras::GenICam
