// SPDX-License-Identifier: Apache-2.0
// The list in which the user selects a camera.
#include "cameraselectorpanel.h"

#include "plaintooltip.h"

#include <QEvent>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace Viewer {

using Cameras::HostCameraPtr;

namespace {

enum Column { Camera, State, ColumnCount };

} // namespace

CameraSelectorPanel::CameraSelectorPanel(CameraList& cameras, DeviceSelectorService& selector,
                                         QWidget* parent)
    : QWidget(parent)
    , m_cameras(cameras)
    , m_selector(selector)
    , m_tree(new QTreeWidget(this))
    , m_menu(new QMenu(this))
{
    m_tree->setObjectName(QStringLiteral("cameras"));
    m_tree->setColumnCount(ColumnCount);
    m_tree->setIndentation(12);
    m_tree->setContextMenuPolicy(Qt::CustomContextMenu);
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(Camera, QHeaderView::Stretch);
    m_tree->header()->setSectionResizeMode(State, QHeaderView::ResizeToContents);
    m_menu->setObjectName(QStringLiteral("cameraSelectorContextMenu"));
    m_menu->setToolTipsVisible(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_tree);

    for (const HostCameraPtr& camera : cameras.cameras())
        add(camera);
    retranslate();
    connect(&cameras, &CameraList::added, this, &CameraSelectorPanel::add);
    connect(&cameras, &CameraList::removed, this, &CameraSelectorPanel::remove);
    connect(&cameras, &CameraList::stateChanged, this, &CameraSelectorPanel::showState);
    connect(m_tree, &QTreeWidget::currentItemChanged, this,
            [this] { m_selector.select(selectedCamera()); });
    connect(m_tree, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* item) {
        if (const HostCameraPtr camera = cameraOf(item))
            emit activated(camera);
    });
    connect(m_tree, &QWidget::customContextMenuRequested, this, &CameraSelectorPanel::showMenu);
}

QTreeWidgetItem* CameraSelectorPanel::group(const QString& name)
{
    for (int row = 0; row < m_tree->topLevelItemCount(); ++row)
        if (m_tree->topLevelItem(row)->text(Camera) == name)
            return m_tree->topLevelItem(row);
    auto* made = new QTreeWidgetItem(m_tree, {name});
    made->setFlags(Qt::ItemIsEnabled);
    made->setFirstColumnSpanned(true);
    made->setExpanded(true);
    return made;
}

void CameraSelectorPanel::add(const HostCameraPtr& camera)
{
    m_items[camera.data()] = new QTreeWidgetItem(group(camera->groupName()));
    showState(camera);
}

// The tree would select a neighbour, which nobody chose.
void CameraSelectorPanel::remove(const HostCameraPtr& camera)
{
    QTreeWidgetItem* item = m_items.value(camera.data());
    if (!item)
        return;
    if (m_tree->currentItem() == item)
        m_tree->setCurrentItem(nullptr);
    m_items.remove(camera.data());
    QTreeWidgetItem* above = item->parent();
    delete item;
    if (above->childCount() == 0)
        delete above;
}

void CameraSelectorPanel::showState(const HostCameraPtr& camera)
{
    QTreeWidgetItem* item = m_items.value(camera.data());
    if (!item)
        return;
    const CameraState state = m_cameras.state(camera);
    const QString name = CameraList::stateName(state);
    item->setText(Camera, camera->displayName());
    item->setText(State, name);
    const QString tip =
        tr("%1\nModel %2, %3").arg(camera->displayName(), camera->modelName(), name);
    for (int column = 0; column < ColumnCount; ++column)
        item->setToolTip(column, plainToolTip(tip));
    QFont font = m_tree->font();
    font.setBold(state == CameraState::Acquiring || state == CameraState::Recording);
    item->setFont(State, font);
}

HostCameraPtr CameraSelectorPanel::cameraOf(const QTreeWidgetItem* item) const
{
    for (const HostCameraPtr& camera : m_cameras.cameras())
        if (item && m_items.value(camera.data()) == item)
            return camera;
    return {};
}

HostCameraPtr CameraSelectorPanel::selectedCamera() const
{
    return cameraOf(m_tree->currentItem());
}

void CameraSelectorPanel::select(const HostCameraPtr& camera)
{
    m_tree->setCurrentItem(m_items.value(camera.data()));
}

void CameraSelectorPanel::showMenu(const QPoint& position)
{
    if (cameraOf(m_tree->itemAt(position)))
        m_menu->popup(m_tree->viewport()->mapToGlobal(position));
}

void CameraSelectorPanel::retranslate()
{
    m_tree->setHeaderLabels({tr("Camera"), tr("State")});
    m_tree->setAccessibleName(tr("Cameras"));
    for (const HostCameraPtr& camera : m_cameras.cameras()) {
        if (const QTreeWidgetItem* item = m_items.value(camera.data()))
            item->parent()->setText(Camera, camera->groupName());
        showState(camera);
    }
}

void CameraSelectorPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace Viewer
