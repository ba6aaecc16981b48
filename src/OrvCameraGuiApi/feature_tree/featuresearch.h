// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/rowwalk.h>

#include <QObject>
#include <QPointer>
#include <QStringMatcher>
#include <QTimer>

#include <vector>

/**
 * Searches the display names and the GenICam names of a model of features, from top to bottom, a little in each turn of
 * the event loop. When rows change it begins anew. It reads no register.
 */
class FeatureSearch : public QObject
{
    Q_OBJECT

public:
    explicit FeatureSearch(QObject *parent);

    /** Null for none; the search goes on in the new one. */
    void setModel(QAbstractItemModel *model);

    /** An empty text ends the search. */
    void search(const QString &text);

    /** In the order of the rows, as far as they have been found. Valid until matchesChanged(). */
    const std::vector<QModelIndex> &matches() const { return m_matches; }

    bool isComplete() const { return m_isComplete; }

    /** The number of the first match that does not stand above \a row; that of all matches if there is none. */
    size_t firstFrom(const QModelIndex &row) const;

Q_SIGNALS:
    void matchesChanged();

private:
    void restart();
    void work();
    QModelIndex nextCandidate(RowWalk &walk);

    QPointer<QAbstractItemModel> m_model;
    QString m_text;
    QStringMatcher m_matcher;
    RowWalk m_walk;
    std::vector<QModelIndex> m_candidates; ///< instead of all rows, if the text is part of a longer one
    size_t m_nextCandidate = 0;
    bool m_isNarrowed = false;
    std::vector<QModelIndex> m_matches;
    bool m_isComplete = true;
    quint64 m_revision = 0; ///< grows when the search begins anew
    QTimer m_timer;
};
