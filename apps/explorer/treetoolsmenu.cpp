// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "treetoolsmenu.h"

#include "actions.h"

#include <OrvCameraGuiApi/feature_tree/orvfeaturetreetools.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <GenApi/GenApi.h>

#include <QSettings>
#include <QUrl>

namespace {

const QLatin1String favoritesGroup("favorites");
const QLatin1String marksKey("tree/marksChanges");

/** Vendor and model; empty if the node map does not tell. */
QString modelOf(GenApi::INodeMap *nodeMap)
{
    try {
        if (auto *const info = dynamic_cast<GenApi::IDeviceInfo *>(nodeMap)) {
            const QString vendor = QString::fromUtf8(info->GetVendorName().c_str());
            return QStringLiteral("%1 %2").arg(vendor, QString::fromUtf8(info->GetModelName().c_str())).simplified();
        }
    } catch (const GenICam::GenericException &) {
        // Favorites of such cameras are those of all of them.
    }
    return {};
}

} // namespace

TreeToolsMenu::TreeToolsMenu(OrvGui::OrvGenParamTreeView &view, QWidget *parent)
    : QMenu(tr("Feature &Tree"), parent)
    , m_tools(new OrvGui::OrvFeatureTreeTools(&view, this))
{
    m_tools->setContextMenu(true);
    m_tools->setTellsReasons(true);
    m_tools->setFindBar(true);
    m_tools->setTracksChanges(true);
    connect(m_tools, &OrvGui::OrvFeatureTreeTools::told, this, &TreeToolsMenu::told);
    addSearch();
    addSeparator();
    addParts();
}

void TreeToolsMenu::addSearch()
{
    const auto add = [this](const QString &text, const QKeySequence &key) {
        QAction *const action = addAction(text, this, &TreeToolsMenu::treeWanted);
        action->setShortcut(key);
        return action;
    };
    using OrvGui::OrvFeatureTreeTools;
    connect(add(tr("&Find..."), keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_F)), &QAction::triggered, m_tools,
            &OrvFeatureTreeTools::find);
    connect(add(tr("Find &Next"), Qt::Key_F3), &QAction::triggered, m_tools, &OrvFeatureTreeTools::findNext);
    connect(add(tr("Find &Previous"), keys(Qt::ShiftModifier, Qt::Key_F3)), &QAction::triggered, m_tools,
            &OrvFeatureTreeTools::findPrevious);
}

void TreeToolsMenu::addParts()
{
    const auto add = [this](const char *name, const QString &text, const QString &tip) {
        QAction *const action = addAction(text);
        action->setObjectName(QLatin1String(name));
        action->setCheckable(true);
        action->setStatusTip(tip);
        return action;
    };
    m_favoritesOnly = add("favoritesOnly", tr("Fa&vorites Only"),
                          tr("Show only favorites, which the menus of the features' rows choose"));
    m_changedOnly = add("changedOnly", tr("&Changed Only"),
                        tr("Show only features whose value differs from the first that was seen"));
    m_allCategories = addAction(tr("&All Categories"), this, [this] { m_tools->showOnlyCategory(QString()); });
    m_allCategories->setStatusTip(tr("End showing one category only"));
    addSeparator();
    m_marks = add("marksChanges", tr("&Mark Changes"), tr("Show for a moment which values have changed"));
    connect(m_favoritesOnly, &QAction::triggered, m_tools, &OrvGui::OrvFeatureTreeTools::setShowsFavoritesOnly);
    connect(m_changedOnly, &QAction::triggered, m_tools, &OrvGui::OrvFeatureTreeTools::setShowsChangedOnly);
    connect(m_marks, &QAction::toggled, m_tools, &OrvGui::OrvFeatureTreeTools::setMarksChanges);
    connect(m_tools, &OrvGui::OrvFeatureTreeTools::shownPartChanged, this, &TreeToolsMenu::updateParts);
    connect(m_tools, &OrvGui::OrvFeatureTreeTools::favoritesChanged, this, [this] {
        m_favorites.insert(m_model, m_tools->favorites());
        updateParts();
    });
    updateParts();
}

/** What would show nothing cannot be chosen. */
void TreeToolsMenu::updateParts()
{
    m_favoritesOnly->setChecked(m_tools->showsFavoritesOnly());
    m_favoritesOnly->setEnabled(m_favoritesOnly->isChecked() || !m_tools->favorites().isEmpty());
    m_changedOnly->setChecked(m_tools->showsChangedOnly());
    m_allCategories->setEnabled(!m_tools->onlyCategory().isEmpty());
}

void TreeToolsMenu::setCamera(GenApi::INodeMap *nodeMap)
{
    m_model = modelOf(nodeMap);
    m_tools->setFavorites(m_favorites.value(m_model));
    if (m_tools->favorites().isEmpty())
        m_tools->setShowsFavoritesOnly(false);
    updateParts();
}

bool TreeToolsMenu::jumpTo(const QString &feature)
{
    return m_tools->jumpTo(feature);
}

void TreeToolsMenu::saveSettings(QSettings &settings) const
{
    settings.setValue(marksKey, m_marks->isChecked());
    settings.beginGroup(favoritesGroup);
    for (auto model = m_favorites.cbegin(); model != m_favorites.cend(); ++model)
        settings.setValue(QLatin1Char('m') + QString::fromLatin1(QUrl::toPercentEncoding(model.key())), model.value());
    settings.endGroup();
}

/** The user may have edited the file: names that no camera has do no harm. */
void TreeToolsMenu::restoreSettings(QSettings &settings)
{
    m_marks->setChecked(settings.value(marksKey, false).toBool());
    settings.beginGroup(favoritesGroup);
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys)
        m_favorites.insert(QUrl::fromPercentEncoding(key.mid(1).toLatin1()), settings.value(key).toStringList());
    settings.endGroup();
    m_tools->setFavorites(m_favorites.value(m_model));
}
