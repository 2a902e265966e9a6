// SPDX-License-Identifier: Apache-2.0
// Buffers as a camera fills them, and what is wrong with some.
#include "bufferimage_p.h"

#include "pixeltype.h"

// The library has members of this name.
#pragma push_macro("signals")
#undef signals
#include <arv.h>
#pragma pop_macro("signals")

#include <gtest/gtest.h>

#include <memory>

using Cameras::GenICam::toGrabResult;
using Ostria::PixelType;

namespace {

struct Unref
{
    void operator()(void* object) const { g_object_unref(object); }
};

/// What the library's own camera delivers with these features. It takes whatever it is told.
Ostria::CGrabResultPtr grab(PixelType type, int width, int height)
{
    const std::unique_ptr<ArvFakeCamera, Unref> camera(arv_fake_camera_new("1"));
    const auto set = [&camera](guint32 address, guint32 value) {
        EXPECT_TRUE(arv_fake_camera_write_register(camera.get(), address, value));
    };
    set(ARV_FAKE_CAMERA_REGISTER_WIDTH, static_cast<guint32>(width));
    set(ARV_FAKE_CAMERA_REGISTER_HEIGHT, static_cast<guint32>(height));
    set(ARV_FAKE_CAMERA_REGISTER_PIXEL_FORMAT, static_cast<guint32>(type));
    const std::unique_ptr<ArvBuffer, Unref> buffer(
        arv_buffer_new_allocate(arv_fake_camera_get_payload(camera.get())));
    arv_fake_camera_fill_buffer(camera.get(), buffer.get(), nullptr);
    return toGrabResult(buffer.get(), 7);
}

} // namespace

TEST(BufferImage, IsCopied)
{
    const auto result = grab(PixelType::Mono8, 6, 4);
    ASSERT_TRUE(result->GrabSucceeded()) << result->errorText();
    EXPECT_EQ(result->frameNumber(), 7u);
    EXPECT_EQ(result->image().pixelType(), PixelType::Mono8);
    EXPECT_EQ(result->image().width(), 6);
    EXPECT_EQ(result->image().height(), 4);
    // The library draws diagonals: a row further down is one column further left.
    const std::uint8_t* pixels = result->image().data();
    for (int y = 1; y < 4; ++y)
        for (int x = 0; x < 5; ++x)
            EXPECT_EQ(pixels[6 * y + x], pixels[6 * (y - 1) + x + 1]) << x << ", " << y;
}

TEST(BufferImage, OfASizeThatItsFormatCannotHaveIsRefusedWithAdvice)
{
    const auto result = grab(PixelType::YUV422_8, 5, 4);
    EXPECT_FALSE(result->GrabSucceeded());
    EXPECT_EQ(result->errorText(),
              "The frame cannot be used (The width is 5, YUV422_8 needs a multiple of 2). Choose "
              "another pixel format or another image size.");
}

TEST(BufferImage, OfAFormatThatIsNotKnownIsNamed)
{
    const auto result = grab(static_cast<PixelType>(0x01080099), 6, 4);
    EXPECT_FALSE(result->GrabSucceeded());
    EXPECT_EQ(result->errorText(), "The pixel format 0x01080099 is not known; choose another one.");
}
