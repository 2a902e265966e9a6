// SPDX-License-Identifier: Apache-2.0
// A device's features, as its GenICam description lays them over its registers.
#pragma once

#include "registerport.h"

#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <string>

namespace Cameras::GenICam {

class NodeMapPrivate;

/// The features of one device.
///
/// Has one recursive mutex for the device; whatever reads or writes features holds it, and waits
/// for it as long as Patience says. Parameters made from a node map share its ownership.
/// Thread-safe.
class NodeMap
{
public:
    /// A node map over registers.
    /// \param port  shared, not null
    /// \param xml   the device's GenICam description
    /// \param commandTimeout  how long a command may take before its execution counts as failed
    /// \throws ::GenICam::RuntimeException  the description cannot be used
    static std::shared_ptr<NodeMap>
    create(std::shared_ptr<IRegisterPort> port, const std::string& xml,
           std::chrono::milliseconds commandTimeout = std::chrono::seconds(5));

    ~NodeMap();
    NodeMap(const NodeMap&) = delete;
    NodeMap& operator=(const NodeMap&) = delete;

    /// What messages call the camera, instead of the model that its description names: there may be
    /// two of a model. To be called before a second thread has this object.
    void setCameraName(const QString& name);

    /// From now on each access throws, but for one that is under way and the last ones of
    /// disconnect, which has to follow. Does not wait.
    void refuseAccesses();

    /// Gives the device up: from now on each access throws, and in the end the port is not called
    /// any more. Waits for an access that is under way, whatever this thread's patience.
    /// \param lastAccesses  what is still to be done, on this thread; must not throw
    void disconnect(const std::function<void()>& lastAccesses = {});

    /// Whether this thread may use the device.
    bool isConnected() const;

    /// Tells the parameters that registers changed without being written through this node map, so
    /// that those that changed with them say so. Costs a few register reads for each parameter
    /// that somebody is connected to. Does nothing after disconnect.
    void refresh();

    /// For the other files of this folder.
    NodeMapPrivate& d() const { return *m_private; }

private:
    explicit NodeMap(std::unique_ptr<NodeMapPrivate> implementation);

    std::unique_ptr<NodeMapPrivate> m_private;
};

} // namespace Cameras::GenICam
