// SPDX-License-Identifier: Apache-2.0
// Plugins that work are loaded in order, and those that do not are left out with a reason.
#include "pluginmanager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

class PluginManagerTest : public testing::Test
{
protected:
    PluginManagerTest()
    {
        qApp->setProperty("pluginCalls", QStringList());
        qApp->setProperty("failingCall", QString());
    }

    void install(const char* plugin, const char* as = nullptr)
    {
        const QString source = QStringLiteral(TEST_PLUGINS "/%1.so").arg(QLatin1String(plugin));
        ASSERT_TRUE(QFile::copy(source, file(as ? as : plugin))) << qPrintable(source);
    }
    QString file(const char* plugin) const
    {
        return m_folder.filePath(QStringLiteral("%1.so").arg(QLatin1String(plugin)));
    }

    void load() { m_manager.loadFolder(m_folder.path(), "ja", {"viewer", "--option"}); }

    static QStringList calls() { return qApp->property("pluginCalls").toStringList(); }
    static void failAt(const char* call) { qApp->setProperty("failingCall", call); }

    /// The only report, which is of a plugin that was left out.
    PluginReport onlyFailure()
    {
        const QList<PluginReport> reports = m_manager.reports();
        EXPECT_EQ(reports.size(), 1);
        const PluginReport report = reports.isEmpty() ? PluginReport() : reports.constFirst();
        EXPECT_FALSE(report.error.isEmpty());
        return report;
    }

    QTemporaryDir m_folder;
    PluginManager m_manager{
        QSharedPointer<Core::Service::CServiceRegistry>::create(),
        {{"CameraPool", QVersionNumber(2, 0, 0)}, {"ViewerShell", QVersionNumber(7, 3, 0)}}};
};

TEST_F(PluginManagerTest, CallsAPluginInOrderFromItsBeginningToItsEnd)
{
    install("good");
    load();
    EXPECT_EQ(calls(), (QStringList{"Good language ja", "Good registry", "Good initialize",
                                    "Good extensions viewer --option"}));
    m_manager.setLanguage("ko");
    EXPECT_TRUE(m_manager.checkClosability(false));
    m_manager.unload();
    EXPECT_EQ(calls().mid(4),
              (QStringList{"Good language ko", "Good closable", "Good uninitialize", "Good end"}));
}

TEST_F(PluginManagerTest, ReportsWhatAPluginSaysOfItself)
{
    install("good");
    load();
    ASSERT_EQ(m_manager.reports().size(), 1);
    const PluginReport report = m_manager.reports().constFirst();
    EXPECT_EQ(report.name, "Good");
    EXPECT_EQ(report.version, "1.2.0");
    EXPECT_EQ(report.description, "Does as it should.");
    EXPECT_EQ(report.file, file("good"));
    EXPECT_EQ(report.error, "");
}

TEST_F(PluginManagerTest, LoadsWhatOthersNeedFirstAndEndsItLast)
{
    install("dependent");
    install("good");
    load();
    EXPECT_EQ(calls().filter("initialize"),
              (QStringList{"Good initialize", "Dependent initialize"}));
    m_manager.unload();
    EXPECT_EQ(calls().filter("uninitialize"),
              (QStringList{"Dependent uninitialize", "Good uninitialize"}));
    EXPECT_EQ(calls().filter("end").filter(" end"), (QStringList{"Dependent end", "Good end"}));
}

TEST_F(PluginManagerTest, LeavesOutAPluginWhosePluginIsMissing)
{
    install("dependent");
    load();
    EXPECT_TRUE(onlyFailure().error.contains("\"Good\" in version 1.1.0"));
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(PluginManagerTest, LeavesOutAPluginForANewerHost)
{
    install("orphan");
    load();
    EXPECT_TRUE(onlyFailure().error.contains("\"CameraPool\" in version 9.0.0"));
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(PluginManagerTest, LeavesOutAPluginOfAnotherInterfaceWithoutRunningIt)
{
    install("foreign");
    load();
    EXPECT_TRUE(onlyFailure().error.contains("tavrin.ostriaApp.AnotherPlugin"));
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(PluginManagerTest, LeavesOutAPluginWithoutMetadata)
{
    install("nameless");
    load();
    const PluginReport report = onlyFailure();
    EXPECT_TRUE(report.error.contains("metadata"));
    EXPECT_EQ(report.name, "nameless.so");
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(PluginManagerTest, UsesOneOfTwoFilesOfTheSamePlugin)
{
    install("good", "a");
    install("good", "b");
    load();
    EXPECT_EQ(calls().filter(" initialize"), QStringList("Good initialize"));
    ASSERT_EQ(m_manager.reports().size(), 2);
    EXPECT_EQ(m_manager.reports()[0].file, file("a"));
    EXPECT_EQ(m_manager.reports()[1].file, file("b"));
    EXPECT_TRUE(m_manager.reports()[1].error.contains("twice"));
}

TEST_F(PluginManagerTest, LeavesOutAFileThatIsNoLibrary)
{
    QFile broken(file("broken"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("no library");
    broken.close();
    load();
    EXPECT_TRUE(onlyFailure().error.contains("no plugin"));
}

TEST_F(PluginManagerTest, ReportsALinkToAFileThatIsMissing)
{
    ASSERT_TRUE(QFile::link(m_folder.filePath("nowhere"), file("link")));
    load();
    EXPECT_TRUE(onlyFailure().error.contains("does not exist"));
}

TEST_F(PluginManagerTest, LeavesOtherFilesAlone)
{
    QFile text(m_folder.filePath("readme.txt"));
    ASSERT_TRUE(text.open(QIODevice::WriteOnly));
    load();
    EXPECT_TRUE(m_manager.reports().isEmpty());
}

TEST_F(PluginManagerTest, EndsAPluginThatFailsAtAnyStepOfItsBeginning)
{
    for (const char* step :
         {"Good registry", "Good initialize", "Good extensions viewer --option"}) {
        QTemporaryDir folder;
        QFile::copy(TEST_PLUGINS "/good.so", folder.filePath("good.so"));
        qApp->setProperty("pluginCalls", QStringList());
        failAt(step);
        PluginManager manager(QSharedPointer<Core::Service::CServiceRegistry>::create(),
                              {{"CameraPool", QVersionNumber(2, 0, 0)}});
        manager.loadFolder(folder.path(), "en", {"viewer", "--option"});
        EXPECT_EQ(calls().constLast(), "Good end") << step;
        ASSERT_EQ(manager.reports().size(), 1) << step;
        EXPECT_FALSE(manager.reports().constFirst().error.isEmpty()) << step;
    }
}

TEST_F(PluginManagerTest, AsksWhetherPluginsMayBeClosed)
{
    install("good");
    load();
    failAt("Good closable");
    EXPECT_FALSE(m_manager.checkClosability(false));
}

} // namespace
} // namespace Viewer
