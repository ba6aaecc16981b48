#include <OrvCameraGuiApi/feature_tree/rereading.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QElapsedTimer>
#include <QPointer>

#include <utility>

namespace {

constexpr int longestTurn = 4; // ms

GenApi::IValue *featureAt(const QModelIndex &index)
{
    return index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
}

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
    m_features.push_back(featureAt(row));
    m_isWalking = model->hasChildren(row.siblingAtColumn(0));
    if (m_isWalking) {
        m_category = row.siblingAtColumn(0);
        m_walk = RowWalk(*model, m_category);
        // Rows that come or go let the walk begin anew.
        const auto restart = [this, model] {
            m_isWalking = m_isWalking && m_category.isValid();
            m_features.clear();
            m_walk = m_isWalking ? RowWalk(*model, m_category) : RowWalk();
        };
        m_connections = {connect(model, &QAbstractItemModel::layoutChanged, this, restart),
                         connect(model, &QAbstractItemModel::rowsInserted, this, restart),
                         connect(model, &QAbstractItemModel::rowsRemoved, this, restart),
                         connect(model, &QAbstractItemModel::modelReset, this, &Rereading::stop)};
    }
    m_timer.start();
}

void Rereading::stop()
{
    m_timer.stop();
    stopFollowing();
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
    if (m_isWalking && !collect(turn))
        return;
    stopFollowing();
    const QPointer<Rereading> alive(this);
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
    while (!turn.hasExpired(longestTurn)) {
        const QModelIndex row = m_walk.next();
        if (!row.isValid()) {
            m_isWalking = false;
            return true;
        }
        m_features.push_back(featureAt(row));
    }
    return false;
}
