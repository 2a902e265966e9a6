// SPDX-License-Identifier: Apache-2.0
// What a camera delivers.
#include "grabresult.h"

#include <utility>

namespace Ostria {

CGrabResult::CGrabResult(COstriaImage image, std::uint64_t frameNumber)
    : m_image(std::move(image))
    , m_frameNumber(frameNumber)
{}

CGrabResult::CGrabResult(std::string errorText, std::uint64_t frameNumber)
    : m_errorText(std::move(errorText))
    , m_frameNumber(frameNumber)
{}

} // namespace Ostria
