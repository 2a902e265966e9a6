// SPDX-License-Identifier: Apache-2.0
// Finds out which features changed, and tells those who want to know.
#include "changewatch_p.h"

#include "enumerationfeature_p.h"
#include "genicamexception.h"
#include "librarylog_p.h"
#include "nodemap_p.h"
#include "numberfeature_p.h"
#include "patience.h"
#include "textfeature_p.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <mutex>
#include <new>
#include <utility>

namespace Cameras::GenICam {

namespace {

using Snapshot = ChangeWatch::Snapshot;

std::uint64_t bits(qint64 value)
{
    return static_cast<std::uint64_t>(value);
}

std::uint64_t bits(double value)
{
    std::uint64_t result = 0;
    std::memcpy(&result, &value, sizeof result);
    return result;
}

std::uint64_t bits(bool value)
{
    return value ? 1 : 0;
}

std::uint64_t bits(const QString& text)
{
    return qHash(text);
}

/// Adds what a question answers; a refusal is an answer as well.
template <class Ask>
void look(Snapshot& snapshot, const Feature& feature, const Ask& ask)
{
    try {
        snapshot.push_back(bits(ask(feature)));
    } catch (const ::GenICam::RuntimeException&) {
        snapshot.push_back(0);
        snapshot.push_back(~std::uint64_t{0});
    }
}

QString entryStates(const Feature& feature)
{
    QString states;
    for (const auto& entry : enumerationEntryList(feature))
        states.append(QLatin1Char(entry.isSettable ? '1' : '0'));
    return states;
}

void lookAtValue(Snapshot& snapshot, const Feature& feature)
{
    switch (feature.kind()) {
    case FeatureKind::Integer:
        look(snapshot, feature, integerValue);
        look(snapshot, feature, integerMinimum);
        look(snapshot, feature, integerMaximum);
        look(snapshot, feature, integerIncrement);
        break;
    case FeatureKind::Float:
        look(snapshot, feature, floatValue);
        look(snapshot, feature, floatMinimum);
        look(snapshot, feature, floatMaximum);
        break;
    case FeatureKind::Boolean:
        look(snapshot, feature, booleanValue);
        break;
    case FeatureKind::Enumeration:
        look(snapshot, feature, enumerationValue);
        look(snapshot, feature, entryStates);
        break;
    case FeatureKind::Text:
        look(snapshot, feature, featureText);
        break;
    case FeatureKind::Command:
    case FeatureKind::Other:
        break;
    }
}

Snapshot lookAt(const Feature& feature)
{
    const LibraryScope scope(feature.map().camera(), feature.name());
    Snapshot snapshot;
    const bool isAvailable = feature.isAvailable();
    snapshot.push_back(bits(isAvailable));
    if (!isAvailable)
        return snapshot;
    snapshot.push_back(bits(feature.isReadable()));
    snapshot.push_back(bits(feature.isWritable()));
    lookAtValue(snapshot, feature);
    return snapshot;
}

} // namespace

struct ChangeWatch::Watch
{
    Watch(const Feature& watched, std::function<bool()> someoneHears, std::function<void()> tell)
        : feature(watched)
        , isHeard(std::move(someoneHears))
        , notify(std::move(tell))
    {}

    const Feature feature;
    const std::function<bool()> isHeard;
    const std::function<void()> notify;

    std::mutex mutex; ///< held while the functions are called; guards isRemoved
    bool isRemoved = false;

    bool isKnown = false; ///< guarded by the node map's mutex, as is what follows
    Snapshot last;
};

ChangeWatch::Handle ChangeWatch::add(const Feature& feature, std::function<bool()> isHeard,
                                     std::function<void()> notify)
{
    const auto watch = std::make_shared<Watch>(feature, std::move(isHeard), std::move(notify));
    const std::lock_guard lock(m_listMutex);
    m_watches.push_back(watch);
    return watch;
}

void ChangeWatch::remove(const Handle& watch)
{
    {
        const std::lock_guard lock(watch->mutex);
        watch->isRemoved = true;
    }
    const std::lock_guard lock(m_listMutex);
    m_watches.erase(std::find(m_watches.begin(), m_watches.end(), watch));
}

std::vector<ChangeWatch::Handle> ChangeWatch::watches() const
{
    const std::lock_guard lock(m_listMutex);
    return m_watches;
}

void ChangeWatch::renew(Watch& watch)
{
    if (watch.isKnown)
        return;
    const std::uint64_t failures = Patience::failures();
    watch.last = lookAt(watch.feature);
    watch.isKnown = Patience::failures() == failures;
}

// A look that the camera has not answered shows nothing; the next one tells.
void ChangeWatch::compare(Watch& watch)
{
    {
        const std::lock_guard lock(watch.mutex);
        if (watch.isRemoved || !watch.isHeard()) {
            watch.isKnown = false;
            return;
        }
    }
    const std::uint64_t failures = Patience::failures();
    Snapshot now = lookAt(watch.feature);
    if (Patience::failures() != failures)
        return;
    const bool isNews = !watch.isKnown || now != watch.last;
    watch.last = std::move(now);
    watch.isKnown = true;
    const std::lock_guard lock(watch.mutex);
    if (isNews && !watch.isRemoved)
        watch.notify();
}

void ChangeWatch::end() noexcept
{
    // Reading may come back here through the port, so it still counts as a change.
    if (m_depth > 1) {
        --m_depth;
        return;
    }
    try {
        for (const Handle& watch : watches())
            compare(*watch);
    } catch (const std::bad_alloc&) {
        // The camera is in the middle of being written; that must go on, without the news.
    }
    m_depth = 0;
}

} // namespace Cameras::GenICam
