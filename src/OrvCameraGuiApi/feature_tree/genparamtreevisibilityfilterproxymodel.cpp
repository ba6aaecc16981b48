#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

GenParamTreeVisibilityFilterProxyModel::GenParamTreeVisibilityFilterProxyModel(QObject *parent)
    : QSortFilterProxyModel(parent)
    , m_pattern(QStringLiteral("*"), Qt::CaseInsensitive, QRegExp::Wildcard)
{
}

void GenParamTreeVisibilityFilterProxyModel::setCaseSensitive(bool isSensitive)
{
    m_pattern.setCaseSensitivity(isSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
    invalidate();
}

void GenParamTreeVisibilityFilterProxyModel::setWholeWords(bool wholeWords)
{
    m_wholeWords = wholeWords;
    invalidate();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterText(const QString &text)
{
    m_pattern.setPattern(text);
    invalidateFilter();
}

void GenParamTreeVisibilityFilterProxyModel::setFilterVisibility(int level)
{
    m_visibility = level;
    invalidateFilter();
}

/** The access mode, which may read the device, is asked last. */
bool GenParamTreeVisibilityFilterProxyModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    const QModelIndex index = sourceModel()->index(sourceRow, GenParamTreeModel::NameColumn, sourceParent);
    auto *const value = index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
    bool accepts = true;
    failureOf([&] { accepts = nodeOf(value)->GetVisibility() <= m_visibility; });
    if (!accepts)
        return false;
    failureOf([&] {
        if (nodeOf(value)->GetPrincipalInterfaceType() == GenApi::intfICategory || m_pattern.isEmpty())
            return;
        const QString name = index.data().toString();
        accepts = m_wholeWords ? m_pattern.exactMatch(name) : m_pattern.indexIn(name) >= 0;
    });
    if (!accepts)
        return false;
    failureOf([&] { accepts = value->GetAccessMode() != GenApi::NI; });
    return accepts;
}
