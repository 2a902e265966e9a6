// SPDX-License-Identifier: Apache-2.0
// Cameras without one of the features that a calibration can do without.
#include "calibrationsequence.h"
#include "command.h"
#include "emulatedhost.h"
#include "modelfeatures.h"
#include "neededfeatures.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace ColorCalibrate;

namespace {

struct Missing
{
    int camera;
    std::string feature;
};

/// All of a camera's features but the needed ones, so that none is forgotten.
std::vector<Missing> withoutOneEach(int camera)
{
    const auto table = Cameras::Emulation::modelFeatures(supportedModels().at(camera));
    const std::vector<std::string> needed = neededFeatures(camera);
    std::vector<Missing> all;
    for (int i = 0; i < table.size(); ++i) {
        const std::string feature = table.at(i).name.toStdString();
        if (std::find(needed.begin(), needed.end(), feature) == needed.end())
            all.push_back({camera, feature});
    }
    return all;
}

std::string featureName(const testing::TestParamInfo<Missing>& info)
{
    return info.param.feature;
}

class OptionalFeatures : public testing::TestWithParam<Missing>
{
protected:
    static bool isMatrixSelector()
    {
        return GetParam().feature == "ColorTransformationValueSelector";
    }
    static bool isOfMatrix()
    {
        return isMatrixSelector() || GetParam().feature == "ColorTransformationValue" ||
               GetParam().feature == "ProcessedRawEnable";
    }

    /// What the sequence says where it has to end; empty where it goes on.
    static std::string expectedWords()
    {
        // Without the version a camera counts as one of the first generation.
        if (GetParam().feature == "DeviceSFNCVersionMajor" && GetParam().camera != 0)
            return "it has no gain that can be read: Gain or GainAbs, or GainRaw in older cameras";
        // White balance alone does not undo a strong crosstalk, as the first camera has it here;
        // without the selector all gains go to one cell.
        if (isMatrixSelector() || (isOfMatrix() && GetParam().camera == 0))
            return "the patches are off their targets by a mean Delta E of ";
        return {};
    }

    /// What the user is told while it goes on.
    static QString expectedWarning()
    {
        if (isOfMatrix())
            return QStringLiteral("The camera has no color matrix, so the computed one is not in "
                                  "the camera");
        return {};
    }

    /// \return  what the sequence has failed with
    std::string run(EmulatedHost& host)
    {
        CalibrationSequence sequence(
            host.model(), [](const QString&) {}, [] { return false; },
            [this](const QString& warning) { m_warnings.append(warning); });
        SequenceOptions options;
        options.adjustExposure = false;
        options.grid = host.chartGrid();
        try {
            sequence.run(host.pointer(), options);
        } catch (const CommandError& error) {
            return error.what();
        }
        EXPECT_TRUE(host.model().RestoreSettingsBackup(false));
        EXPECT_TRUE(host.model().Close());
        return {};
    }

    QStringList m_warnings;
};

} // namespace

TEST_P(OptionalFeatures, MayBeMissingAndTheCameraIsGivenBackAsItWas)
{
    const QString feature = QString::fromStdString(GetParam().feature);
    Cameras::Emulation::EmulationOptions options;
    options.missingFeatures = QStringList(feature);
    auto model = reduced(supportedModels().at(GetParam().camera));
    // Its own leaves a Delta E so near to what is refused that noise would decide.
    if (isOfMatrix() && GetParam().camera == 0)
        model.sensor.crosstalk = {0.66, 0.26, 0.08, 0.27, 0.54, 0.19, 0.08, 0.32, 0.60};
    EmulatedHost host(model, options);
    ASSERT_TRUE(host.camera().open());
    host.setExposure(20000.0);
    const QString before = host.settings();
    const std::string message = run(host);
    EXPECT_TRUE(message.find(expectedWords()) == 0 && message.empty() == expectedWords().empty())
        << message;
    if (expectedWarning().isEmpty()) {
        EXPECT_EQ(m_warnings, QStringList());
    } else {
        EXPECT_TRUE(m_warnings.join(QLatin1Char('\n')).contains(expectedWarning()))
            << m_warnings.join(QLatin1Char('\n')).toStdString();
    }
    EXPECT_EQ(host.settings().toStdString(), before.toStdString());
}

INSTANTIATE_TEST_SUITE_P(First, OptionalFeatures, testing::ValuesIn(withoutOneEach(0)),
                         featureName);
INSTANTIATE_TEST_SUITE_P(Second, OptionalFeatures, testing::ValuesIn(withoutOneEach(1)),
                         featureName);
INSTANTIATE_TEST_SUITE_P(Third, OptionalFeatures, testing::ValuesIn(withoutOneEach(2)),
                         featureName);
