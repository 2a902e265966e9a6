// SPDX-License-Identifier: Apache-2.0
// A plugin whose record stands in good.json.
#include "testplugin.h"

class GoodPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.OstriaViewerPlugin" FILE "good.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    GoodPlugin()
        : TestPlugin(QStringLiteral("Good"))
    {}
};

#include "good.moc"
