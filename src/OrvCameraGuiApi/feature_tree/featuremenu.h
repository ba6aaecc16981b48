#pragma once

#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>

class FeatureTree;

namespace OrvGui {
class OrvFeatureTreeTools;
}

/** The context menu of a row of the feature tree. It acts upon the row as long as that is there. */
class FeatureMenu : public QMenu
{
    Q_OBJECT

public:
    /** \a tree is the parent; \a row may be invalid. */
    FeatureMenu(OrvGui::OrvFeatureTreeTools &tools, FeatureTree &tree, const QModelIndex &row);

private:
    template <typename Act>
    QAction *add(QMenu &menu, const QString &text, Act act);
    void addTexts();
    void addActions();
    void addLinks();
    void addJumps(const QString &title, const QStringList &names);
    void addPart();

    QModelIndex cell(int column) const;
    QString textAt(int column) const;

    OrvGui::OrvFeatureTreeTools &m_tools;
    const QPointer<FeatureTree> m_tree;
    const QPersistentModelIndex m_row;
    const QString m_name; ///< of the feature
};
