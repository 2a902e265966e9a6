// SPDX-License-Identifier: Apache-2.0
// RGB16 pixels to BGRa8 pixels.
#include "displaypixels.h"

#include <opencv2/core/hal/intrin.hpp>

namespace Ostria {
namespace {

#if CV_SIMD128
/// Eight pixels at once. Every third byte of the little-endian channels Rr Gg Bb (low byte first)
/// gives, as 16-bit lanes of two neighbours, low byte first:
///   first  R_low g_high
///   second r_high B_low
///   third  G_low b_high
void packEight(const std::uint8_t* rgb16, std::uint8_t* bgra8)
{
    cv::v_uint8x16 first;
    cv::v_uint8x16 second;
    cv::v_uint8x16 third;
    cv::v_load_deinterleave(rgb16, first, second, third);
    const cv::v_uint16x8 high = cv::v_setall_u16(0xFF00);
    const cv::v_uint16x8 low = cv::v_setall_u16(0x00FF);
    const cv::v_uint16x8 blueGreen =
        (cv::v_reinterpret_as_u16(third) >> 8) | (cv::v_reinterpret_as_u16(first) & high);
    const cv::v_uint16x8 redAlpha = (cv::v_reinterpret_as_u16(second) & low) | high;
    cv::v_uint16x8 fourPixels;
    cv::v_uint16x8 nextFour;
    cv::v_zip(blueGreen, redAlpha, fourPixels, nextFour);
    cv::v_store(bgra8, cv::v_reinterpret_as_u8(fourPixels));
    cv::v_store(bgra8 + 16, cv::v_reinterpret_as_u8(nextFour));
}
#endif

} // namespace

void packForDisplay(const std::uint8_t* rgb16, int count, std::uint8_t* bgra8)
{
#if CV_SIMD128
    for (; count >= 8; count -= 8, rgb16 += 48, bgra8 += 32)
        packEight(rgb16, bgra8);
#endif
    for (; count > 0; --count, rgb16 += 6, bgra8 += 4) {
        bgra8[0] = rgb16[5];
        bgra8[1] = rgb16[3];
        bgra8[2] = rgb16[1];
        bgra8[3] = 255;
    }
}

} // namespace Ostria
