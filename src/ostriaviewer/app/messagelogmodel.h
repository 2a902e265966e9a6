// SPDX-License-Identifier: Apache-2.0
// The messages that the user sees, the oldest first.
#pragma once

#include "logging.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QString>

#include <deque>

namespace Viewer {

struct LogMessage
{
    Core::Logging::ELogLevel level = Core::Logging::Information;
    QString source;
    QString text;
    QDateTime time;
    bool isTechnical = false; ///< the source is a category of the log, no name for people
};

/// Keeps the newest messages; of more than `capacity` the oldest of the lowest level are dropped.
/// Of a text, which anybody may have written, it keeps the beginning: whoever shows it lays all
/// out. Thread-bound: GUI thread.
class MessageLogModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Level, Source, Text, ColumnCount };
    enum Role { LevelRole = Qt::UserRole };

    static constexpr int capacity = 10000;
    static constexpr int longestText = 1000; ///< in characters, without the "…" of a cut

    explicit MessageLogModel(QObject* parent = nullptr);

    /// A message without a time gets the present one. Who writes to the log and to the user says
    /// the same twice in a row: it is kept once, under the source for people.
    void add(LogMessage message);
    void clear();

    const LogMessage& message(int row) const { return m_messages[static_cast<std::size_t>(row)]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The level's name in the present language.
    static QString levelName(Core::Logging::ELogLevel level);

signals:
    void added(const Viewer::LogMessage& message);

private:
    bool makeRoom(Core::Logging::ELogLevel level);
    QString text(const LogMessage& message, int column) const;

    std::deque<LogMessage> m_messages;
};

} // namespace Viewer
