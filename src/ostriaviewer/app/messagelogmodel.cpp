// SPDX-License-Identifier: Apache-2.0
// The messages that the user sees, the oldest first.
#include "messagelogmodel.h"

#include "plaintooltip.h"

#include <QApplication>
#include <QLocale>
#include <QStyle>

#include <algorithm>
#include <utility>

namespace Viewer {
namespace {

// So many at once that dropping costs nothing to speak of.
constexpr int droppedAtOnce = 1000;

void shorten(QString& text)
{
    constexpr int longest = MessageLogModel::longestText;
    if (text.size() <= longest)
        return;
    text.truncate(text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest);
    text.append(QChar(0x2026));
}

QStyle::StandardPixmap pixmapOf(Core::Logging::ELogLevel level)
{
    switch (level) {
    case Core::Logging::Warning:
        return QStyle::SP_MessageBoxWarning;
    case Core::Logging::Error:
    case Core::Logging::Fatal:
        return QStyle::SP_MessageBoxCritical;
    case Core::Logging::Debug:
    case Core::Logging::Information:
        break;
    }
    return QStyle::SP_MessageBoxInformation;
}

} // namespace

MessageLogModel::MessageLogModel(QObject* parent)
    : QAbstractTableModel(parent)
{}

void MessageLogModel::add(LogMessage message)
{
    if (message.time.isNull())
        message.time = QDateTime::currentDateTime();
    shorten(message.text);
    if (!message.isTechnical && !m_messages.empty()) {
        LogMessage& last = m_messages.back();
        if (last.isTechnical && last.level == message.level && last.text == message.text) {
            last = std::move(message);
            const int row = rowCount() - 1;
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
            emit added(last);
            return;
        }
    }
    if (rowCount() >= capacity && !makeRoom(message.level))
        return;
    beginInsertRows({}, rowCount(), rowCount());
    m_messages.push_back(std::move(message));
    endInsertRows();
    emit added(m_messages.back());
}

// What nobody asked to see must not push out what the user has to know; false if it would.
bool MessageLogModel::makeRoom(Core::Logging::ELogLevel level)
{
    const auto isLower = [](const LogMessage& a, const LogMessage& b) {
        return a.level < b.level;
    };
    const auto lowest = std::min_element(m_messages.begin(), m_messages.end(), isLower)->level;
    if (level < lowest)
        return false;
    int left = droppedAtOnce;
    for (int first = 0; first < rowCount() && left > 0; ++first) {
        int end = first;
        while (end < rowCount() && end - first < left && message(end).level == lowest)
            ++end;
        if (end == first)
            continue;
        beginRemoveRows({}, first, end - 1);
        m_messages.erase(m_messages.begin() + first, m_messages.begin() + end);
        endRemoveRows();
        left -= end - first;
    }
    return true;
}

void MessageLogModel::clear()
{
    beginResetModel();
    m_messages.clear();
    endResetModel();
}

int MessageLogModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_messages.size());
}

int MessageLogModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString MessageLogModel::text(const LogMessage& message, int column) const
{
    switch (column) {
    case Time:
        return message.time.toString(QStringLiteral("hh:mm:ss.zzz"));
    case Level:
        return levelName(message.level);
    case Source:
        return message.source;
    default:
        return message.text;
    }
}

QVariant MessageLogModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LogMessage& shown = message(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return text(shown, index.column());
    case Qt::ToolTipRole:
        return index.column() == Time ? QLocale().toString(shown.time, QLocale::LongFormat)
                                      : plainToolTip(text(shown, index.column()));
    case Qt::DecorationRole:
        if (index.column() == Level)
            return QApplication::style()->standardIcon(pixmapOf(shown.level));
        return {};
    case LevelRole:
        return static_cast<int>(shown.level);
    default:
        return {};
    }
}

QVariant MessageLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Time:
        return tr("Time");
    case Level:
        return tr("Level");
    case Source:
        return tr("Source");
    default:
        return tr("Message");
    }
}

QString MessageLogModel::levelName(Core::Logging::ELogLevel level)
{
    switch (level) {
    case Core::Logging::Debug:
        return tr("Debug");
    case Core::Logging::Information:
        return tr("Information");
    case Core::Logging::Warning:
        return tr("Warning");
    case Core::Logging::Error:
        return tr("Error");
    case Core::Logging::Fatal:
        break;
    }
    return tr("Fatal");
}

} // namespace Viewer
