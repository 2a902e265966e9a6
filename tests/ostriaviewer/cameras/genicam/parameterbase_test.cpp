// SPDX-License-Identifier: Apache-2.0
// What must hold for parameters of every kind.
#include "parameterbase_p.h"
#include "testcamera.h"

#include <exception>
#include <new>

namespace {

using namespace Cameras::GenICam;

/// A parameter whose writes fail for reasons that are not the camera's.
class FailingParameter final : public ParameterBase<Core::ParameterCollection::IBooleanParameter>
{
public:
    using ParameterBase::ParameterBase;

    bool value() const override { return false; }
    void setValue(bool /*value*/, bool /*verify*/) override {}

    template <class Failure>
    bool tryToFail() const noexcept
    {
        return tryWrite([](const Feature&) { throw Failure(); });
    }
};

struct NoReason : std::exception
{};

} // namespace

using ParameterBaseTest = TestCamera;

TEST_F(ParameterBaseTest, ATriedWriteThatFailsForAnyReasonIsFalse)
{
    const FailingParameter parameter(map, Feature::find(map->d(), "LutEnable"_q));
    ASSERT_FALSE(parameter.isEmpty());
    EXPECT_FALSE(parameter.tryToFail<std::bad_alloc>());
    EXPECT_FALSE(parameter.tryToFail<NoReason>());
    EXPECT_TRUE(parameter.isWritable()) << "the device is free again";
}
