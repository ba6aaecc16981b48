// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "plainstack.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <GenApi/GenApi.h>

#if QT_VERSION_MAJOR < 6

void PlainFilter::setFilterText(const QString &text)
{
    m_pattern.setPattern(text);
    invalidateFilter();
}

bool PlainFilter::isMatch(const QString &name) const
{
    return m_pattern.isEmpty() || m_pattern.indexIn(name) >= 0;
}

#else

void PlainFilter::setFilterText(const QString &text)
{
    const auto anywhere = QRegularExpression::UnanchoredWildcardConversion;
    m_pattern = QRegularExpression(QRegularExpression::wildcardToRegularExpression(text, anywhere),
                                   QRegularExpression::CaseInsensitiveOption);
    invalidateFilter();
}

bool PlainFilter::isMatch(const QString &name) const
{
    return m_pattern.match(name).hasMatch();
}

#endif

bool PlainFilter::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
    if (index.data(visibilityRole).toInt() > m_level || !index.data(implementedRole).toBool())
        return false;
    return index.data(categoryRole).toBool() || isMatch(index.data().toString());
}

namespace {

/** Calls \a visit with every category and its path, a category before those in it. */
template <typename Visit>
void forEachCategory(const QAbstractItemModel &model, const QModelIndex &parent, const QByteArray &prefix, Visit visit)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (!index.data(PlainFilter::categoryRole).toBool())
            continue;
        const QByteArray path = prefix + index.data().toString().toUtf8();
        visit(index, path);
        forEachCategory(model, index, path + '/', visit);
    }
}

QList<QStandardItem *> itemsOf(const QModelIndex &index)
{
    auto *const name = new QStandardItem(index.data().toString());
    const int rows = index.model()->rowCount(index);
    const auto node = index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>()->GetNode();
    name->setData(rows > 0, PlainFilter::categoryRole);
    name->setData(int(node->GetVisibility()), PlainFilter::visibilityRole);
    name->setData(node->GetAccessMode() != GenApi::NI, PlainFilter::implementedRole);
    for (int row = 0; row < rows; ++row)
        name->appendRow(itemsOf(index.model()->index(row, 0, index)));
    return {name, new QStandardItem(index.siblingAtColumn(1).data().toString())};
}

} // namespace

std::unique_ptr<QStandardItemModel> plainModelOf(const QAbstractItemModel &model)
{
    auto items = std::make_unique<QStandardItemModel>(0, 2);
    for (int row = 0; row < model.rowCount(); ++row)
        items->appendRow(itemsOf(model.index(row, 0)));
    return items;
}

void spanPlainCategories(QTreeView &tree)
{
    forEachCategory(*tree.model(), QModelIndex(), QByteArray(), [&](const QModelIndex &index, const QByteArray &) {
        tree.setFirstColumnSpanned(index.row(), index.parent(), true);
    });
}

QByteArray savePlainState(const QTreeView &tree)
{
    QByteArray state;
    forEachCategory(*tree.model(), QModelIndex(), QByteArray(), [&](const QModelIndex &index, const QByteArray &path) {
        if (tree.isExpanded(index))
            state += path + "&lt;";
    });
    return state;
}

void loadPlainState(QTreeView &tree, const QByteArray &state)
{
    forEachCategory(*tree.model(), QModelIndex(), QByteArray(), [&](const QModelIndex &index, const QByteArray &path) {
        tree.setExpanded(index, state.contains(path));
    });
}
