// SPDX-License-Identifier: Apache-2.0
// Which emulated cameras can be calibrated: each rule has one that passes and one that fails.
#include "camerasupport.h"
#include "emulatedhost.h"

#include <gtest/gtest.h>

#include <optional>

namespace {

struct Candidate
{
    const char* name;
    std::optional<int> pipelineVersion;
    bool isSupported;
};

class EmulatedSupport : public testing::TestWithParam<Candidate>
{};

} // namespace

TEST_P(EmulatedSupport, FollowsNameAndPipeline)
{
    auto model = reduced(supportedModels().at(1));
    model.name = QString::fromLatin1(GetParam().name);
    model.colorPipelineVersion = GetParam().pipelineVersion;
    EmulatedHost host(model);
    ASSERT_TRUE(host.camera().open());
    EXPECT_EQ(ColorCalibration::isCameraSupported(host.pointer(), host.parameterService()),
              GetParam().isSupported)
        << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(ByItsKind, EmulatedSupport,
                         testing::Values(Candidate{"Emulation 1920-40c", 1, true},
                                         Candidate{"Emulation 1920-40c", 2, false},
                                         Candidate{"Emulation 1920-40c", {}, false},
                                         Candidate{"Emulated 1920-40c", 1, false}));
INSTANTIATE_TEST_SUITE_P(
    BySeries, EmulatedSupport,
    testing::Values(Candidate{"emA1920-60ucEMU", 1, true}, Candidate{"emA1920-60ucEMU", 0, false},
                    Candidate{"emA1920-60ucEMU", {}, false}, Candidate{"emA1920-60umEMU", 1, false},
                    Candidate{"emB1920-60ucEMU", 1, false}, Candidate{"emA1920-60uc", 1, false}));
INSTANTIATE_TEST_SUITE_P(ByItsEnding, EmulatedSupport,
                         testing::Values(Candidate{"Emulated-60cVTX", {}, true},
                                         Candidate{"Emulated-60cVTX", 2, true},
                                         Candidate{"Emulated-60mVTX", 1, false},
                                         Candidate{"Emulated-60cVT", 1, false}));
