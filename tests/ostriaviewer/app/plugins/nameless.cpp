// SPDX-License-Identifier: Apache-2.0
// A plugin without a record.
#include "testplugin.h"

class NamelessPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.OstriaViewerPlugin")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    NamelessPlugin()
        : TestPlugin(QStringLiteral("Nameless"))
    {}
};

#include "nameless.moc"
