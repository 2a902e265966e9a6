// SPDX-License-Identifier: Apache-2.0
// Shows which plugins run, and why others do not.
#include "pluginsdialog.h"

#include "plaintooltip.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Viewer {

PluginsDialog::PluginsDialog(const QList<PluginReport>& plugins, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Plugins"));
    auto* list = new QTreeWidget(this);
    list->setObjectName(QStringLiteral("plugins"));
    list->setRootIsDecorated(false);
    list->setWordWrap(true);
    list->setHeaderLabels({tr("Name"), tr("Version"), tr("State")});
    for (const PluginReport& plugin : plugins) {
        const QString state = plugin.error.isEmpty() ? tr("Runs") : plugin.error;
        auto* item = new QTreeWidgetItem(list, {plugin.name, plugin.version, state});
        const QString tip = plainToolTip(QDir::toNativeSeparators(plugin.file) + QLatin1Char('\n') +
                                         plugin.description + QLatin1Char('\n') + state);
        for (int column = 0; column < list->columnCount(); ++column)
            item->setToolTip(column, tip);
    }
    if (plugins.isEmpty())
        new QTreeWidgetItem(list, {tr("There are no plugins.")});
    list->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(list);
    layout->addWidget(buttons);
    resize(640, 320);
}

} // namespace Viewer
