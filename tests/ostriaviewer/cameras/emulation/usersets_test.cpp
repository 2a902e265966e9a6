// SPDX-License-Identifier: Apache-2.0
// User sets outlive the camera that saved them.
#include "emulationtest.h"
#include "genicamexception.h"
#include "modelfeatures.h"
#include "usersets.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <thread>

namespace Cameras::Emulation {
namespace {

using ::GenICam::RuntimeException;

class UserSetsTest : public EmulationTest
{
protected:
    static void choose(EmulatedCamera& camera, const char* name, const char* entry)
    {
        camera.parameterCollection()
            ->enumerationParameter(QString::fromLatin1(name))
            ->setValue(QString::fromLatin1(entry));
    }
    static void execute(EmulatedCamera& camera, const char* name)
    {
        camera.parameterCollection()->commandParameter(QString::fromLatin1(name))->execute();
    }
    static void save(EmulatedCamera& camera, const char* set)
    {
        choose(camera, "UserSetSelector", set);
        execute(camera, "UserSetSave");
    }
    static void load(EmulatedCamera& camera, const char* set)
    {
        choose(camera, "UserSetSelector", set);
        execute(camera, "UserSetLoad");
    }
    static Core::ParameterCollection::FloatParameterPtr gain(EmulatedCamera& camera)
    {
        return camera.parameterCollection()->floatParameter(QStringLiteral("Gain"));
    }
    QString file(const CameraModel& model) const
    {
        return folder() + QLatin1Char('/') + model.serialNumber + QStringLiteral(".json");
    }
    void writeFile(const QByteArray& text) const
    {
        QFile out(file(smallModel()));
        ASSERT_TRUE(out.open(QIODevice::WriteOnly));
        out.write(text);
    }
};

TEST_F(UserSetsTest, ASavedSetComesBackInAnotherCameraObject)
{
    {
        const auto camera = openCamera(smallModel());
        gain(*camera)->setValue(7.5);
        choose(*camera, "BalanceRatioSelector", "Blue");
        camera->parameterCollection()
            ->floatParameter(QStringLiteral("BalanceRatio"))
            ->setValue(2.25);
        choose(*camera, "PixelFormat", "BGR8");
        save(*camera, "UserSet2");
    }
    const auto camera = openCamera(smallModel());
    EXPECT_EQ(gain(*camera)->value(), 0.0);
    load(*camera, "UserSet2");
    EXPECT_EQ(gain(*camera)->value(), 7.5);
    choose(*camera, "BalanceRatioSelector", "Blue");
    EXPECT_EQ(
        camera->parameterCollection()->floatParameter(QStringLiteral("BalanceRatio"))->value(),
        2.25);
    EXPECT_EQ(
        camera->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"))->value(),
        QStringLiteral("BGR8"));
}

TEST_F(UserSetsTest, TheCameraComesUpWithItsDefaultSet)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(4.0);
    save(*camera, "UserSet1");
    choose(*camera, "UserSetDefault", "UserSet1");
    gain(*camera)->setValue(9.0);
    camera->close();
    ASSERT_TRUE(camera->open());
    EXPECT_EQ(gain(*camera)->value(), 4.0);

    const auto other = openCamera(smallModel());
    EXPECT_EQ(gain(*other)->value(), 4.0);
    EXPECT_EQ(other->parameterCollection()
                  ->enumerationParameter(QStringLiteral("UserSetDefault"))
                  ->value(),
              QStringLiteral("UserSet1"));
}

TEST_F(UserSetsTest, WhatWasNotSavedIsGoneAfterClosing)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(4.0);
    camera->close();
    ASSERT_TRUE(camera->open());
    EXPECT_EQ(gain(*camera)->value(), 0.0);
}

TEST_F(UserSetsTest, TheFactorySetsCannotBeOverwritten)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(4.0);
    EXPECT_THROW(save(*camera, "Default"), RuntimeException);
    load(*camera, "Default");
    EXPECT_EQ(gain(*camera)->value(), 0.0);
}

TEST_F(UserSetsTest, ASetThatWasNeverSavedHoldsTheFactorysValues)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(4.0);
    load(*camera, "UserSet3");
    EXPECT_EQ(gain(*camera)->value(), 0.0);
}

TEST_F(UserSetsTest, SetsDoNotMix)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(1.0);
    save(*camera, "UserSet1");
    gain(*camera)->setValue(2.0);
    save(*camera, "UserSet2");
    load(*camera, "UserSet1");
    EXPECT_EQ(gain(*camera)->value(), 1.0);
    load(*camera, "UserSet2");
    EXPECT_EQ(gain(*camera)->value(), 2.0);
}

TEST_F(UserSetsTest, TwoModelsHaveTheirOwn)
{
    const auto plain = openCamera(smallModel(FeatureNames::SecondGeneration));
    gain(*plain)->setValue(1.0);
    save(*plain, "UserSet1");
    const auto maker = openCamera(smallModel(FeatureNames::SecondGenerationMaker));
    load(*maker, "UserSet1");
    EXPECT_EQ(gain(*maker)->value(), 0.0);
}

TEST_F(UserSetsTest, TwoThatHaveOneCameraOpenDoNotUndoEachOther)
{
    const auto first = openCamera(smallModel());
    const auto second = openCamera(smallModel());
    gain(*second)->setValue(3.0);
    save(*second, "UserSet1");
    choose(*second, "UserSetDefault", "UserSet1");
    gain(*first)->setValue(5.0);
    save(*first, "UserSet2");

    const auto third = openCamera(smallModel());
    EXPECT_EQ(gain(*third)->value(), 3.0) << "the default that the second chose";
    load(*third, "UserSet2");
    EXPECT_EQ(gain(*third)->value(), 5.0);
    load(*third, "UserSet1");
    EXPECT_EQ(gain(*third)->value(), 3.0);

    choose(*first, "UserSetDefault", "UserSet2");
    const auto fourth = openCamera(smallModel());
    EXPECT_EQ(gain(*fourth)->value(), 5.0);
    load(*fourth, "UserSet1");
    EXPECT_EQ(gain(*fourth)->value(), 3.0);
}

TEST_F(UserSetsTest, WhatAnotherHasSavedIsLoadedByAnOpenCamera)
{
    const auto first = openCamera(smallModel());
    const auto second = openCamera(smallModel());
    gain(*second)->setValue(3.0);
    save(*second, "UserSet1");
    load(*first, "UserSet1");
    EXPECT_EQ(gain(*first)->value(), 3.0);
    gain(*first)->setValue(5.0);
    save(*first, "UserSet1");
    load(*second, "UserSet1");
    EXPECT_EQ(gain(*second)->value(), 5.0);
}

TEST_F(UserSetsTest, NothingButTheSetsIsLeftInTheFolder)
{
    const auto camera = openCamera(smallModel());
    save(*camera, "UserSet1");
    choose(*camera, "UserSetDefault", "UserSet1");
    EXPECT_EQ(QDir(folder()).entryList(QDir::Files | QDir::Hidden),
              QStringList(QFileInfo(file(smallModel())).fileName()));
}

TEST_F(UserSetsTest, ProgramsThatSaveAtOnceLoseNothing)
{
    // Each thread stands for a program: they share nothing but the file.
    constexpr int rounds = 25;
    const auto table = std::make_shared<FeatureTable>(modelFeatures(smallModel()));
    const QString path = file(smallModel());
    const auto saveOften = [&](const char* set, double gain) {
        UserSets sets(table, path);
        FeatureValues values(table);
        for (int round = 1; round <= rounds; ++round) {
            values.set(QStringLiteral("Gain"), gain * round);
            sets.save(QString::fromLatin1(set), values);
        }
    };
    std::thread other(saveOften, "UserSet1", 0.2);
    saveOften("UserSet2", 0.4);
    other.join();
    UserSets sets(table, path);
    FeatureValues values(table);
    sets.load(QStringLiteral("UserSet1"), values);
    EXPECT_EQ(values.value(QStringLiteral("Gain")), 5.0);
    sets.load(QStringLiteral("UserSet2"), values);
    EXPECT_EQ(values.value(QStringLiteral("Gain")), 10.0);
}

TEST_F(UserSetsTest, ADamagedFileIsKeptAsideWhenASetIsSaved)
{
    for (const char* name : {".damaged", ".damaged2"}) {
        writeFile(R"({"UserSets": {"UserSet2": {"Gain": [3)");
        const auto camera = openCamera(smallModel());
        save(*camera, "UserSet1");
        QFile aside(file(smallModel()) + QLatin1String(name));
        ASSERT_TRUE(aside.open(QIODevice::ReadOnly)) << name;
        EXPECT_EQ(aside.readAll(), R"({"UserSets": {"UserSet2": {"Gain": [3)");
    }
}

TEST_F(UserSetsTest, ProgramsThatSaveAndChooseAtOnceLoseNothing)
{
    constexpr int rounds = 15;
    const auto table = std::make_shared<FeatureTable>(modelFeatures(smallModel()));
    const QString path = file(smallModel());
    int chosen = 0;
    std::thread other([&] {
        UserSets sets(table, path);
        for (int round = 0; round < rounds; ++round) {
            const QString set = QLatin1String(round % 2 == 0 ? "UserSet1" : "UserSet3");
            sets.setStartUpSet(set);
            chosen += UserSets(table, path).startUpSet() == set ? 1 : 0;
        }
    });
    int saved = 0;
    UserSets sets(table, path);
    FeatureValues values(table);
    for (int round = 1; round <= rounds; ++round) {
        values.set(QStringLiteral("Gain"), 0.5 * round);
        sets.save(QStringLiteral("UserSet2"), values);
        FeatureValues loaded(table);
        UserSets(table, path).load(QStringLiteral("UserSet2"), loaded);
        saved += loaded.value(QStringLiteral("Gain")) == values.value(QStringLiteral("Gain"));
    }
    other.join();
    EXPECT_EQ(chosen, rounds);
    EXPECT_EQ(saved, rounds);
}

TEST_F(UserSetsTest, DamagedFilesHarmNothing)
{
    for (const QByteArray& text :
         {QByteArray(), QByteArray("{"), QByteArray("[1,2]"), QByteArray(100000, '\0'),
          QByteArray(R"({"UserSetDefault": "UserSet9", "UserSets": 3})"),
          QByteArray(R"({"UserSetDefault": "UserSet1", "UserSets": {"UserSet1":
              {"Gain": [99], "Width": [0], "OffsetX": [40], "PixelFormat": [12], "Gamma": ["x"],
               "BalanceRatio": [1, 2], "UserSetSave": [1], "Nothing": [1], "BlackLevel": 3}}})")}) {
        writeFile(text);
        const auto camera = openCamera(smallModel());
        const auto features = camera->parameterCollection();
        EXPECT_EQ(gain(*camera)->value(), 0.0);
        EXPECT_EQ(features->integerParameter(QStringLiteral("Width"))->value(), 96);
        EXPECT_EQ(features->integerParameter(QStringLiteral("OffsetX"))->value(), 0);
        EXPECT_EQ(features->enumerationParameter(QStringLiteral("PixelFormat"))->value(),
                  QStringLiteral("RGB8"));
        EXPECT_EQ(features->floatParameter(QStringLiteral("Gamma"))->value(), 1.0);
    }
}

// Values that the camera would take, but that nobody has put there.
TEST_F(UserSetsTest, ListsOfAnotherLengthAndWhatIsNoNumberStayTheFactorys)
{
    for (const char* ratios : {"[2, 3]", "[2, 3, 4, 5]", "[\"x\", \"x\", \"x\"]", "2"}) {
        writeFile(QByteArray(R"({"UserSetDefault": "UserSet1", "UserSets": {"UserSet1":
                                {"Gain": [3], "BalanceRatio": )") +
                  ratios + "}}}");
        const auto camera = openCamera(smallModel());
        EXPECT_EQ(gain(*camera)->value(), 3.0) << "the others count";
        for (const char* color : {"Red", "Green", "Blue"}) {
            choose(*camera, "BalanceRatioSelector", color);
            EXPECT_EQ(camera->parameterCollection()
                          ->floatParameter(QStringLiteral("BalanceRatio"))
                          ->value(),
                      1.0)
                << color << " of " << ratios;
        }
    }
}

TEST_F(UserSetsTest, TheFactorysSetIsNeverTheFiles)
{
    writeFile(R"({"UserSets": {"Default": {"Gain": [3]}}})");
    const auto camera = openCamera(smallModel());
    EXPECT_EQ(gain(*camera)->value(), 0.0);
    load(*camera, "Default");
    EXPECT_EQ(gain(*camera)->value(), 0.0);
}

TEST_F(UserSetsTest, AStartUpSetThatThereIsNotIsTheFactorys)
{
    writeFile(R"({"UserSetDefault": "UserSet9", "UserSets": {"UserSet9": {"Gain": [3]}}})");
    const auto table = std::make_shared<FeatureTable>(modelFeatures(smallModel()));
    EXPECT_EQ(UserSets(table, file(smallModel())).startUpSet(), QStringLiteral("Default"));
    EXPECT_EQ(gain(*openCamera(smallModel()))->value(), 0.0);
}

TEST_F(UserSetsTest, AFileThatIsTooLargeIsNoneOfUserSets)
{
    writeFile(R"({"UserSetDefault": "UserSet1", "UserSets": {"UserSet1": {"Gain": [3]}}})" +
              QByteArray(5 * 1024 * 1024, ' '));
    const auto camera = openCamera(smallModel());
    EXPECT_EQ(gain(*camera)->value(), 0.0);
    save(*camera, "UserSet2");
    EXPECT_TRUE(QFile::exists(file(smallModel()) + QStringLiteral(".damaged")));
}

TEST_F(UserSetsTest, TheFolderIsMadeWhereThereIsNone)
{
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(2.0);
    save(*camera, "UserSet1");
    EXPECT_TRUE(QFile::exists(file(smallModel())));
}

TEST_F(UserSetsTest, NoSetIsLoadedWhileImagesAreTaken)
{
    const auto camera = openCamera(smallModel());
    gain(*camera)->setValue(4.0);
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_THROW(load(*camera, "UserSet1"), RuntimeException);
    EXPECT_EQ(gain(*camera)->value(), 4.0);
    camera->stopGrabbing();
    load(*camera, "UserSet1");
    EXPECT_EQ(gain(*camera)->value(), 0.0);
}

TEST_F(UserSetsTest, AFolderThatCannotBeWrittenIsReported)
{
    QDir(folder()).removeRecursively();
    QFile blocker(folder());
    ASSERT_TRUE(blocker.open(QIODevice::WriteOnly)); // a file where the folder should be
    const auto camera = openCamera(smallModel());
    EXPECT_THROW(save(*camera, "UserSet1"), RuntimeException);
    EXPECT_THROW(choose(*camera, "UserSetDefault", "UserSet1"), RuntimeException);
    EXPECT_EQ(camera->parameterCollection()
                  ->enumerationParameter(QStringLiteral("UserSetDefault"))
                  ->value(),
              QStringLiteral("Default"));
    QFile::remove(folder());
}

TEST_F(UserSetsTest, TheLookUpTableIsSavedToo)
{
    {
        const auto camera = openCamera(smallModel());
        const auto features = camera->parameterCollection();
        features->integerParameter(QStringLiteral("LUTIndex"))->setValue(4095, true);
        features->integerParameter(QStringLiteral("LUTValue"))->setValue(17, true);
        save(*camera, "UserSet1");
    }
    const auto camera = openCamera(smallModel());
    const auto features = camera->parameterCollection();
    features->integerParameter(QStringLiteral("LUTIndex"))->setValue(4095, true);
    EXPECT_EQ(features->integerParameter(QStringLiteral("LUTValue"))->value(), 4095);
    load(*camera, "UserSet1");
    EXPECT_EQ(features->integerParameter(QStringLiteral("LUTValue"))->value(), 17);
}

} // namespace
} // namespace Cameras::Emulation
