// SPDX-License-Identifier: Apache-2.0
// The features by which a camera is told to send images.
#pragma once

#include "iparametercollection.h"
#include "nodemap.h"

#include <QString>

#include <memory>
#include <mutex>

namespace Cameras::GenICam {

/// One acquisition, from its start to its end: acquisition mode, lock of the features that must not
/// change meanwhile, start and stop. Features that the camera does not have are left out, but for
/// the start itself. Thread-safe.
class AcquisitionFeatures
{
public:
    AcquisitionFeatures(std::shared_ptr<NodeMap> nodeMap,
                        Core::ParameterCollection::ParameterCollectionPtr parameters);

    /// As stop.
    ~AcquisitionFeatures();
    AcquisitionFeatures(const AcquisitionFeatures&) = delete;
    AcquisitionFeatures& operator=(const AcquisitionFeatures&) = delete;

    /// Puts the camera into the mode in which it sends one image, or goes on sending.
    /// \throws ::GenICam::RuntimeException  the camera refuses; nothing has changed then
    void prepare(bool single);

    /// Bytes of a frame with the present settings.
    /// \throws ::GenICam::RuntimeException  the camera does not tell
    std::size_t payloadSize() const;

    /// Lets the camera send. Only after prepare.
    /// \throws ::GenICam::RuntimeException  the camera refuses; the end is to follow
    void start();

    /// Lets the camera send again, where it has been told to send one image. Does nothing after the
    /// end. What the camera refuses goes to the log.
    void startAgain() noexcept;

    /// Ends sending, and puts everything back as it was before prepare. What the camera refuses
    /// goes to the log; a mode that it refused is tried again by the next call, else that does
    /// nothing.
    void stop() noexcept;

private:
    void execute(const char* command);
    void lockFeatures(bool locked);
    void setMode(bool single);
    void restoreMode();
    template <class Step>
    void tryStep(const QString& what, const Step& step) noexcept;

    const std::shared_ptr<NodeMap> m_nodeMap;
    const Core::ParameterCollection::ParameterCollectionPtr m_parameters;

    std::mutex m_mutex; // guards all below
    bool m_isStarted = false;
    QString m_previousMode; // empty: it is not to be put back
};

} // namespace Cameras::GenICam
