// SPDX-License-Identifier: Apache-2.0
// What a node map is made of, for the files of this folder.
#pragma once

#include "accessmutex_p.h"
#include "changewatch_p.h"
#include "featuretree_p.h"
#include "registerport.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

typedef struct _ArvDevice ArvDevice;
typedef struct _ArvGc ArvGc;

namespace Cameras::GenICam {

/// A device and the nodes of its description. All members need the mutex, but for mutex, gc,
/// camera, isConnected, isLast, setClosing, changes' own exceptions and commandTimeout.
class NodeMapPrivate
{
public:
    /// \param device  taken over: unreferenced at the end
    /// \param xml     the description
    /// \param camera  its name for messages
    /// \param commandTimeout  how long a command may take
    /// \throws ::GenICam::RuntimeException  the description cannot be used
    NodeMapPrivate(ArvDevice* device, const std::string& xml, QString camera,
                   std::chrono::milliseconds commandTimeout);
    ~NodeMapPrivate();
    NodeMapPrivate(const NodeMapPrivate&) = delete;
    NodeMapPrivate& operator=(const NodeMapPrivate&) = delete;

    AccessMutex& mutex() { return m_mutex; }
    ArvGc* gc() const { return m_gc; }
    const QString& camera() const { return m_camera; }
    /// Before a second thread has this object.
    void setCamera(const QString& name) { m_camera = name; }

    ArvDevice* device() const { return m_device; }

    /// Whether this thread may still use the device.
    bool isConnected() const;

    /// Whether this thread may still use the device, and the device is there.
    bool isReachable() const;

    /// Whether this thread's accesses are the last ones to a device that is being given up.
    bool isLast() const { return m_isClosing && isConnected(); }

    /// From now on one thread alone may use the device.
    /// \param last  none, if it is default-constructed
    void setClosing(std::thread::id last = {});

    /// \throws ::GenICam::RuntimeException  this thread may not, or the camera is lost
    void requireConnection() const;

    ChangeWatch& changes() { return m_changes; }

    /// All features by category. Made when it is first asked for.
    const FeatureTree& tree();

    std::chrono::milliseconds commandTimeout() const { return m_commandTimeout; }

private:
    AccessMutex m_mutex;
    QString m_camera;
    ArvDevice* m_device;
    ArvGc* m_gc;
    std::atomic<bool> m_isClosing = false;
    std::atomic<std::thread::id> m_last; // the one that may use a device that is being closed
    const std::chrono::milliseconds m_commandTimeout;
    ChangeWatch m_changes;
    std::unique_ptr<FeatureTree> m_tree;
};

/// Holds the device for reading.
class ReadLock
{
public:
    /// \param who  for the message; empty: the camera's name
    /// \throws ::GenICam::RuntimeException  this thread's patience was over first
    explicit ReadLock(NodeMapPrivate& map, const QString& who = {});
    ~ReadLock();
    ReadLock(const ReadLock&) = delete;
    ReadLock& operator=(const ReadLock&) = delete;

private:
    NodeMapPrivate& m_map;
};

/// Holds the device for writing. When the outermost one of a thread ends, the watched features
/// that changed meanwhile say so.
class WriteLock
{
public:
    /// As ReadLock.
    explicit WriteLock(NodeMapPrivate& map, const QString& who = {});
    ~WriteLock();
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

private:
    const ReadLock m_lock;
    NodeMapPrivate& m_map;
};

} // namespace Cameras::GenICam
