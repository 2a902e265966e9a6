// SPDX-License-Identifier: Apache-2.0
// What the parameters of all kinds do alike.
#pragma once

#include "changewatch_p.h"
#include "feature_p.h"
#include "featurewords_p.h"
#include "genicamexception.h"
#include "iparameter.h"
#include "librarylog_p.h"
#include "nodemap.h"
#include "nodemap_p.h"

#include <QMetaMethod>

#include <atomic>
#include <exception>
#include <memory>
#include <mutex>
#include <utility>

namespace Cameras::GenICam {

/// \tparam Interface  one of the host's parameter interfaces
template <class Interface>
class ParameterBase : public Interface
{
public:
    ParameterBase(std::shared_ptr<NodeMap> map, Feature feature)
        : m_map(std::move(map))
        , m_feature(std::move(feature))
    {}

    ~ParameterBase() override
    {
        if (m_watch)
            m_map->d().changes().remove(m_watch);
    }

    QString name() const override { return m_feature.name(); }
    QString displayName() const override { return m_feature.displayName(); }
    QString description() const override { return isEmpty() ? QString() : read(descriptionOf); }
    QString unit() const override { return isEmpty() ? QString() : read(unitOf); }
    bool isEmpty() const override { return m_feature.isEmpty(); }

    bool isAvailable() const override { return is(&Feature::isAvailable); }
    bool isReadable() const override { return is(&Feature::isReadable); }
    bool isWritable() const override { return is(&Feature::isWritable); }

protected:
    const Feature& feature() const { return m_feature; }
    NodeMapPrivate& map() const { return m_map->d(); }
    const std::shared_ptr<NodeMap>& nodeMap() const { return m_map; }

    /// Asks the feature, with the device held.
    template <class Ask>
    auto read(const Ask& ask) const
    {
        m_feature.requireConnection();
        const ReadLock lock(map(), m_feature.name());
        m_feature.requireThere();
        const LibraryScope scope(map().camera(), m_feature.name());
        return ask(m_feature);
    }

    /// Changes the feature, with the device held.
    template <class Change>
    void write(const Change& change) const
    {
        m_feature.requireConnection();
        const WriteLock lock(map(), m_feature.name());
        const LibraryScope scope(map().camera(), m_feature.name());
        change(m_feature);
    }

    /// \return  whether the change went through
    template <class Change>
    bool tryWrite(const Change& change) const noexcept
    {
        try {
            write(change);
            return true;
        } catch (const std::exception&) {
            return false; // without memory, too
        }
    }

    /// Nobody pays for the signal of a parameter without receivers. Whether there still are some is
    /// asked at each change: disconnectNotify may be called with mutexes of Qt's held, which
    /// isSignalConnected wants too.
    void connectNotify(const QMetaMethod& signal) override
    {
        if (signal != changeSignal() || isEmpty())
            return;
        try {
            const ChangeWatch::Handle watched = watch();
            const ReadLock lock(map());
            ChangeWatch::renew(*watched);
        } catch (const ::GenICam::RuntimeException&) {
            return; // the first change tells
        }
    }

private:
    /// A question that is answered with false where the camera does not answer it.
    bool is(bool (Feature::*ask)() const) const
    {
        try {
            if (isEmpty() || !map().isConnected())
                return false;
            const ReadLock lock(map());
            const LibraryScope scope(map().camera(), m_feature.name());
            return (m_feature.*ask)();
        } catch (const ::GenICam::RuntimeException&) {
            return false;
        }
    }

    static QMetaMethod changeSignal()
    {
        return QMetaMethod::fromSignal(
            &Core::ParameterCollection::IParameter::parameterDataChangedDecoupled);
    }

    ChangeWatch::Handle watch()
    {
        const std::lock_guard lock(m_watchMutex);
        if (!m_watch)
            m_watch = map().changes().add(
                m_feature, [this] { return this->isSignalConnected(changeSignal()); },
                [this] { announce(); });
        return m_watch;
    }

    void announce()
    {
        if (m_isAnnounced.exchange(true))
            return;
        const auto tell = [this] {
            m_isAnnounced = false;
            emit this->parameterDataChangedDecoupled();
        };
        QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
    }

    std::shared_ptr<NodeMap> m_map;
    Feature m_feature;
    std::mutex m_watchMutex;
    ChangeWatch::Handle m_watch; // null until somebody connects
    std::atomic<bool> m_isAnnounced{false};
};

} // namespace Cameras::GenICam
