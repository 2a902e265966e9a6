// SPDX-License-Identifier: Apache-2.0
// What a camera delivers: an image, or the reason why there is none.
#pragma once

#include "ostriaimage.h"

#include <cstdint>
#include <memory>
#include <string>

namespace Ostria {

/// One delivered frame. A value that is not changed after it was made; thread-safe.
class CGrabResult
{
public:
    /// A frame that arrived.
    CGrabResult(COstriaImage image, std::uint64_t frameNumber);

    /// A frame that did not.
    CGrabResult(std::string errorText, std::uint64_t frameNumber);

    /// Whether there is a whole image.
    bool GrabSucceeded() const { return m_image.isValid() && m_errorText.empty(); }

    /// The image; without pixels if the grab failed. Shares the frame's memory.
    COstriaImage image() const { return m_image; }

    /// Why the grab failed, for people.
    const std::string& errorText() const { return m_errorText; }

    /// Counts the frames of the camera, failed and lost ones included.
    std::uint64_t frameNumber() const { return m_frameNumber; }

private:
    COstriaImage m_image;
    std::string m_errorText;
    std::uint64_t m_frameNumber;
};

/// Null is no valid result.
using CGrabResultPtr = std::shared_ptr<const CGrabResult>;

} // namespace Ostria
