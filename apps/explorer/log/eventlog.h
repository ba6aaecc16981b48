// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractTableModel>
#include <QTimer>

#include <deque>
#include <mutex>
#include <vector>

enum class LogLevel {
    Information,
    Write, ///< to the camera
    Error
};

struct LogEntry
{
    qint64 time = 0; ///< milliseconds since 1970
    LogLevel level = LogLevel::Information;
    QString feature; ///< by its GenICam name; empty for none
    QString text;
};

/** What has happened, the newest last. The oldest go when there are too many. */
class EventLog : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { TimeColumn, LevelColumn, FeatureColumn, TextColumn, ColumnCount };
    static constexpr int LevelRole = Qt::UserRole;
    static constexpr int mostEntries = 10000;

    explicit EventLog(QObject *parent = nullptr);

    /** From any thread, with any lock held. Rows come together, a moment later. */
    void add(LogLevel level, const QString &feature, const QString &text);

    void clear();

    /** A row as one line, with tabs between the columns. */
    QString lineOf(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

protected:
    /** Something has been added. */
    void customEvent(QEvent *event) override;

private:
    void takeOver();
    QString textOf(const LogEntry &entry, int column) const;

    std::deque<LogEntry> m_entries;
    QTimer m_timer;
    std::mutex m_mutex; ///< of the following
    std::vector<LogEntry> m_waiting; ///< a ring when it is full
    std::size_t m_oldest = 0; ///< in the full ring
};
