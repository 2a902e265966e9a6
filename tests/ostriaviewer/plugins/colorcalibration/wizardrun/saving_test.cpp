// SPDX-License-Identifier: Apache-2.0
// What the last step saves, and what becomes of a failure: told, repeatable, harmless.
#include "fulldisk.h"
#include "registerstore.h"
#include "wizardrun.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <QTimer>

#include <optional>

namespace {

class WizardSaving : public WizardRun
{
protected:
    QString place(const QString& name) const { return m_place.filePath(name); }

    void chooseUserSet(int index) { item("userSets")->setProperty("currentIndex", index); }

    QStringList savedFiles() const
    {
        QStringList files;
        QDirIterator each(m_place.path(), QDir::Files, QDirIterator::Subdirectories);
        while (each.hasNext())
            files << QFileInfo(each.next()).fileName();
        files.sort();
        return files;
    }

    /// Saves, and closes the message that this leads to.
    QString saveAndTakeMessage()
    {
        click("saveButton");
        if (!box())
            return {};
        const QString text = box()->text();
        EXPECT_EQ(boxes().size(), 1);
        QTest::keyClick(box(), Qt::Key_Escape);
        EXPECT_TRUE(waitFor([] { return box() == nullptr; }));
        return text;
    }

    /// The wizard stands where it did, and shows new images of a camera that is calibrated.
    void expectToGoOn()
    {
        EXPECT_EQ(m_data->activeStep(), 4);
        const auto taken = m_model.TakenImages();
        EXPECT_TRUE(waitFor([&] { return m_model.TakenImages() > taken; }));
        expectCalibrated();
    }

    void expectCalibrated()
    {
        const double gamma = m_model.LastCalibration().gamma;
        EXPECT_GT(std::abs(gamma - 0.75), 0.01) << "or nothing could be told from it";
        EXPECT_NEAR(value("Gamma"), gamma, 0.002);
    }

    QString startSet()
    {
        return m_camera->parameterCollection()->enumerationParameter("UserSetDefault")->value();
    }

    QTemporaryDir m_place;
};

TEST_F(WizardSaving, OutlivesACancel)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        m_data->setCalibrationFileToSave(place("settings"));
        m_data->setSummaryFileToSave(place("summary"));
        chooseUserSet(2);
        EXPECT_EQ(saveAndTakeMessage(), "");
        expectToGoOn();
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
    EXPECT_EQ(savedFiles(),
              (QStringList{"Calibrated.cst", "calibrated.cst", "calibrated.png",
                           "calibration_report.html", "original.cst", "original.png"}));
    const auto features = m_camera->parameterCollection();
    EXPECT_EQ(features->enumerationParameter("UserSetSelector")->value(), "UserSet2");
    features->commandParameter("UserSetLoad")->execute();
    expectCalibrated();
}

TEST_F(WizardSaving, MakesAFolderAgainThatIsGone)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        ASSERT_TRUE(QDir(m_place.path()).mkdir("chosen"));
        m_data->setCalibrationFileToSave(place("chosen"));
        ASSERT_TRUE(QDir(place("chosen")).removeRecursively());
        EXPECT_EQ(saveAndTakeMessage(), "");
        click("nextButton");
    });
    EXPECT_EQ(savedFiles(), QStringList("Calibrated.cst"));
}

/// What goes wrong while all is saved, and the message of it.
struct Trouble
{
    const char* name;
    const char* text;
};

class TroubleSaving : public WizardSaving, public testing::WithParamInterface<Trouble>
{
protected:
    bool is(const char* name) const { return QLatin1String(GetParam().name) == name; }

    /// A file stands where a folder is to be made.
    void block(const QString& path)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    void begin()
    {
        if (is("SettingsPlace") || is("BothPlaces"))
            block(place("settings"));
        if (is("SummaryPlace") || is("BothPlaces"))
            block(place("summary"));
        if (is("FullDisk"))
            m_fullDisk.emplace();
        m_camera->refuseWrites(GetParam().name);
    }

    void end()
    {
        m_fullDisk.reset();
        m_camera->refuseWrites(GetParam().name, -1);
        QFile::remove(place("settings"));
        QFile::remove(place("summary"));
    }

private:
    std::optional<FullDisk> m_fullDisk;
};

TEST_P(TroubleSaving, IsToldAndCanBeRepeated)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        m_data->setCalibrationFileToSave(place("settings"));
        m_data->setSummaryFileToSave(place("summary"));
        chooseUserSet(2);
        item("saveSettingsAsDefault")->setProperty("checked", true);
        begin();
        EXPECT_EQ(saveAndTakeMessage().toStdString(), GetParam().text);
        end();
        EXPECT_EQ(startSet(), is("FullDisk") || is("UserSetSave") || is("UserSetDefault")
                                  ? "Default"
                                  : "UserSet2");
        expectToGoOn();
        EXPECT_EQ(saveAndTakeMessage(), "");
        EXPECT_EQ(startSet(), "UserSet2");
        click("nextButton");
    });
    const QStringList files = savedFiles();
    EXPECT_TRUE(files.contains("Calibrated.cst"));
    EXPECT_TRUE(files.contains("original.png"));
    expectCalibrated();
}

INSTANTIATE_TEST_SUITE_P(
    WizardRun, TroubleSaving,
    testing::Values(Trouble{"SettingsPlace", "Couldn't save settings to file path!<br>"},
                    Trouble{"SummaryPlace", "Couldn't save summary!<br>"},
                    // The last one of all.
                    Trouble{"BothPlaces", "Couldn't save summary!<br>"},
                    Trouble{"FullDisk", "Couldn't store settings in user set: UserSet2"},
                    Trouble{"UserSetSave", "Couldn't store settings in user set: UserSet2"},
                    Trouble{"UserSetDefault", "Couldn't store settings in user set: UserSet2"}),
    [](const auto& trouble) { return std::string(trouble.param.name); });

class SavingInterrupted : public WizardSaving
{
protected:
    /// Saves in a user set, and does this as soon as events are heard after the camera has been
    /// told to store.
    void interruptStoring(const std::function<void()>& interrupt)
    {
        QObject::connect(m_data.get(), &ColorCalibration::QmlDataModelInterface::forwardLogMessage,
                         m_dialog.get(), [this](const QString& text) { m_order << text; });
        m_camera->registers()->setWriteHook(
            [this, interrupt](const Cameras::Emulation::FeatureDefinition& feature, int) {
                if (feature.name != QLatin1String("UserSetSave"))
                    return;
                m_order << "storing";
                QTimer::singleShot(0, m_dialog.get(), [this, interrupt] {
                    m_order << "interrupted";
                    interrupt();
                });
            });
        chooseUserSet(2);
        click("saveButton");
    }

    void expectOrder() const
    {
        EXPECT_EQ(m_order, (QStringList{"storing", "Settings were saved successfully in UserSet2",
                                        "interrupted"}));
    }

    QStringList m_order;
};

TEST_F(SavingInterrupted, ByCancelIsDoneBefore)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        interruptStoring([this] { click("cancelButton"); });
        confirm();
    });
    expectOrder();
    EXPECT_EQ(settings(), before);
}

TEST_F(SavingInterrupted, ByTheEndOfTheWindowIsDoneBefore)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([this] {
        ASSERT_NO_FATAL_FAILURE(goTo(4));
        interruptStoring([this] { m_dialog->close(); });
        EXPECT_TRUE(waitFor([this] { return !m_dialog->isVisible(); }));
    });
    expectOrder();
    EXPECT_EQ(settings(), before);
}

} // namespace
