// SPDX-License-Identifier: Apache-2.0
// A plugin whose record stands in dependent.json.
#include "testplugin.h"

class DependentPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.OstriaViewerPlugin" FILE "dependent.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    DependentPlugin()
        : TestPlugin(QStringLiteral("Dependent"))
    {}
};

#include "dependent.moc"
