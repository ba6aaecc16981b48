// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "eventlog.h"

#include <OrvCameraGuiApi/windows/plaintooltip.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QEvent>

#include <algorithm>
#include <utility>

EventLog::EventLog(QObject *parent)
    : QAbstractTableModel(parent)
{
    constexpr int moment = 30; // milliseconds
    m_timer.setSingleShot(true);
    m_timer.setInterval(moment);
    connect(&m_timer, &QTimer::timeout, this, &EventLog::takeOver);
}

void EventLog::add(LogLevel level, const QString &feature, const QString &text)
{
    LogEntry entry{QDateTime::currentMSecsSinceEpoch(), level, feature, text};
    const std::lock_guard locker(m_mutex);
    if (m_waiting.empty())
        QMetaObject::invokeMethod(
            this, [this] { m_timer.start(); }, Qt::QueuedConnection);
    if (m_waiting.size() < std::size_t(mostEntries))
        m_waiting.push_back(std::move(entry));
    else
        m_waiting[std::exchange(m_oldest, (m_oldest + 1) % m_waiting.size())] = std::move(entry);
}

void EventLog::customEvent(QEvent *)
{
    m_timer.start();
}

/** All that have come since the last time, with one signal. */
void EventLog::takeOver()
{
    std::vector<LogEntry> added;
    {
        const std::lock_guard locker(m_mutex);
        added.swap(m_waiting);
        std::rotate(added.begin(), added.begin() + std::ptrdiff_t(std::exchange(m_oldest, 0)), added.end());
    }
    const int count = int(added.size());
    const int tooMany = std::min(int(m_entries.size()), int(m_entries.size()) + count - mostEntries);
    if (tooMany > 0) {
        beginRemoveRows({}, 0, tooMany - 1);
        m_entries.erase(m_entries.begin(), m_entries.begin() + tooMany);
        endRemoveRows();
    }
    if (count == 0)
        return;
    beginInsertRows({}, int(m_entries.size()), int(m_entries.size()) + count - 1);
    std::move(added.begin(), added.end(), std::back_inserter(m_entries));
    endInsertRows();
}

void EventLog::clear()
{
    takeOver();
    beginResetModel();
    m_entries.clear();
    endResetModel();
}

QString EventLog::lineOf(int row) const
{
    QStringList cells;
    for (int column = 0; column < ColumnCount; ++column)
        cells.append(textOf(m_entries.at(std::size_t(row)), column));
    return cells.join(QLatin1Char('\t'));
}

int EventLog::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

int EventLog::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant EventLog::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const LogEntry &entry = m_entries.at(std::size_t(index.row()));
    switch (role) {
    case Qt::DisplayRole: // the day is in the tool tip, and in what is copied and saved
        return index.column() == TimeColumn
            ? QDateTime::fromMSecsSinceEpoch(entry.time).toString(QStringLiteral("HH:mm:ss.zzz"))
            : textOf(entry, index.column());
    case Qt::ToolTipRole:
        return plainToolTip(textOf(entry, index.column()));
    case LevelRole:
        return int(entry.level);
    default:
        return {};
    }
}

QVariant EventLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    const QString titles[] = {tr("Time"), tr("Kind"), tr("Feature"), tr("Event")};
    return section >= 0 && section < ColumnCount ? titles[section] : QString();
}

/** In one line, whatever the camera's texts have in them. */
QString EventLog::textOf(const LogEntry &entry, int column) const
{
    switch (column) {
    case TimeColumn:
        return QDateTime::fromMSecsSinceEpoch(entry.time).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    case LevelColumn:
        return entry.level == LogLevel::Error ? tr("Error") : entry.level == LogLevel::Write ? tr("Write") : tr("Note");
    case FeatureColumn:
        return entry.feature;
    default:
        return entry.text.simplified();
    }
}
