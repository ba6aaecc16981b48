// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/rereading.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QElapsedTimer>
#include <QPointer>

#include <utility>

namespace {

constexpr int longestTurn = 4; // ms

} // namespace

Rereading::Rereading(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &Rereading::work);
}

void Rereading::start(const QModelIndex &row)
{
    stop();
    const QAbstractItemModel *const model = row.model();
    if (!model)
        return;
    const OpenCalls::Call call;
    const QPointer<Rereading> alive(this);
    const QPersistentModelIndex category(row.siblingAtColumn(0));
    m_features.push_back(featureAt(row));
    const bool hasRows = model->hasChildren(category);
    if (!alive || !category.isValid())
        return;
    if (hasRows) {
        m_isWalking = true;
        m_category = category;
        m_walk = RowWalk(*model, m_category);
        m_connections = {connect(model, &QAbstractItemModel::layoutChanged, this, &Rereading::restart),
                         connect(model, &QAbstractItemModel::rowsInserted, this, &Rereading::restart),
                         connect(model, &QAbstractItemModel::rowsRemoved, this, &Rereading::restart),
                         connect(model, &QAbstractItemModel::modelReset, this, &Rereading::stop)};
    }
    m_timer.start();
}

/** Rows that come or go without end must not keep the walk from ending: what has been found by then will do. */
void Rereading::restart()
{
    constexpr int most = 10;
    ++m_revision;
    m_isWalking = m_isWalking && m_category.isValid() && ++m_restarts <= most;
    if (m_isWalking)
        m_features.clear();
    m_walk = m_isWalking ? RowWalk(*m_category.model(), m_category) : RowWalk();
}

void Rereading::stop()
{
    m_timer.stop();
    stopFollowing();
    ++m_revision;
    m_restarts = 0;
    m_isWalking = false;
    m_walk = RowWalk();
    m_features.clear();
    m_nodes.clear();
    m_dropped.clear();
}

void Rereading::stopFollowing()
{
    for (const QMetaObject::Connection &connection : std::exchange(m_connections, {}))
        disconnect(connection);
}

/** First all rows, as a node that is dropped may let rows come and go, or end all this. */
void Rereading::work()
{
    const OpenCalls::Call call;
    QElapsedTimer turn;
    turn.start();
    const QPointer<Rereading> alive(this);
    if (m_isWalking && !collect(turn))
        return;
    stopFollowing();
    while (alive && !(m_nodes.empty() && m_features.empty()) && !turn.hasExpired(longestTurn)) {
        GenApi::INode *node = nullptr;
        if (m_nodes.empty()) {
            GenApi::IValue *const feature = m_features.back();
            m_features.pop_back();
            failureOf([&] { node = nodeOf(feature); });
        } else {
            node = m_nodes.back();
            m_nodes.pop_back();
        }
        if (node && !m_dropped.contains(node))
            drop(*node);
    }
    if (alive && m_nodes.empty() && m_features.empty())
        stop();
}

/** What \a node reads comes next: a register keeps its value whatever is dropped of the feature. */
void Rereading::drop(GenApi::INode &node)
{
    m_dropped.insert(&node);
    failureOf([&] {
        const GenApi::EInterfaceType type = node.GetPrincipalInterfaceType();
        if (type == GenApi::intfIPort) // with which all registers would go
            return;
        GenApi::NodeList_t read;
        if (type != GenApi::intfICategory)
            node.GetChildren(read, GenApi::ctReadingChildren);
        for (GenApi::INode *const child : read)
            m_nodes.push_back(child);
        node.InvalidateNode();
    });
}

/** Whether all rows have been seen. */
bool Rereading::collect(const QElapsedTimer &turn)
{
    const QPointer<Rereading> alive(this);
    const quint64 revision = m_revision;
    RowWalk walk = std::exchange(m_walk, RowWalk());
    while (!turn.hasExpired(longestTurn)) {
        const QModelIndex row = walk.next();
        if (!alive || m_revision != revision)
            return false;
        if (!row.isValid()) {
            m_isWalking = false;
            return true;
        }
        m_features.push_back(featureAt(row));
    }
    m_walk = std::move(walk);
    return false;
}
