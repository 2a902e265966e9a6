// SPDX-License-Identifier: Apache-2.0
// The list in which the user selects a camera.
#pragma once

#include "cameralist.h"
#include "deviceselectorservice.h"

#include <QHash>
#include <QMenu>
#include <QWidget>

class QTreeWidget;
class QTreeWidgetItem;

namespace Viewer {

/// Cameras by group with model, serial number and state, and a context menu. Thread-bound: GUI
/// thread.
class CameraSelectorPanel final : public QWidget
{
    Q_OBJECT

public:
    /// \param cameras   lent as long as the panel lives
    /// \param selector  learns of the selection; lent as long as the panel lives
    CameraSelectorPanel(CameraList& cameras, DeviceSelectorService& selector,
                        QWidget* parent = nullptr);

    /// Shown for the selected camera. Owned by the panel.
    QMenu* contextMenu() const { return m_menu; }

    /// Null if none is selected.
    Cameras::HostCameraPtr selectedCamera() const;
    void select(const Cameras::HostCameraPtr& camera);

signals:
    /// The user wants to use this camera: double click or Return.
    void activated(const Cameras::HostCameraPtr& camera);

protected:
    void changeEvent(QEvent* event) override;

private:
    void add(const Cameras::HostCameraPtr& camera);
    void remove(const Cameras::HostCameraPtr& camera);
    QTreeWidgetItem* group(const QString& name);
    void showState(const Cameras::HostCameraPtr& camera);
    void showMenu(const QPoint& position);
    void retranslate();
    Cameras::HostCameraPtr cameraOf(const QTreeWidgetItem* item) const;

    CameraList& m_cameras;
    DeviceSelectorService& m_selector;
    QTreeWidget* m_tree;
    QMenu* m_menu;
    QHash<const Cameras::HostCamera*, QTreeWidgetItem*> m_items;
};

} // namespace Viewer
