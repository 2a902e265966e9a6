// SPDX-License-Identifier: Apache-2.0
// Lets the user set features of an emulated camera act on its user sets.
#include "usersetcontrol.h"

#include <memory>
#include <utility>

namespace Cameras::Emulation {
namespace {

const QString selectorName = QStringLiteral("UserSetSelector");
const QString defaultName = QStringLiteral("UserSetDefault");

// The name of an enumeration's present entry, empty if there is no such enumeration.
QString entryName(const FeatureValues& values, const QString& feature)
{
    const auto now = static_cast<qint64>(values.value(feature));
    if (const FeatureDefinition* definition = values.table().find(feature))
        for (const EntryDefinition& entry : definition->entries)
            if (entry.value == now)
                return entry.name;
    return {};
}

double entryValue(const FeatureTable& table, const QString& feature, const QString& name)
{
    if (const FeatureDefinition* definition = table.find(feature))
        for (const EntryDefinition& entry : definition->entries)
            if (entry.name == name)
                return static_cast<double>(entry.value);
    return 0.0;
}

void followWrite(RegisterStore& store, UserSets& sets, const QString& feature)
{
    if (feature == defaultName) {
        sets.setStartUpSet(entryName(store.values(), defaultName));
    } else if (feature == QLatin1String("UserSetSave")) {
        const FeatureValues values = store.values();
        sets.save(entryName(values, selectorName), values);
    } else if (feature == QLatin1String("UserSetLoad")) {
        FeatureValues values = store.values();
        sets.load(entryName(values, selectorName), values);
        store.setValues(values);
    }
}

} // namespace

void startUserSets(RegisterStore& store, UserSets sets)
{
    FeatureValues values = store.values();
    sets.load(sets.startUpSet(), values);
    values.set(selectorName, 0.0);
    values.set(defaultName, entryValue(values.table(), defaultName, sets.startUpSet()));
    store.setValues(values);

    // Clients write one at a time, so the sets need no lock.
    auto shared = std::make_shared<UserSets>(std::move(sets));
    store.setWriteHook([&store, shared](const FeatureDefinition& feature, int) {
        followWrite(store, *shared, feature.name);
    });
}

} // namespace Cameras::Emulation
