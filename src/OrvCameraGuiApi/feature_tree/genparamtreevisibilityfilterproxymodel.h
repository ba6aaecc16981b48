#pragma once

#include <QRegExp>
#include <QSortFilterProxyModel>

/**
 * Leaves out of a GenParamTreeModel the features above a level of visibility, those that are not implemented and those
 * whose display name does not match a pattern. Categories are shown whatever is left in them, and so is a feature that
 * cannot be asked.
 */
class GenParamTreeVisibilityFilterProxyModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit GenParamTreeVisibilityFilterProxyModel(QObject *parent = nullptr);

    /** Off at first. */
    void setCaseSensitive(bool isSensitive);

    /** Whether the pattern has to match the whole display name and not just a part of it. Off at first. */
    void setWholeWords(bool wholeWords);

public Q_SLOTS:
    /** \a text is a pattern with wildcards; an empty one matches every name. */
    void setFilterText(const QString &text);

    /** From 0, basic, to 2, guru. 0 at first. */
    void setFilterVisibility(int level);

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override;

private:
    int m_visibility = 0;
    QRegExp m_pattern;
    bool m_wholeWords = false;
};
