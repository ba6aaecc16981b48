// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSortFilterProxyModel>
#include <QStandardItemModel>

#include <QTreeView>

#if QT_VERSION_MAJOR < 6
#include <QRegExp>
#else
#include <QRegularExpression>
#endif

#include <memory>

/** The rules of the filter at their plainest, over Qt's own proxy. */
class PlainFilter : public QSortFilterProxyModel
{
public:
    // Of the items, beside their texts: all that the rules ask for.
    static constexpr int categoryRole = Qt::UserRole;
    static constexpr int visibilityRole = Qt::UserRole + 1;
    static constexpr int implementedRole = Qt::UserRole + 2;

    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setFilterText(const QString &text);
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    bool isMatch(const QString &name) const;

    int m_level = 0;
#if QT_VERSION_MAJOR < 6
    QRegExp m_pattern{QStringLiteral("*"), Qt::CaseInsensitive, QRegExp::Wildcard};
#else
    QRegularExpression m_pattern;
#endif
};

/** A copy of all that \a model, a GenParamTreeModel, shows now. */
std::unique_ptr<QStandardItemModel> plainModelOf(const QAbstractItemModel &model);

// What the view does with its tree, done to one that shows a PlainFilter.
void spanPlainCategories(QTreeView &tree);
QByteArray savePlainState(const QTreeView &tree);
void loadPlainState(QTreeView &tree, const QByteArray &state);
