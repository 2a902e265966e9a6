// SPDX-License-Identifier: Apache-2.0
// The features of the selected camera, to be read and changed.
#pragma once

#include "cameralist.h"
#include "deviceselectorservice.h"

#include <QSet>
#include <QWidget>

class QLabel;
class QLineEdit;
class QSortFilterProxyModel;

namespace Viewer {

class FeatureModel;
class FeatureView;

/// Thread-bound: GUI thread.
class FeaturePanel final : public QWidget
{
    Q_OBJECT

public:
    /// Both are lent as long as the panel lives.
    FeaturePanel(CameraList& cameras, DeviceSelectorService& selector, QWidget* parent = nullptr);
    ~FeaturePanel() override;

signals:
    /// The camera did not take a value.
    void refused(const QString& reason);

protected:
    void changeEvent(QEvent* event) override;

private:
    void makeView();
    void use(const QModelIndex& index);
    void follow();
    void showFeatures();
    void applyFilter(const QString& text);
    void expand();
    void expandBelow(const QModelIndex& parent);
    void retranslate();

    CameraList& m_cameras;
    DeviceSelectorService& m_selector;
    FeatureModel* m_model;
    QSortFilterProxyModel* m_shown;
    QLineEdit* m_filter;
    FeatureView* m_view;
    QLabel* m_hint;
    Cameras::HostCameraPtr m_camera;
    Core::ParameterCollection::ParameterCollectionPtr m_features; // those that are shown
    QSet<QString> m_opened; // categories by name, of all cameras
};

} // namespace Viewer
