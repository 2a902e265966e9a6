// SPDX-License-Identifier: Apache-2.0
// One acquisition of a camera: its features and its images.
#include "acquisition_p.h"

#include <utility>

namespace Cameras::GenICam {

Acquisition::Acquisition(std::shared_ptr<NodeMap> nodeMap,
                         Core::ParameterCollection::ParameterCollectionPtr parameters,
                         std::optional<std::chrono::milliseconds> timeout)
    : m_features(std::make_shared<AcquisitionFeatures>(std::move(nodeMap), std::move(parameters)))
    , m_timeout(timeout)
{}

// The stream is ready before the camera sends.
void Acquisition::begin(const std::shared_ptr<Device>& device, FrameStream::Deliver deliver)
{
    std::optional<FrameStream::Single> onlyOne;
    if (m_timeout)
        onlyOne =
            FrameStream::Single{*m_timeout, [features = m_features] { features->startAgain(); },
                                [features = m_features] {
                                    features->stop();
                                }};
    m_features->prepare(m_timeout.has_value());
    auto stream = std::make_unique<FrameStream>(device, m_features->payloadSize(),
                                                std::move(deliver), std::move(onlyOne));
    if (adopt(std::move(stream)))
        m_features->start();
}

bool Acquisition::adopt(std::unique_ptr<FrameStream> stream)
{
    const std::lock_guard lock(m_mutex);
    if (m_isSilenced)
        return false;
    m_stream = std::move(stream);
    return true;
}

FrameStream* Acquisition::stream() const
{
    const std::lock_guard lock(m_mutex);
    return m_stream.get();
}

// What the camera goes on sending until it is told is nobody's loss.
bool Acquisition::silence()
{
    bool isFirst = false;
    {
        const std::lock_guard lock(m_mutex);
        isFirst = !std::exchange(m_isSilenced, true);
    }
    FrameStream* const silenced = stream();
    if (!silenced)
        return isFirst;
    silenced->stop();
    if (!isFirst)
        return false;
    const StreamStatistics last = silenced->statistics();
    const std::lock_guard lock(m_mutex);
    m_last = last;
    return true;
}

bool Acquisition::isGrabbing() const
{
    const std::lock_guard lock(m_mutex);
    return !m_timeout && !m_isSilenced && (!m_stream || !m_stream->isFinished());
}

bool Acquisition::isDelivering() const
{
    const FrameStream* const delivering = stream();
    return delivering && delivering->isOwnThread();
}

StreamStatistics Acquisition::statistics() const
{
    {
        const std::lock_guard lock(m_mutex);
        if (m_last)
            return *m_last;
    }
    const FrameStream* const known = stream();
    return known ? known->statistics() : StreamStatistics();
}

} // namespace Cameras::GenICam
