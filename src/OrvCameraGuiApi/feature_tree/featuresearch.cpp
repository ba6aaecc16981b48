// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featuresearch.h>

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr int longestTurn = 4; // ms

/** The rows on the way to \a index, from the top. */
std::vector<int> pathOf(QModelIndex index)
{
    std::vector<int> path;
    for (; index.isValid(); index = index.parent())
        path.push_back(index.row());
    std::reverse(path.begin(), path.end());
    return path;
}

} // namespace

FeatureSearch::FeatureSearch(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &FeatureSearch::work);
}

void FeatureSearch::setModel(QAbstractItemModel *model)
{
    if (m_model)
        m_model->disconnect(this);
    m_model = model;
    if (model) {
        connect(model, &QAbstractItemModel::layoutChanged, this, &FeatureSearch::restart);
        connect(model, &QAbstractItemModel::rowsInserted, this, &FeatureSearch::restart);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &FeatureSearch::restart);
        connect(model, &QAbstractItemModel::modelReset, this, &FeatureSearch::restart);
    }
    restart();
}

void FeatureSearch::search(const QString &text)
{
    if (text == m_text)
        return;
    const bool isLonger = !m_text.isEmpty() && text.contains(m_text, Qt::CaseInsensitive);
    std::vector<QModelIndex> former;
    if (isLonger && m_isComplete)
        former = std::move(m_matches);
    m_text = text;
    m_matcher = QStringMatcher(text, Qt::CaseInsensitive);
    const bool narrows = isLonger && m_isComplete;
    restart();
    m_isNarrowed = narrows;
    m_candidates = std::move(former);
}

/** The matches are dropped at once: their rows may be gone. */
void FeatureSearch::restart()
{
    ++m_revision;
    m_matches.clear();
    m_candidates.clear();
    m_nextCandidate = 0;
    m_isNarrowed = false;
    m_isComplete = m_text.isEmpty() || !m_model;
    m_walk = m_model ? RowWalk(*m_model) : RowWalk();
    if (m_isComplete)
        m_timer.stop();
    else
        m_timer.start();
    Q_EMIT matchesChanged();
}

QModelIndex FeatureSearch::nextCandidate(RowWalk &walk)
{
    if (!m_isNarrowed)
        return walk.next();
    return m_nextCandidate < m_candidates.size() ? m_candidates[m_nextCandidate++] : QModelIndex();
}

/** A node that is asked for its name may let foreign code run. */
void FeatureSearch::work()
{
    const OpenCalls::Call call;
    const QPointer<FeatureSearch> alive(this);
    const quint64 revision = m_revision;
    QElapsedTimer turn;
    turn.start();
    const size_t known = m_matches.size();
    RowWalk walk = std::exchange(m_walk, RowWalk());
    while (!turn.hasExpired(longestTurn)) {
        const QModelIndex row = nextCandidate(walk);
        if (!alive || m_revision != revision)
            return;
        if (!row.isValid()) {
            m_isComplete = true;
            m_timer.stop();
            break;
        }
        const QString shown = row.data().toString();
        if (!alive || m_revision != revision)
            return;
        if (m_matcher.indexIn(shown) >= 0
            || m_matcher.indexIn(row.data(GenParamTreeModel::FeatureNameRole).toString()) >= 0)
            m_matches.push_back(row);
    }
    m_walk = std::move(walk);
    if (m_isComplete || m_matches.size() != known)
        Q_EMIT matchesChanged();
}

size_t FeatureSearch::firstFrom(const QModelIndex &row) const
{
    const auto found =
        std::lower_bound(m_matches.begin(), m_matches.end(), pathOf(row),
                         [](const QModelIndex &match, const std::vector<int> &path) { return pathOf(match) < path; });
    return size_t(found - m_matches.begin());
}
