// SPDX-License-Identifier: Apache-2.0
// What a node map is made of, for the files of this folder.
#pragma once

#include "changewatch_p.h"
#include "featuretree_p.h"
#include "registerport.h"

#include <QString>

#include <chrono>
#include <memory>
#include <mutex>
#include <string>

typedef struct _ArvDevice ArvDevice;
typedef struct _ArvGc ArvGc;

namespace Cameras::GenICam {

/// A device and the nodes of its description. All members need the mutex, but for mutex, gc and
/// camera.
class NodeMapPrivate
{
public:
    /// \param device  taken over: unreferenced at the end
    /// \param xml     the description
    /// \param camera  the model's name, for messages
    /// \param commandTimeout  how long a command may take
    /// \throws ::GenICam::RuntimeException  the description cannot be used
    NodeMapPrivate(ArvDevice* device, const std::string& xml, QString camera,
                   std::chrono::milliseconds commandTimeout);
    ~NodeMapPrivate();
    NodeMapPrivate(const NodeMapPrivate&) = delete;
    NodeMapPrivate& operator=(const NodeMapPrivate&) = delete;

    std::recursive_mutex& mutex() { return m_mutex; }
    ArvGc* gc() const { return m_gc; }
    const QString& camera() const { return m_camera; }

    ArvDevice* device() const { return m_device; }
    bool isConnected() const { return m_isConnected; }
    void setDisconnected() { m_isConnected = false; }

    /// \throws ::GenICam::RuntimeException  if disconnected
    void requireConnection() const;

    ChangeWatch& changes() { return m_changes; }

    /// All features by category. Made when it is first asked for.
    const FeatureTree& tree();

    std::chrono::milliseconds commandTimeout() const { return m_commandTimeout; }

private:
    std::recursive_mutex m_mutex;
    const QString m_camera;
    ArvDevice* m_device;
    ArvGc* m_gc;
    bool m_isConnected = true;
    const std::chrono::milliseconds m_commandTimeout;
    ChangeWatch m_changes;
    std::unique_ptr<FeatureTree> m_tree;
};

/// Holds the device for reading.
using ReadLock = std::lock_guard<std::recursive_mutex>;

/// Holds the device for writing. When the outermost one of a thread ends, the watched features
/// that changed meanwhile say so.
class WriteLock
{
public:
    explicit WriteLock(NodeMapPrivate& map);
    ~WriteLock();
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

private:
    NodeMapPrivate& m_map;
    std::lock_guard<std::recursive_mutex> m_lock;
};

} // namespace Cameras::GenICam
