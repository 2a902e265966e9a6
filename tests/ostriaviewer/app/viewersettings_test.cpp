// SPDX-License-Identifier: Apache-2.0
// Settings survive, whoever wrote them.
#include "viewersettings.h"

#include "logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

class ViewerSettingsTest : public testing::Test
{
protected:
    ViewerSettingsTest()
    {
        QSettings().clear();
        m_file = QSettings().fileName();
    }

    void write(const QByteArray& content) const
    {
        QSettings().sync();
        QDir().mkpath(QFileInfo(m_file).path());
        QFile file(m_file);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(m_file);
        file.write(content);
    }

    static QByteArray contentOf(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString m_file;
};

TEST_F(ViewerSettingsTest, RemembersValues)
{
    ViewerSettings().setValue("Name", "value");
    const ViewerSettings settings;
    EXPECT_EQ(settings.value("Name").toString(), "value");
    EXPECT_EQ(settings.value("Other", 7).toInt(), 7);
    EXPECT_EQ(settings.warning(), "");
}

TEST_F(ViewerSettingsTest, NeitherUsesNorChangesThoseOfANewerViewer)
{
    {
        QSettings settings;
        settings.setValue("Viewer/Version", ViewerSettings::version + 1);
        settings.setValue("Viewer/Name", "of the future");
    }
    ViewerSettings settings;
    EXPECT_FALSE(settings.isKept());
    EXPECT_TRUE(settings.warning().contains("newer viewer"));
    EXPECT_EQ(settings.value("Name", "default").toString(), "default");
    settings.setValue("Name", "of the present");
    EXPECT_EQ(QSettings().value("Viewer/Name").toString(), "of the future");
    EXPECT_EQ(QSettings().value("Viewer/Version").toInt(), ViewerSettings::version + 1);
}

TEST_F(ViewerSettingsTest, TakesAVersionThatIsNoNumberForANewerOne)
{
    QSettings().setValue("Viewer/Version", "two");
    EXPECT_FALSE(ViewerSettings().isKept());
}

TEST_F(ViewerSettingsTest, SetsADamagedFileAside)
{
    const QByteArray damaged = "[Viewer\nthis is no line of settings\n\x01\x02\n";
    write(damaged);
    ViewerSettings settings;
    EXPECT_TRUE(settings.warning().contains(m_file + ".unreadable"));
    EXPECT_EQ(contentOf(m_file + ".unreadable"), damaged);
    settings.setValue("Name", "value");
    EXPECT_EQ(ViewerSettings().value("Name").toString(), "value");
    QFile::remove(m_file + ".unreadable");
}

TEST_F(ViewerSettingsTest, RemembersNothingWhereTheFileCannotBeRead)
{
    QSettings().sync();
    QFile::remove(m_file);
    ASSERT_TRUE(QDir().mkpath(m_file)) << "a folder in its place";
    ViewerSettings settings;
    EXPECT_FALSE(settings.isKept());
    EXPECT_TRUE(settings.warning().contains("The settings file " + m_file + " cannot be read"));
    settings.setValue("Name", "value");
    EXPECT_EQ(settings.value("Name", "default").toString(), "default");
    EXPECT_TRUE(QFileInfo(m_file).isDir());
    EXPECT_TRUE(QDir().rmdir(m_file));
}

TEST_F(ViewerSettingsTest, LeavesADamagedFileThatCannotBeMoved)
{
    const QByteArray damaged = "[Viewer\nthis is no line of settings\n";
    write(damaged);
    // Not seen as a file, and nothing can be written through it.
    ASSERT_TRUE(QFile::link("/nowhere/at/all", m_file + ".unreadable"));
    ViewerSettings settings;
    EXPECT_FALSE(settings.isKept());
    EXPECT_TRUE(settings.warning().contains("The settings file " + m_file + " is damaged"));
    EXPECT_TRUE(settings.warning().contains("Remove the file."));
    settings.setValue("Name", "value");
    EXPECT_EQ(contentOf(m_file), damaged);
    QFile::remove(m_file + ".unreadable");
    QFile::remove(m_file);
}

TEST_F(ViewerSettingsTest, KeepsEachDamagedFile)
{
    for (const char* name : {".unreadable", ".unreadable2"}) {
        write("[broken " + QByteArray(name));
        EXPECT_FALSE(ViewerSettings().warning().isEmpty());
        EXPECT_EQ(contentOf(m_file + name), "[broken " + QByteArray(name));
    }
    QFile::remove(m_file + ".unreadable");
    QFile::remove(m_file + ".unreadable2");
}

TEST_F(ViewerSettingsTest, SayOnceThatTheyCannotBeWritten)
{
    QStringList told;
    const auto before = Core::Logging::installLogSink(
        [&told](Core::Logging::ELogLevel, const QString&, const QString& text) { told += text; });
    ViewerSettings settings;
    const QString folder = QFileInfo(m_file).path();
    QSettings().sync();
    ASSERT_TRUE(QDir(folder).removeRecursively());
    ASSERT_TRUE(QFile(folder).open(QIODevice::WriteOnly)) << "a file in place of the folder";
    settings.setValue("Name", "value");
    settings.setValue("Name", "other");
    Core::Logging::installLogSink(before);
    ASSERT_EQ(told.size(), 1);
    EXPECT_TRUE(told.first().contains(m_file)) << qPrintable(told.first());
    QFile::remove(folder);
}

} // namespace
} // namespace Viewer
