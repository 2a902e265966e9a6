// SPDX-License-Identifier: Apache-2.0
// A plugin for another program.
#include "testplugin.h"

class ForeignPlugin : public TestPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.AnotherPlugin" FILE "good.json")

public:
    ForeignPlugin()
        : TestPlugin(QStringLiteral("Foreign"))
    {}
};

#include "foreign.moc"
