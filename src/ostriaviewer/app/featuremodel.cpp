// SPDX-License-Identifier: Apache-2.0
// A camera's features in their categories.
#include "featuremodel.h"

#include "genicamexception.h"
#include "patience.h"

#include <QGuiApplication>
#include <QPalette>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <utility>

namespace Viewer {

using namespace Core::ParameterCollection;

namespace {

/// Before a camera that has not answered is asked again. A packet that was lost is sent again after
/// about half a second.
constexpr std::chrono::milliseconds pause(250);

/// For what is asked besides a feature's state.
constexpr std::chrono::milliseconds patience(100);

/// A text of a feature; empty if the camera does not tell it in time.
QString textOf(const IParameter& parameter, QString (IParameter::*text)() const)
{
    const Cameras::GenICam::Patience limited(patience);
    try {
        return (parameter.*text)();
    } catch (const GenICam::RuntimeException&) {
        return {};
    }
}

} // namespace

// A category, or a feature of one.
struct FeatureModel::Node
{
    Node* parent = nullptr;
    QString name;
    QString label;
    std::vector<std::unique_ptr<Node>> children;
    ParameterPtr parameter; // of a feature
    FeatureEditor editor = FeatureEditor::None;
    FeatureState state; // pending until it has been read
    QMetaObject::Connection connection;

    int row() const
    {
        const auto& siblings = parent->children;
        const auto self = std::find_if(siblings.begin(), siblings.end(),
                                       [this](const auto& each) { return each.get() == this; });
        return static_cast<int>(self - siblings.begin());
    }

    Node& append(const QString& childName, const QString& childLabel)
    {
        children.push_back(std::make_unique<Node>());
        Node& child = *children.back();
        child.parent = this;
        child.name = childName;
        child.label = childLabel;
        return child;
    }
};

FeatureModel::FeatureModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(std::make_unique<Node>())
{
    m_readAgain.setSingleShot(true);
    m_readAgain.setInterval(pause);
    connect(&m_readAgain, &QTimer::timeout, this, &FeatureModel::readPending);
}

FeatureModel::~FeatureModel() = default;

void FeatureModel::setFeatures(const ParameterCollectionPtr& features)
{
    m_features = features;
    load();
}

// While another thread has the camera to itself there are no features; they come later.
void FeatureModel::load()
{
    const Cameras::GenICam::Patience limited(patience);
    beginResetModel();
    m_watched.clear();
    m_pending.clear();
    m_root = std::make_unique<Node>();
    m_isLoaded = true;
    try {
        if (m_features)
            for (const FeatureCategory& category : m_features->categories())
                fill(m_root->append(category.name, category.displayName), category, *m_features);
    } catch (const GenICam::RuntimeException&) {
        m_pending.clear();
        m_root = std::make_unique<Node>();
        m_isLoaded = false;
        m_readAgain.start();
    }
    endResetModel();
}

void FeatureModel::fill(Node& into, const FeatureCategory& category, IParameterCollection& features)
{
    for (const FeatureCategory& inner : category.categories)
        fill(into.append(inner.name, inner.displayName), inner, features);
    for (const QString& name : category.features) {
        const ParameterPtr parameter = features.parameter(name);
        if (!parameter || parameter->isEmpty())
            continue;
        Node& feature = into.append(name, parameter->displayName());
        feature.parameter = parameter;
        feature.editor = editorOf(*parameter);
        feature.state.isPending = true;
        read(feature);
    }
}

// Every feature that is watched costs with each change of any, so only those that are seen are.
void FeatureModel::setWatched(const QModelIndex& category, bool isWatched)
{
    const Cameras::GenICam::Patience limited(patience);
    for (const auto& each : node(category)->children) {
        Node* feature = each.get();
        if (!feature->parameter)
            continue;
        disconnect(feature->connection);
        m_watched.erase(feature);
        if (!isWatched)
            continue;
        m_watched.insert(feature);
        feature->connection =
            connect(feature->parameter.data(), &IParameter::parameterDataChangedDecoupled, this,
                    [this, feature] { refresh(*feature); });
        refresh(*feature);
    }
}

void FeatureModel::refresh(Node& node)
{
    if (read(node))
        emit dataChanged(indexOf(&node, Name), indexOf(&node, Value));
}

// A row that was not answered stays as it was and is read later. While the camera is silent nobody
// is told of changes either, so what is seen is read again with it.
bool FeatureModel::read(Node& node)
{
    FeatureState state = readFeature(*node.parameter);
    if (state.isPending) {
        m_pending.insert(&node);
        m_pending.insert(m_watched.begin(), m_watched.end());
        m_readAgain.start();
        return false;
    }
    m_pending.erase(&node);
    node.state = std::move(state);
    return true;
}

// The first that is not answered begins the next pause.
void FeatureModel::readPending()
{
    if (!m_isLoaded)
        return load();
    while (!m_pending.empty()) {
        Node& next = **m_pending.begin();
        if (!read(next))
            return;
        emit dataChanged(indexOf(&next, Name), indexOf(&next, Value));
    }
}

FeatureModel::Node* FeatureModel::node(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : m_root.get();
}

QModelIndex FeatureModel::indexOf(const Node* node, int column) const
{
    return createIndex(node->row(), column, const_cast<Node*>(node));
}

QModelIndex FeatureModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column, node(parent)->children[static_cast<std::size_t>(row)].get());
}

QModelIndex FeatureModel::parent(const QModelIndex& child) const
{
    const Node* above = node(child)->parent;
    return !above || above == m_root.get() ? QModelIndex() : indexOf(above, 0);
}

int FeatureModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(node(parent)->children.size());
}

int FeatureModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant FeatureModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Node& shown = *node(index);
    if (role == NameRole)
        return shown.name;
    if (role == EditorRole)
        return shown.parameter ? static_cast<int>(shown.editor) : QVariant();
    if (!shown.parameter)
        return role == Qt::DisplayRole && index.column() == Name ? shown.label : QVariant();
    if (role == Qt::ToolTipRole)
        return toolTip(shown);
    if (role == Qt::ForegroundRole && !shown.state.isWritable)
        return QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    if (index.column() == Name)
        return role == Qt::DisplayRole ? shown.label : QVariant();
    return valueData(shown, role);
}

QVariant FeatureModel::valueData(const Node& node, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        if (node.editor == FeatureEditor::Button)
            return tr("Execute");
        return node.state.isAvailable || node.state.isPending ? node.state.text
                                                              : tr("not available");
    case Qt::EditRole:
        return node.state.written;
    case Qt::CheckStateRole:
        if (node.editor != FeatureEditor::Switch || node.state.written.isEmpty())
            return {};
        return node.state.written == QLatin1String("1") ? Qt::Checked : Qt::Unchecked;
    case ChoicesRole:
        return QVariant::fromValue(choicesOf(*node.parameter));
    default:
        return {};
    }
}

QString FeatureModel::toolTip(const Node& node) const
{
    QStringList lines{QStringLiteral("<b>%1</b>").arg(node.name.toHtmlEscaped())};
    const QString description = textOf(*node.parameter, &IParameter::description);
    if (!description.isEmpty())
        lines.append(description.toHtmlEscaped());
    if (!node.state.limits.isEmpty())
        lines.append(tr("Range: %1 %2")
                         .arg(node.state.limits, textOf(*node.parameter, &IParameter::unit))
                         .trimmed()
                         .toHtmlEscaped());
    if (!node.state.isAvailable && !node.state.isPending)
        lines.append(tr("Not available with the camera's present settings"));
    else if (!node.state.isWritable)
        lines.append(tr("Cannot be changed now"));
    return lines.join(QStringLiteral("<br>"));
}

bool FeatureModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    Node* changed = node(index);
    if (!changed->parameter || (role != Qt::EditRole && role != Qt::CheckStateRole))
        return false;
    const QString text = role == Qt::CheckStateRole
                             ? QString::number(value.toInt() == Qt::Checked ? 1 : 0)
                             : value.toString();
    if (role == Qt::EditRole && text == changed->state.written)
        return true;
    const QString reason = writeFeature(*changed->parameter, text);
    refresh(*changed);
    if (!reason.isEmpty())
        emit refused(reason);
    return reason.isEmpty();
}

void FeatureModel::press(const QModelIndex& index)
{
    Node* pressed = node(index);
    if (!pressed->parameter || pressed->editor != FeatureEditor::Button)
        return;
    const QString reason = writeFeature(*pressed->parameter, {});
    if (!reason.isEmpty())
        emit refused(reason);
}

Qt::ItemFlags FeatureModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Node& shown = *node(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() != Value || !shown.parameter || !shown.state.isWritable)
        return flags;
    if (shown.editor == FeatureEditor::Switch)
        flags |= Qt::ItemIsUserCheckable;
    else if (shown.editor != FeatureEditor::Button && shown.editor != FeatureEditor::None)
        flags |= Qt::ItemIsEditable;
    return flags;
}

QVariant FeatureModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Name ? tr("Feature") : tr("Value");
}

} // namespace Viewer
