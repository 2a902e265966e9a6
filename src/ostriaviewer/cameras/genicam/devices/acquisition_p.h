// SPDX-License-Identifier: Apache-2.0
// One acquisition of a camera: its features and its images.
#pragma once

#include "acquisitionfeatures.h"
#include "framestream.h"

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

namespace Cameras::GenICam {

/// From the wish for images to the end of them. What uses the camera waits for its answers, and is
/// called for one at a time; what silences does not use it. Thread-safe.
class Acquisition
{
public:
    /// \param timeout  of a single image; nothing: images until the end
    Acquisition(std::shared_ptr<NodeMap> nodeMap,
                Core::ParameterCollection::ParameterCollectionPtr parameters,
                std::optional<std::chrono::milliseconds> timeout);

    /// Takes over what another one, which has finished, could not put back. Before begin.
    void replace(Acquisition& previous) { m_features->replace(*previous.m_features); }

    /// Prepares camera and stream, and lets the camera send. Does nothing more once it is silenced;
    /// finish has to follow in any case.
    /// \throws ::GenICam::RuntimeException  the camera refuses, or does not answer
    void begin(const std::shared_ptr<Device>& device, FrameStream::Deliver deliver);

    /// When it returns, no delivery begins any more; for those that have begun see
    /// FrameStream::stop.
    /// \return  whether images were still wanted
    bool silence();

    /// Lets the camera end, and puts back what begin has changed.
    void finish() noexcept { m_features->stop(); }

    /// What may be left to be put back; holds neither device nor stream.
    std::shared_ptr<const AcquisitionFeatures> features() const { return m_features; }

    /// Whether images come until the end, which is not there yet.
    bool isGrabbing() const;

    /// Whether this is the thread that delivers.
    bool isDelivering() const;

    /// Zeros before there is a stream; does not change any more once it is silenced.
    StreamStatistics statistics() const;

    /// True for the first caller.
    bool mayReport() { return !m_isReported.exchange(true); }

private:
    FrameStream* stream() const;
    bool adopt(std::unique_ptr<FrameStream> stream);

    const std::shared_ptr<AcquisitionFeatures> m_features;
    const std::optional<std::chrono::milliseconds> m_timeout;
    std::atomic<bool> m_isReported = false;

    mutable std::mutex m_mutex; // guards all below
    bool m_isSilenced = false;
    std::optional<StreamStatistics> m_last; // when it was silenced
    std::unique_ptr<FrameStream> m_stream;  // null until it has begun; then never changed
};

} // namespace Cameras::GenICam
