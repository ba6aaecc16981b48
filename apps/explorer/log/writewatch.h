// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QHash>
#include <QObject>
#include <QTimer>

#include <mutex>
#include <unordered_set>
#include <vector>

class EventLog;

/**
 * Logs the values that are written to a camera, by whichever window and on whichever thread: with each change of a
 * feature GenApi calls back, and after a write it knows the value, so that the camera is asked for nothing. Of a
 * feature that GenApi does not keep, noteWritten() has to tell it.
 *
 * The value that was there before is the last one that any window has read, unless the camera has changed it since.
 */
class WriteWatch : public QObject
{
    Q_OBJECT

public:
    /** \a map and \a log outlive this. */
    WriteWatch(GenApi::INodeMap &map, EventLog &log, QObject *parent = nullptr);
    ~WriteWatch() override;

    /** A person has written the feature, or executed it. */
    void noteWritten(const QString &feature);

    /** A person is about to change the feature. */
    void noteCurrent(const QString &feature);

private:
    struct Feature
    {
        GenApi::INode *node;
        GenApi::CallbackHandleType callback;
    };

    void changed(GenApi::INode *node);
    void log(GenApi::INode *node, const QString &value);
    void logReadBack(GenApi::INode *node);
    void lookAtSome();
    GenApi::INode *nodeOf(const QString &feature) const;

    GenApi::INodeMap &m_map;
    EventLog &m_log;
    std::vector<Feature> m_features;
    std::unordered_set<GenApi::INode *> m_selected; ///< those of them that have selectors
    std::size_t m_next = 0; ///< to look at
    QTimer m_timer;
    std::mutex m_mutex; ///< of the following
    QHash<GenApi::INode *, QString> m_known;
    std::unordered_set<GenApi::INode *> m_kept; ///< those whose writes are told with the value
};
