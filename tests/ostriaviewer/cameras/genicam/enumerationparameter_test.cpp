// SPDX-License-Identifier: Apache-2.0
// What must hold for enumerations.
#include "testcamera.h"

using EnumerationParameter = TestCamera;

TEST_F(EnumerationParameter, ReadsAndWritesEntryNames)
{
    const auto automatic = camera->enumerationParameter("ExposureAuto"_q);
    EXPECT_EQ(automatic->value(), "Off"_q);
    automatic->setValue("Continuous"_q);
    EXPECT_EQ(automatic->value(), "Continuous"_q);
    EXPECT_EQ(port->word(Register::exposureAuto), 2U);
}

TEST_F(EnumerationParameter, ListsEntriesInTheDescriptionsOrder)
{
    const auto entries = camera->enumerationParameter("ExposureAuto"_q)->entries();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].name, "Off"_q);
    EXPECT_EQ(entries[0].displayName, "Off"_q);
    EXPECT_EQ(entries[1].name, "Once"_q);
    EXPECT_EQ(entries[1].displayName, "Just once"_q);
    EXPECT_EQ(entries[2].name, "Continuous"_q);
}

TEST_F(EnumerationParameter, LeavesOutEntriesThatAreNotImplemented)
{
    const auto format = camera->enumerationParameter("PixelFormat"_q);
    const auto entries = format->entries();
    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].name, "Mono8"_q);
    EXPECT_EQ(entries[1].name, "Mono12"_q);
    EXPECT_FALSE(format->trySetValue("Mono10"_q));
}

TEST_F(EnumerationParameter, TellsWhichEntriesAreAvailable)
{
    const auto format = camera->enumerationParameter("PixelFormat"_q);
    EXPECT_TRUE(format->entries()[0].isSettable);
    EXPECT_FALSE(format->entries()[1].isSettable);
    EXPECT_EQ(refusalOf([&] { format->setValue("Mono12"_q); }),
              "PixelFormat: Mono12 is not available with the camera's present settings.");
    camera->booleanParameter("LutEnable"_q)->setValue(true, true);
    EXPECT_TRUE(format->entries()[1].isSettable);
    format->setValue("Mono12"_q);
    EXPECT_EQ(port->word(Register::pixelFormat), 12U);
}

TEST_F(EnumerationParameter, RefusesEntriesThatDoNotExist)
{
    const auto automatic = camera->enumerationParameter("ExposureAuto"_q);
    EXPECT_EQ(refusalOf([&] { automatic->setValue("Sometimes"_q); }),
              "ExposureAuto: there is no entry \"Sometimes\".");
    EXPECT_FALSE(automatic->trySetValue(QString()));
    EXPECT_TRUE(automatic->trySetValue("Once"_q));
    EXPECT_EQ(automatic->value(), "Once"_q);
}

TEST_F(EnumerationParameter, SaysWhenTheRegisterHoldsNoEntry)
{
    port->setWord(Register::exposureAuto, 77);
    const auto automatic = camera->enumerationParameter("ExposureAuto"_q);
    EXPECT_EQ(refusalOf([&] { automatic->value(); }),
              "ExposureAuto: the camera answers 77, which is no entry.");
    automatic->setValue("Off"_q);
    EXPECT_EQ(automatic->value(), "Off"_q);
}
