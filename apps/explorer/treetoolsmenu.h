// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <QHash>
#include <QMenu>
#include <QStringList>

class QSettings;

namespace OrvGui {
class OrvFeatureTreeTools;
class OrvGenParamTreeView;
} // namespace OrvGui

/**
 * The tools around the feature tree: they are all switched on, except for the marks on values that change. Each model
 * of camera has its own favorites.
 */
class TreeToolsMenu : public QMenu
{
    Q_OBJECT

public:
    TreeToolsMenu(OrvGui::OrvGenParamTreeView &view, QWidget *parent);

    /** \a nodeMap is the one that the view shows now. */
    void setCamera(GenApi::INodeMap *nodeMap);

    /** Makes the feature current, also if only others are shown; told() says why not. */
    bool jumpTo(const QString &feature);

    /** The favorites of each model, and whether changes are marked. */
    void saveSettings(QSettings &settings) const;
    void restoreSettings(QSettings &settings);

Q_SIGNALS:
    /** The tree has to be seen. */
    void treeWanted();

    /** For the status bar. */
    void told(const QString &message);

private:
    void addSearch();
    void addParts();
    void updateParts();

    OrvGui::OrvFeatureTreeTools *const m_tools;
    QAction *m_favoritesOnly = nullptr;
    QAction *m_changedOnly = nullptr;
    QAction *m_allCategories = nullptr;
    QAction *m_marks = nullptr;
    QString m_model; ///< of the camera
    QHash<QString, QStringList> m_favorites; ///< by model
};
