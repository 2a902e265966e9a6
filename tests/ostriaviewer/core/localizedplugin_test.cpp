// SPDX-License-Identifier: Apache-2.0
// Tests of a plugin whose texts are translated.
#include "iplugin.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace Core::Plugin {
namespace {

class TextPlugin : public ALocalizedPlugin
{
public:
    TextPlugin()
        : ALocalizedPlugin(QStringLiteral("testplugin"))
    {}

    bool setServiceRegistry(const QWeakPointer<Service::CServiceRegistry>&) override
    {
        return true;
    }
    bool initialize() override { return true; }
    bool extensionsInitialized(const QSharedPointer<QStringList>&) override { return true; }
};

class LocalizedPluginTest : public testing::Test
{
protected:
    static QString text() { return QCoreApplication::translate("Test", "Close"); }

    int m_count = 0;
    QCoreApplication m_application{m_count, nullptr};
};

TEST_F(LocalizedPluginTest, WithoutACatalogueTheTextsOfTheCodeStand)
{
    TextPlugin plugin;
    for (const char* language : {"xx", "", "../de", "en"}) {
        plugin.setLanguage(QLatin1String(language));
        EXPECT_EQ(text(), QStringLiteral("Close")) << language;
    }
}

TEST_F(LocalizedPluginTest, ACatalogueIsInstalledReplacedAndTakenAway)
{
    {
        TextPlugin plugin;
        plugin.setLanguage(QStringLiteral("de"));
        EXPECT_EQ(text(), QStringLiteral("Schlie\u00dfen"));
        plugin.setLanguage(QStringLiteral("fr"));
        EXPECT_EQ(text(), QStringLiteral("Fermer"));
        plugin.setLanguage(QStringLiteral("fr"));
        EXPECT_EQ(text(), QStringLiteral("Fermer"));
        plugin.setLanguage(QStringLiteral("xx"));
        EXPECT_EQ(text(), QStringLiteral("Close")) << "the old catalogue is gone";
        plugin.setLanguage(QStringLiteral("de"));
        EXPECT_EQ(text(), QStringLiteral("Schlie\u00dfen"));
    }
    EXPECT_EQ(text(), QStringLiteral("Close")) << "the catalogue goes with its plugin";
}

TEST_F(LocalizedPluginTest, MayBeClosedUnlessItSaysOtherwise)
{
    TextPlugin plugin;
    EXPECT_TRUE(plugin.checkPluginClosability(false));
    EXPECT_TRUE(plugin.checkPluginClosability(true));
    plugin.aboutToUninitialize();
}

} // namespace
} // namespace Core::Plugin
