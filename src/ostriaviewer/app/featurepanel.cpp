// SPDX-License-Identifier: Apache-2.0
// The features of the selected camera, to be read and changed.
#include "featurepanel.h"

#include "checkoutline.h"
#include "featuredelegate.h"
#include "featuremodel.h"
#include "featureview.h"

#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace Viewer {

using Cameras::HostCamera;
using Cameras::HostCameraPtr;

namespace {

/// Keeps features whose name for people or name in the camera contains the words, or whose
/// category's does, and the categories of those that are kept.
class FeatureFilter final : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        if (filterRegularExpression().pattern().isEmpty())
            return true;
        const QModelIndex index = sourceModel()->index(row, FeatureModel::Name, parent);
        if (!index.data(FeatureModel::EditorRole).isValid())
            return false;
        for (QModelIndex above = index; above.isValid(); above = above.parent())
            if (fits(above))
                return true;
        return false;
    }

private:
    bool fits(const QModelIndex& index) const
    {
        const auto contains = [this](const QVariant& name) {
            return name.toString().contains(filterRegularExpression());
        };
        return contains(index.data()) || contains(index.data(FeatureModel::NameRole));
    }
};

} // namespace

FeaturePanel::FeaturePanel(CameraList& cameras, DeviceSelectorService& selector, QWidget* parent)
    : QWidget(parent)
    , m_cameras(cameras)
    , m_selector(selector)
    , m_model(new FeatureModel(this))
    , m_shown(new FeatureFilter(this))
    , m_filter(new QLineEdit(this))
    , m_view(new FeatureView(this))
    , m_hint(new QLabel(this))
{
    m_shown->setSourceModel(m_model);
    m_shown->setRecursiveFilteringEnabled(true);
    makeView();
    connect(m_filter, &QLineEdit::textChanged, this, &FeaturePanel::applyFilter);
    connect(&selector, &DeviceSelectorService::switched, this, &FeaturePanel::follow);
    connect(&cameras, &CameraList::stateChanged, this, [this](const HostCameraPtr& camera) {
        if (camera == m_camera)
            showFeatures();
    });
    connect(m_model, &FeatureModel::refused, this, &FeaturePanel::refused);
    retranslate();
    follow();
}

FeaturePanel::~FeaturePanel() = default;

void FeaturePanel::makeView()
{
    m_filter->setObjectName(QStringLiteral("featureFilter"));
    m_filter->setClearButtonEnabled(true);
    m_view->setObjectName(QStringLiteral("features"));
    m_view->setModel(m_shown);
    m_view->setItemDelegate(new FeatureDelegate(this));
    m_view->setAlternatingRowColors(true);
    m_view->setUniformRowHeights(true);
    m_view->setIndentation(14);
    m_view->header()->resizeSection(FeatureModel::Name, 170);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setMargin(16);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(m_filter);
    layout->addWidget(m_view);
    layout->addWidget(m_hint, 1);

    CheckOutline::install(*m_view);
    connect(m_shown, &QAbstractItemModel::modelReset, this, &FeaturePanel::expand);
    connect(m_view, &QTreeView::clicked, this, &FeaturePanel::use);
    connect(m_view, &FeatureView::used, this, &FeaturePanel::use);
    connect(m_view, &QTreeView::expanded, this, [this](const QModelIndex& index) {
        m_model->setWatched(m_shown->mapToSource(index), true);
        m_opened.insert(index.data(FeatureModel::NameRole).toString());
    });
    connect(m_view, &QTreeView::collapsed, this, [this](const QModelIndex& index) {
        m_model->setWatched(m_shown->mapToSource(index), false);
        m_opened.remove(index.data(FeatureModel::NameRole).toString());
    });
}

// One click or key edits a value or presses a button.
void FeaturePanel::use(const QModelIndex& index)
{
    if (index.column() != FeatureModel::Value)
        return;
    m_model->press(m_shown->mapToSource(index));
    if (m_shown->flags(index) & Qt::ItemIsEditable)
        m_view->edit(index);
}

void FeaturePanel::follow()
{
    m_camera = m_selector.selected().dynamicCast<HostCamera>();
    m_features.reset();
    showFeatures();
}

// The features of an open camera stay the same objects until it is closed or lost; it may have been
// opened again before we hear of either.
void FeaturePanel::showFeatures()
{
    const auto features =
        m_camera && m_camera->isOpen() ? m_camera->parameterCollection() : nullptr;
    const bool isOpen = features != nullptr;
    m_view->setVisible(isOpen);
    m_filter->setEnabled(isOpen);
    m_hint->setVisible(!isOpen);
    if (isOpen && features == m_features)
        return;
    m_features = features;
    m_model->setFeatures(features);
}

void FeaturePanel::applyFilter(const QString& text)
{
    m_shown->setFilterRegularExpression(QRegularExpression(
        QRegularExpression::escape(text), QRegularExpression::CaseInsensitiveOption));
    expand();
}

// All that a filter finds is seen; without one, what the user has opened.
void FeaturePanel::expand()
{
    const QSet<QString> opened = m_opened;
    expandBelow({});
    m_opened = opened;
}

void FeaturePanel::expandBelow(const QModelIndex& parent)
{
    for (int row = 0; row < m_shown->rowCount(parent); ++row) {
        const QModelIndex category = m_shown->index(row, 0, parent);
        if (m_shown->rowCount(category) == 0)
            continue;
        const QString name = category.data(FeatureModel::NameRole).toString();
        m_view->setExpanded(category, !m_filter->text().isEmpty() || m_opened.contains(name));
        expandBelow(category);
    }
}

void FeaturePanel::retranslate()
{
    m_filter->setPlaceholderText(tr("Filter features"));
    m_filter->setAccessibleName(tr("Filter features"));
    m_view->setAccessibleName(tr("Features"));
    m_hint->setText(tr("Open a camera to see its features."));
    // What was read tells its limits in words.
    m_features.reset();
    showFeatures();
}

void FeaturePanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace Viewer
