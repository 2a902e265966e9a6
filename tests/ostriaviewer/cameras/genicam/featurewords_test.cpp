// SPDX-License-Identifier: Apache-2.0
// What a description tells people arrives as it stands there.
#include "testcamera.h"

using namespace Core::ParameterCollection;

using FeatureWords = TestCamera;

namespace {

constexpr char nodes[] = R"(
<Category Name="Inner"><DisplayName>Inner Things</DisplayName><pFeature>Count</pFeature>
  <pFeature>Missing</pFeature><pFeature>Control</pFeature></Category>
<Float Name="Time"><ToolTip>Short</ToolTip><Description>How long it takes.</Description>
  <Value>1.5</Value><Min>1</Min><Max>2</Max><Unit>us</Unit></Float>
<Integer Name="Count"><ToolTip>How many</ToolTip><Value>3</Value></Integer>
<StringReg Name="Word"><Address>0x900</Address><Length>8</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort></StringReg>)";

constexpr char inControl[] =
    "<pFeature>Time</pFeature><pFeature>Inner</pFeature><pFeature>Word</pFeature>";

} // namespace

TEST_F(FeatureWords, CategoriesAreThoseOfTheDescriptionWithWhatTheCameraHas)
{
    use(describe(inControl, nodes));
    const auto categories = camera->categories();
    ASSERT_EQ(categories.size(), 1u);
    EXPECT_EQ(categories[0].name, "Control"_q);
    EXPECT_EQ(categories[0].displayName, "Control"_q);
    EXPECT_EQ(categories[0].features, (QStringList{"Time"_q, "Word"_q}));
    ASSERT_EQ(categories[0].categories.size(), 1u);
    EXPECT_TRUE(categories[0].categories[0].categories.empty()) << "it contains its own parent";
    EXPECT_EQ(categories[0].categories[0].displayName, "Inner Things"_q);
    EXPECT_EQ(categories[0].categories[0].features, QStringList{"Count"_q});
}

TEST_F(FeatureWords, DescriptionComesBeforeTheToolTip)
{
    use(describe(inControl, nodes));
    EXPECT_EQ(camera->parameter("Time"_q)->description(), "How long it takes."_q);
    EXPECT_EQ(camera->parameter("Count"_q)->description(), "How many"_q);
    EXPECT_EQ(camera->parameter("Word"_q)->description(), QString());
    EXPECT_EQ(camera->parameter("Missing"_q)->description(), QString());
}

TEST_F(FeatureWords, NumbersHaveTheirUnit)
{
    use(describe(inControl, nodes));
    EXPECT_EQ(camera->parameter("Time"_q)->unit(), "us"_q);
    EXPECT_EQ(camera->parameter("Count"_q)->unit(), QString());
    EXPECT_EQ(camera->parameter("Word"_q)->unit(), QString());
}

TEST_F(FeatureWords, TextIsReadAndWritten)
{
    use(describe(inControl, nodes));
    const auto word = camera->parameter("Word"_q).dynamicCast<ITextParameter>();
    ASSERT_TRUE(word);
    word->setValue("lens"_q);
    EXPECT_EQ(word->value(), "lens"_q);
}
