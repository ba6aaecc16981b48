// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featuremenu.h>

#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/feature_tree/orvfeaturetreetools.h>

#include <QClipboard>
#include <QGuiApplication>

namespace {

constexpr int mostJumps = 40; ///< that fit on a screen

/** What \a list gives, by name. */
template <typename List>
QStringList namesOf(GenApi::IValue *feature, List list)
{
    QStringList names;
    failureOf([&] {
        GenApi::FeatureList_t features;
        if (const GenApi::CSelectorPtr selector(feature); selector.IsValid())
            list(*selector, features);
        for (GenApi::IValue *const found : features)
            names += fromGenICam(nodeOf(found)->GetName());
    });
    return names;
}

/** \a text as a menu shows it literally. */
QString forMenu(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void copy(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace

FeatureMenu::FeatureMenu(OrvGui::OrvFeatureTreeTools &tools, FeatureTree &tree, const QModelIndex &row)
    : QMenu(&tree)
    , m_tools(&tools)
    , m_tree(&tree)
    , m_row(row.siblingAtColumn(GenParamTreeModel::NameColumn))
    , m_name(row.data(GenParamTreeModel::FeatureNameRole).toString())
{
    setAttribute(Qt::WA_DeleteOnClose);
    askFeature();
    if (!m_tools)
        return;
    if (m_row.isValid()) {
        addTexts();
        addActions();
        addJumps(tr("Go to &Selector"), m_selectors);
        addJumps(tr("Go to Selecte&d Feature"), m_selected);
    }
    addPart();
}

/** Before anything is added, as a node that is asked may change or delete anything else. */
void FeatureMenu::askFeature()
{
    GenApi::IValue *const feature = featureAt(m_row);
    if (!feature)
        return;
    failureOf([&] { m_type = nodeOf(feature)->GetPrincipalInterfaceType(); });
    m_selectors = namesOf(feature, [](GenApi::ISelector &selector, GenApi::FeatureList_t &features) {
        selector.GetSelectingFeatures(features);
    });
    m_selected = namesOf(feature, [](GenApi::ISelector &selector, GenApi::FeatureList_t &features) {
        selector.GetSelectedFeatures(features);
    });
    m_canCopy = canReadValue();
    if (m_type == GenApi::intfICommand && m_tree && !m_tree->isReadOnly())
        m_canExecute = cell(GenParamTreeModel::ValueColumn).flags() & Qt::ItemIsEditable;
}

/** Otherwise the cell has a text that is no value. */
bool FeatureMenu::canReadValue() const
{
    if (m_type == GenApi::intfICategory || m_type == GenApi::intfICommand)
        return false;
    bool can = false;
    failureOf([&] { can = isReadable(nodeOf(featureAt(m_row))->GetAccessMode()); });
    return can && cell(GenParamTreeModel::ValueColumn).data(Qt::EditRole).isValid();
}

/** Each action goes when the tools go; nothing follows an act, which may destroy all this. */
template <typename Act>
QAction *FeatureMenu::add(QMenu &menu, const QString &text, Act act)
{
    QAction *const action = menu.addAction(text);
    connect(action, &QAction::triggered, m_tools.data(), act);
    return action;
}

QModelIndex FeatureMenu::cell(int column) const
{
    return m_row.isValid() ? m_row.sibling(m_row.row(), column) : QModelIndex();
}

QString FeatureMenu::textAt(int column) const
{
    return cell(column).data().toString();
}

void FeatureMenu::addTexts()
{
    add(*this, tr("Copy &GenICam Name"), [name = m_name] { copy(name); });
    add(*this, tr("Copy &Value"), [this] {
        if (canReadValue())
            copy(textAt(GenParamTreeModel::ValueColumn));
    })->setEnabled(m_canCopy);
    add(*this, tr("Copy &Row"), [this] {
        const QString name = textAt(GenParamTreeModel::NameColumn);
        copy(QStringLiteral("%1\t%2").arg(name, textAt(GenParamTreeModel::ValueColumn)));
    });
}

void FeatureMenu::addActions()
{
    addSeparator();
    add(*this, tr("Read &Again"), [this] { m_tools->readAgain(m_name); });
    if (m_type == GenApi::intfICommand) {
        add(*this, tr("&Execute"), [this] {
            const QModelIndex value = cell(GenParamTreeModel::ValueColumn);
            if (m_tree && !m_tree->isReadOnly() && value.isValid())
                m_tree->model()->setData(value, true);
        })->setEnabled(m_canExecute);
    }
    if (m_type != GenApi::intfICategory) {
        QAction *const favorite = add(*this, tr("&Favorite"), [this](bool on) { m_tools->setFavorite(m_name, on); });
        favorite->setCheckable(true);
        favorite->setChecked(m_tools->isFavorite(m_name));
    }
}

void FeatureMenu::addJumps(const QString &title, const QStringList &names)
{
    if (names.isEmpty())
        return;
    QMenu *const jumps = addMenu(title);
    for (const QString &name : names.mid(0, mostJumps))
        add(*jumps, forMenu(name), [this, name] { m_tools->jumpTo(name); });
    if (names.size() > mostJumps)
        jumps->addAction(tr("... and %1 more").arg(names.size() - mostJumps))->setEnabled(false);
}

void FeatureMenu::addPart()
{
    if (!isEmpty())
        addSeparator();
    const QModelIndex category = m_type == GenApi::intfICategory ? QModelIndex(m_row) : m_row.parent();
    if (category.isValid()) {
        const QString name = category.data(GenParamTreeModel::FeatureNameRole).toString();
        add(*this, tr("Show &Only This Category"), [this, name] {
            m_tools->showOnlyCategory(name);
        })->setEnabled(name != m_tools->onlyCategory());
    }
    add(*this, tr("Show A&ll Categories"), [this] {
        m_tools->showOnlyCategory(QString());
    })->setEnabled(!m_tools->onlyCategory().isEmpty());
    addChoices();
}

/** What would show nothing can only be ended. */
void FeatureMenu::addChoices()
{
    const auto addChoice = [this](const QString &text, bool isOn, bool can, auto choose) {
        QAction *const choice = add(*this, text, choose);
        choice->setCheckable(true);
        choice->setChecked(isOn);
        choice->setEnabled(isOn || can);
    };
    addChoice(tr("Favor&ites Only"), m_tools->showsFavoritesOnly(), !m_tools->favorites().isEmpty(),
              [this](bool on) { m_tools->setShowsFavoritesOnly(on); });
    addChoice(tr("&Changed Only"), m_tools->showsChangedOnly(), m_tools->tracksChanges(),
              [this](bool on) { m_tools->setShowsChangedOnly(on); });
}
