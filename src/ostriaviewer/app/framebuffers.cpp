// SPDX-License-Identifier: Apache-2.0
// Memory of pictures on the screen, used again when nobody looks at them any more.
#include "framebuffers.h"

#include <mutex>
#include <utility>
#include <vector>

namespace Viewer {
namespace {

// One on the screen, one that waits for it, one that is being written.
constexpr std::size_t buffersKept = 3;

} // namespace

struct FrameBuffers::Pool
{
    std::mutex mutex;
    std::vector<std::unique_ptr<Ostria::COstriaImage>> unused;

    void giveBack(std::unique_ptr<Ostria::COstriaImage> image)
    {
        const std::lock_guard lock(mutex);
        if (unused.size() < buffersKept)
            unused.push_back(std::move(image));
    }
};

namespace {

// What a picture holds of the memory below it.
template <typename Pool>
struct Loan
{
    std::shared_ptr<Pool> pool;
    std::unique_ptr<Ostria::COstriaImage> image;

    static void end(void* loan)
    {
        const std::unique_ptr<Loan> self(static_cast<Loan*>(loan));
        self->pool->giveBack(std::move(self->image));
    }
};

} // namespace

FrameBuffers::FrameBuffers()
    : m_pool(std::make_shared<Pool>())
{}

std::unique_ptr<Ostria::COstriaImage> FrameBuffers::take()
{
    const std::lock_guard lock(m_pool->mutex);
    if (m_pool->unused.empty())
        return std::make_unique<Ostria::COstriaImage>();
    auto image = std::move(m_pool->unused.back());
    m_pool->unused.pop_back();
    return image;
}

QImage FrameBuffers::toPicture(std::unique_ptr<Ostria::COstriaImage> image) const
{
    const Ostria::COstriaImage& pixels = *image;
    const int width = pixels.width();
    const int height = pixels.height();
    const int stride = static_cast<int>(pixels.stride());
    const std::uint8_t* data = pixels.data();
    auto* loan = new Loan<Pool>{m_pool, std::move(image)};
    return QImage(data, width, height, stride, QImage::Format_RGB32, &Loan<Pool>::end, loan);
}

} // namespace Viewer
