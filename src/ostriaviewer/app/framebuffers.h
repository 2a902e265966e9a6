// SPDX-License-Identifier: Apache-2.0
// Memory of pictures on the screen, used again when nobody looks at them any more.
#pragma once

#include "ostriaimage.h"

#include <QImage>

#include <memory>

namespace Viewer {

/// Fresh memory for each picture would cost more than a good part of the conversion. Thread-safe;
/// pictures may outlive it.
class FrameBuffers
{
public:
    FrameBuffers();

    /// An image to convert into, with the memory of an earlier one if there is one to be had.
    std::unique_ptr<Ostria::COstriaImage> take();

    /// A picture over an image's pixels, nothing is copied. The memory comes back with the last
    /// copy of the picture.
    /// \param image  BGRa8
    QImage toPicture(std::unique_ptr<Ostria::COstriaImage> image) const;

private:
    struct Pool;
    std::shared_ptr<Pool> m_pool;
};

} // namespace Viewer
