// SPDX-License-Identifier: Apache-2.0
// The message log as the user reads it: filtered by level and words, and copied.
#include "messagelogpanel.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QStyle>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace Viewer {
namespace {

class LevelFilter final : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setLowestLevel(int level)
    {
        m_lowest = level;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override
    {
        const QModelIndex index = sourceModel()->index(row, 0, parent);
        return index.data(MessageLogModel::LevelRole).toInt() >= m_lowest &&
               QSortFilterProxyModel::filterAcceptsRow(row, parent);
    }

private:
    int m_lowest = Core::Logging::Information;
};

} // namespace

MessageLogPanel::MessageLogPanel(MessageLogModel* model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_view(new QTreeView(this))
    , m_level(new QComboBox(this))
    , m_filter(new QLineEdit(this))
    , m_copy(new QAction(this))
    , m_clear(new QAction(this))
{
    auto* filter = new LevelFilter(this);
    filter->setSourceModel(model);
    filter->setFilterKeyColumn(-1);
    filter->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_shown = filter;
    makeView();
    makeTools();
    connect(m_filter, &QLineEdit::textChanged, filter,
            &QSortFilterProxyModel::setFilterFixedString);
    connect(m_level, QOverload<int>::of(&QComboBox::currentIndexChanged), filter,
            [filter](int index) { filter->setLowestLevel(index); });
    connect(m_copy, &QAction::triggered, this, &MessageLogPanel::copy);
    connect(m_clear, &QAction::triggered, m_model, &MessageLogModel::clear);
    keepEndInView();
    retranslate();
}

void MessageLogPanel::makeView()
{
    m_view->setObjectName(QStringLiteral("messages"));
    m_view->setModel(m_shown);
    m_view->setRootIsDecorated(false);
    m_view->setUniformRowHeights(true);
    m_view->setAlternatingRowColors(true);
    m_view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_view->header()->setStretchLastSection(true);
    const QFontMetrics metrics = fontMetrics();
    m_view->header()->resizeSection(MessageLogModel::Time,
                                    metrics.horizontalAdvance(QStringLiteral("00:00:00.0000")));
    m_view->header()->resizeSection(MessageLogModel::Source, metrics.averageCharWidth() * 26);
    m_copy->setShortcut(QKeySequence::Copy);
    m_copy->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_view->addAction(m_copy);
    m_view->addAction(m_clear);
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
}

// The icon and the longest name in the present language, with the margins of a cell.
int MessageLogPanel::widthOfLevels() const
{
    using namespace Core::Logging;
    int longest = 0;
    for (const ELogLevel level : {Debug, Information, Warning, Error, Fatal})
        longest =
            std::max(longest, fontMetrics().horizontalAdvance(MessageLogModel::levelName(level)));
    return longest + m_view->style()->pixelMetric(QStyle::PM_SmallIconSize) +
           4 * fontMetrics().averageCharWidth();
}

void MessageLogPanel::makeTools()
{
    m_level->setObjectName(QStringLiteral("level"));
    for (int level = Core::Logging::Debug; level <= Core::Logging::Error; ++level)
        m_level->addItem({});
    m_level->setCurrentIndex(Core::Logging::Information);
    m_filter->setObjectName(QStringLiteral("filter"));
    m_filter->setClearButtonEnabled(true);
    m_copy->setObjectName(QStringLiteral("copy"));
    m_clear->setObjectName(QStringLiteral("clear"));

    auto* tools = new QHBoxLayout;
    tools->addWidget(m_level);
    tools->addWidget(m_filter, 1);
    for (QAction* action : {m_copy, m_clear}) {
        auto* button = new QToolButton(this);
        button->setDefaultAction(action);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        tools->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addLayout(tools);
    layout->addWidget(m_view);
}

// Who reads further up is not torn away by a new message.
void MessageLogPanel::keepEndInView()
{
    connect(m_shown, &QAbstractItemModel::rowsAboutToBeInserted, this, [this] {
        const QScrollBar* bar = m_view->verticalScrollBar();
        m_isAtEnd = bar->value() >= bar->maximum();
    });
    connect(m_shown, &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_isAtEnd)
            m_view->scrollToBottom();
    });
}

QString MessageLogPanel::selectedText() const
{
    QModelIndexList rows = m_view->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end(),
              [](const QModelIndex& a, const QModelIndex& b) { return a.row() < b.row(); });
    if (rows.isEmpty())
        for (int row = 0; row < m_shown->rowCount(); ++row)
            rows.append(m_shown->index(row, 0));
    QString text;
    for (const QModelIndex& row : rows) {
        const LogMessage& message = m_model->message(m_shown->mapToSource(row).row());
        text += QStringLiteral("%1\t%2\t%3\t%4\n")
                    .arg(message.time.toString(Qt::ISODateWithMs),
                         MessageLogModel::levelName(message.level), message.source, message.text);
    }
    return text;
}

void MessageLogPanel::copy()
{
    QGuiApplication::clipboard()->setText(selectedText());
}

void MessageLogPanel::retranslate()
{
    const QString texts[] = {tr("All messages"), tr("Information and graver"),
                             tr("Warnings and errors"), tr("Errors only")};
    for (int level = 0; level < m_level->count(); ++level)
        m_level->setItemText(level, texts[level]);
    m_level->setAccessibleName(tr("Lowest level shown"));
    m_filter->setPlaceholderText(tr("Filter messages"));
    m_filter->setAccessibleName(tr("Filter messages"));
    m_view->setAccessibleName(tr("Messages"));
    m_view->header()->resizeSection(MessageLogModel::Level, widthOfLevels());
    m_copy->setText(tr("Copy"));
    m_copy->setToolTip(tr("Copy the selected messages, or all that are shown"));
    m_clear->setText(tr("Clear"));
    m_clear->setToolTip(tr("Remove all messages"));
}

void MessageLogPanel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

} // namespace Viewer
