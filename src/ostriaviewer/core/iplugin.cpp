// SPDX-License-Identifier: Apache-2.0
// A plugin of the host.
#include "iplugin.h"

#include <QCoreApplication>
#include <QTranslator>

namespace Core::Plugin {

IPlugin::~IPlugin() = default;

bool IPlugin::checkPluginClosability(bool /*force*/)
{
    return true;
}

void IPlugin::aboutToUninitialize() {}

ALocalizedPlugin::ALocalizedPlugin(const QString& pluginName, QObject* parent)
    : IPlugin(parent)
    , m_pluginName(pluginName)
{}

ALocalizedPlugin::~ALocalizedPlugin()
{
    if (m_translator)
        QCoreApplication::removeTranslator(m_translator);
}

void ALocalizedPlugin::setLanguage(const QString& language)
{
    if (m_translator) {
        QCoreApplication::removeTranslator(m_translator);
        delete m_translator;
        m_translator = nullptr;
    }
    auto* translator = new QTranslator(this);
    if (translator->load(QStringLiteral(":/translation/%1_%2.qm").arg(m_pluginName, language)) &&
        QCoreApplication::installTranslator(translator))
        m_translator = translator;
    else
        delete translator;
}

} // namespace Core::Plugin
