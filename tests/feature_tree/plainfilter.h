#pragma once

#include <GenApi/GenApi.h>

#include <QRegExp>
#include <QSortFilterProxyModel>

/** The rules at their plainest, over Qt's own proxy. */
class PlainFilter : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    int level = 0;
    QRegExp pattern{QStringLiteral("*"), Qt::CaseInsensitive, QRegExp::Wildcard};
    bool wholeWords = false;

    void refilter() { invalidateFilter(); }

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        const QModelIndex index = sourceModel()->index(sourceRow, 0, sourceParent);
        GenApi::INode *const node = index.data(Qt::UserRole).value<GenApi::IValue *>()->GetNode();
        if (node->GetVisibility() > level || node->GetAccessMode() == GenApi::NI)
            return false;
        if (node->GetPrincipalInterfaceType() == GenApi::intfICategory || pattern.isEmpty())
            return true;
        const QString name = QString::fromUtf8(node->GetDisplayName());
        return wholeWords ? pattern.exactMatch(name) : pattern.indexIn(name) >= 0;
    }
};
