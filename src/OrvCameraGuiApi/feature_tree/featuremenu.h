// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QMenu>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStringList>

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

    Q_DISABLE_COPY(FeatureMenu)

private:
    template <typename Act>
    QAction *add(QMenu &menu, const QString &text, Act act);
    void askFeature();
    void addTexts();
    void addActions();
    void addLinks();
    void addJumps(const QString &title, const QStringList &names);
    void addPart();
    void addChoices();

    QModelIndex cell(int column) const;
    QString textAt(int column) const;
    bool canReadValue() const;

    const QPointer<OrvGui::OrvFeatureTreeTools> m_tools; ///< a node that is asked may delete them
    const QPointer<FeatureTree> m_tree;
    const QPersistentModelIndex m_row;
    const QString m_name; ///< of the feature
    GenApi::EInterfaceType m_type = GenApi::intfIBase;
    bool m_canCopy = false; ///< the value
    bool m_canExecute = false;
    QStringList m_selectors;
    QStringList m_selected;
};
