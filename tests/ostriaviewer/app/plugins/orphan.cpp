// SPDX-License-Identifier: Apache-2.0
// A plugin whose record stands in orphan.json.
#include "testplugin.h"

class OrphanPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.OstriaViewerPlugin" FILE "orphan.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    OrphanPlugin()
        : TestPlugin(QStringLiteral("Orphan"))
    {}
};

#include "orphan.moc"
