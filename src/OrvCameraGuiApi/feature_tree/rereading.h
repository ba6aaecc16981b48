// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/rowwalk.h>

#include <GenApi/GenApi.h>

#include <QObject>
#include <QPersistentModelIndex>
#include <QSet>
#include <QTimer>

#include <vector>

class QElapsedTimer;

/**
 * Lets features be read again: what is known of them is dropped, so that whoever shows them reads them. A little in
 * each turn of the event loop, however many there are.
 */
class Rereading : public QObject
{
    Q_OBJECT

public:
    explicit Rereading(QObject *parent);

    /** The feature at \a row, or those shown in the category there; ends what was going on. */
    void start(const QModelIndex &row);

    /** Asks no node any more. */
    void stop();

private:
    void work();
    bool collect(const QElapsedTimer &turn);
    void drop(GenApi::INode &node);
    void restart();
    void stopFollowing();

    QTimer m_timer;
    QPersistentModelIndex m_category;
    RowWalk m_walk; ///< through the category
    std::vector<QMetaObject::Connection> m_connections; ///< to the model, while the walk lasts
    bool m_isWalking = false;
    quint64 m_revision = 0; ///< grows when the walk begins or ends
    int m_restarts = 0; ///< of the walk
    std::vector<GenApi::IValue *> m_features; ///< to be dropped
    std::vector<GenApi::INode *> m_nodes; ///< to be dropped first
    QSet<GenApi::INode *> m_dropped;
};
