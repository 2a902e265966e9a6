// SPDX-License-Identifier: Apache-2.0
// A small camera with one of everything, over registers in memory.
#pragma once

#include "memoryport.h"
#include "parametercollection.h"

#include <gtest/gtest.h>

#include <QString>

#include <chrono>
#include <memory>
#include <string>

/// Register addresses of the test camera.
namespace Register {
constexpr std::uint64_t gain = 0x100;  ///< 8 bytes of double
constexpr std::uint64_t gamma = 0x108; ///< 4 bytes of float
constexpr std::uint64_t width = 0x110;
constexpr std::uint64_t offsetX = 0x114;
constexpr std::uint64_t sensorWidth = 0x118;
constexpr std::uint64_t exposureAuto = 0x11c;
constexpr std::uint64_t exposureRaw = 0x120; ///< hundredths
constexpr std::uint64_t lutEnable = 0x124;
constexpr std::uint64_t lutIndex = 0x128;
constexpr std::uint64_t pixelFormat = 0x12c;
constexpr std::uint64_t level = 0x130;        ///< 1 byte, signed
constexpr std::uint64_t temperature = 0x134;  ///< 4 bytes of float
constexpr std::uint64_t key = 0x138;          ///< write-only
constexpr std::uint64_t balanceRatio = 0x200; ///< 3 floats
constexpr std::uint64_t transform = 0x300;    ///< 2 by 3 floats
constexpr std::uint64_t save = 0x400;
constexpr std::uint64_t trigger = 0x404;    ///< write-only
constexpr std::uint64_t deviceName = 0x500; ///< 16 characters
} // namespace Register

/// A description around nodes.
/// \param features  pFeature elements of the only category below Root
std::string describe(const std::string& features, const std::string& nodes);

/// The test camera's description.
std::string testDescription();

/// The camera with all registers at usable values.
class TestCamera : public testing::Test
{
protected:
    TestCamera();

    /// Another description over the same registers, in place of the test camera's.
    void use(const std::string& description,
             std::chrono::milliseconds commandTimeout = std::chrono::seconds(5));

    /// The text of saveFeatures without comment lines.
    QString savedLines();

    /// \return  the errors
    QString load(const QString& text);

    std::shared_ptr<MemoryPort> port = std::make_shared<MemoryPort>();
    std::shared_ptr<Cameras::GenICam::NodeMap> map;
    Core::ParameterCollection::ParameterCollectionPtr camera;
};

/// What a call throws as GenICam::RuntimeException; empty if it throws nothing.
template <class Call>
std::string refusalOf(const Call& call)
{
    try {
        call();
    } catch (const GenICam::RuntimeException& refusal) {
        return refusal.what();
    }
    return {};
}

inline QString operator""_q(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, static_cast<int>(size));
}
