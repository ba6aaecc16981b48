// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/orvfeaturetreetools.h>

#include <OrvCameraGuiApi/feature_tree/accessreason.h>
#include <OrvCameraGuiApi/feature_tree/categorywalk.h>
#include <OrvCameraGuiApi/feature_tree/changemarks.h>
#include <OrvCameraGuiApi/feature_tree/featuremenu.h>
#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/filterrule.h>
#include <OrvCameraGuiApi/feature_tree/findbar.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>
#include <OrvCameraGuiApi/feature_tree/nodelinks.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvCameraGuiApi/feature_tree/rereading.h>
#include <OrvCameraGuiApi/feature_tree/treestate.h>
#include <OrvCameraGuiApi/feature_tree/valuewatch.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include <optional>
#include <utility>
#include <vector>

namespace {

const QLatin1String linkScheme("feature");

/** Whether \a feature reports at each poll: as a rule the register that it reads has the polling time. */
bool isPolled(GenApi::IValue *feature)
{
    bool is = true;
    failureOf([&] {
        is = NodeLinks::search(nodeOf(feature), NodeLinks::readBy,
                               [](GenApi::INode &node) { return node.GetPollingTime() > 0; });
    });
    return is;
}

/** \a visit may change no rows. */
template <typename Visit>
void forEachClosedCategory(const FeatureTree &tree, Visit visit)
{
    forEachCategory(*tree.model(), QModelIndex(), 0, tree.model()->rowCount() - 1,
                    [&](const QModelIndex &category, size_t) {
                        if (!tree.isExpanded(category))
                            visit(category);
                    });
}

QSet<QPersistentModelIndex> closedCategories(const FeatureTree &tree)
{
    QSet<QPersistentModelIndex> closed;
    forEachClosedCategory(tree, [&](const QModelIndex &category) { closed.insert(category); });
    return closed;
}

void openAllBut(const QSet<QPersistentModelIndex> &closed, FeatureTree &tree)
{
    if (closed.isEmpty()) {
        tree.expandAll();
        return;
    }
    std::vector<QPersistentModelIndex> toOpen;
    forEachClosedCategory(tree, [&](const QModelIndex &category) {
        if (!closed.contains(category))
            toOpen.emplace_back(category);
    });
    for (const QPersistentModelIndex &category : toOpen) {
        if (category.isValid() && category.model() == tree.model())
            tree.expand(category);
    }
}

} // namespace

namespace OrvGui {

class OrvFeatureTreeToolsPrivate
{
public:
    OrvFeatureTreeToolsPrivate(OrvFeatureTreeTools *tools, OrvGenParamTreeView *shown);
    Q_DISABLE_COPY(OrvFeatureTreeToolsPrivate)

    /** Which part of the features is shown. */
    struct Part
    {
        bool isOfAll() const { return !favoritesOnly && !changedOnly && category.isEmpty(); }

        bool favoritesOnly = false;
        bool changedOnly = false;
        QString category; ///< the only one; empty for all
    };

    GenParamTreeVisibilityFilterProxyModel *filter() const;
    GenParamTreeModel *model() const;
    QModelIndex sourceOf(const QString &name) const;
    QModelIndex shown(const QString &name) const;

    void modelReplaced();
    void followModel();
    void leaveView();
    void setPart(const Part &wanted);
    void filterPart();
    FeatureChoice choiceOf(const Part &chosenPart) const;
    bool contains(const Part &some, const QModelIndex &source) const;
    Part enlargedFor(const QModelIndex &source) const;
    QString whyHidden(const QString &name) const;

    bool filterKey(const QKeyEvent &event);
    bool filterKeyOfView(const QKeyEvent &event);
    bool filterPress(const QMouseEvent &event);
    bool isViewport(const QObject *object) const;
    bool filterContextMenu(const QContextMenuEvent &event, const QObject *watched);
    void openMenu(const QModelIndex &row, const QPoint &globalPos);
    void openMenuAtCurrent();
    bool openLink(const QUrl &link);
    QString tellReason(GenApi::IValue *feature);
    void renewHelp();
    void installTeller();
    void updateReason();
    void stopTelling();
    void reasonMayHaveChanged(const QModelIndex &cell);
    void valueMayHaveChanged(const QModelIndex &cell);
    void filterChangedSoon();
    void compared(GenApi::IValue *feature);

    OrvFeatureTreeTools *const q;
    QPointer<OrvGenParamTreeView> view; ///< null, like the next two, as soon as the view begins to go
    QPointer<FeatureTree> tree;
    QPointer<QTextBrowser> help;
    Rereading rereading;
    ValueWatch watch;
    QSet<GenApi::IValue *> candidates; ///< that may have changed: only changed ones are shown, and these until read
    QHash<GenApi::IValue *, bool> polled; ///< whether a feature, or what it reads, has a polling time
    QTimer filterSoon;
    std::optional<ChangeMarks> marks; ///< none while they are switched off, and without a view
    bool hasContextMenu = false;
    bool tellsReasons = false;
    bool isReasonQueued = false;
    bool isRenewing = false; ///< while the help text is made anew
    GenApi::IValue *reasonFeature = nullptr; ///< the current one, when its reason was told
    QString shownReason; ///< that the help text has
    QStringList favorites;
    Part part;
    quint64 partRevision = 0; ///< grows whenever the part is filtered
    QPointer<FeatureMenu> menu;
    QPointer<FindBar> findBar; ///< null while it is switched off
};

OrvFeatureTreeToolsPrivate::OrvFeatureTreeToolsPrivate(OrvFeatureTreeTools *tools, OrvGenParamTreeView *shownView)
    : q(tools)
    , view(shownView)
    , tree(shownView ? qobject_cast<FeatureTree *>(shownView->treeView()) : nullptr)
    , help(shownView ? shownView->findChild<QTextBrowser *>(QStringLiteral("whatsThisLabel")) : nullptr)
    , rereading(nullptr)
    , watch(nullptr)
{
    constexpr int pause = 200; // ms, between evaluations of the filter
    filterSoon.setSingleShot(true);
    filterSoon.setInterval(pause);
    QObject::connect(&filterSoon, &QTimer::timeout, q, [this] { filterPart(); });
    QObject::connect(&watch, &ValueWatch::compared, q, [this](GenApi::IValue *feature) { compared(feature); });
    QObject::connect(&watch, &ValueWatch::changedFeaturesChanged, q, [this] {
        filterChangedSoon();
        Q_EMIT q->changedFeaturesChanged();
    });
    QObject::connect(&watch, &ValueWatch::marksFaded, q, [this] {
        if (marks)
            marks->update();
    });
}

/** Null without a node map, and without a view. */
GenParamTreeVisibilityFilterProxyModel *OrvFeatureTreeToolsPrivate::filter() const
{
    return tree ? qobject_cast<GenParamTreeVisibilityFilterProxyModel *>(tree->model()) : nullptr;
}

GenParamTreeModel *OrvFeatureTreeToolsPrivate::model() const
{
    const auto *const proxy = filter();
    return proxy ? qobject_cast<GenParamTreeModel *>(proxy->sourceModel()) : nullptr;
}

QModelIndex OrvFeatureTreeToolsPrivate::sourceOf(const QString &name) const
{
    const GenParamTreeModel *const source = model();
    return source ? source->indexOf(name) : QModelIndex();
}

/** The first row of the feature that is shown, if any. */
QModelIndex OrvFeatureTreeToolsPrivate::shown(const QString &name) const
{
    const QModelIndex source = sourceOf(name);
    return source.isValid() ? filter()->mapFromSource(source) : QModelIndex();
}

/** Called while the tree takes the new model; the former one is still whole. */
void OrvFeatureTreeToolsPrivate::modelReplaced()
{
    rereading.stop();
    if (menu)
        menu->close();
    shownReason.clear();
    tree->keepExpansion(std::nullopt);
    const bool endsPart = !part.category.isEmpty() || part.changedOnly;
    part.category.clear();
    part.changedOnly = false;
    candidates.clear();
    polled.clear();
    watch.setModel(model());
    followModel();
    if (endsPart) { // later, as slots may do anything
        QMetaObject::invokeMethod(
            q, [this] { Q_EMIT q->shownPartChanged(); }, Qt::QueuedConnection);
    }
}

void OrvFeatureTreeToolsPrivate::followModel()
{
    GenParamTreeModel *const source = model();
    if (!source)
        return;
    installTeller();
    QObject::connect(source, &QAbstractItemModel::dataChanged, q, [this](const QModelIndex &cell) {
        reasonMayHaveChanged(cell);
        valueMayHaveChanged(cell);
    });
    if (!part.isOfAll())
        filterPart();
}

/** Undoes what the view would call back for; the rest goes with it. */
void OrvFeatureTreeToolsPrivate::leaveView()
{
    if (menu)
        menu->close();
    rereading.stop();
    filterSoon.stop();
    marks.reset();
    watch.setModel(nullptr);
    for (QObject *const watched :
         {static_cast<QObject *>(view), static_cast<QObject *>(tree), static_cast<QObject *>(tree->viewport())})
        watched->removeEventFilter(q);
    tree->disconnect(q);
    view->disconnect(q);
    findBar = nullptr;
    help = nullptr;
    tree = nullptr;
    view = nullptr;
}

void OrvFeatureTreeToolsPrivate::setPart(const Part &wanted)
{
    const OpenCalls::Call call;
    const QPointer<OrvFeatureTreeTools> alive(q);
    part = wanted;
    filterPart();
    if (alive)
        Q_EMIT q->shownPartChanged();
}

/**
 * Categories that go and come again are closed: so their expansion is kept meanwhile. Slots that are called may choose
 * another part, which is filtered then and there.
 */
void OrvFeatureTreeToolsPrivate::filterPart()
{
    auto *const proxy = filter();
    const bool wasOfAll = !proxy || !tree->keptExpansion();
    if (!proxy || (wasOfAll && part.isOfAll()))
        return;
    const OpenCalls::Call call;
    const QPointer<OrvFeatureTreeTools> alive(q);
    const quint64 revision = ++partRevision;
    QSet<QPersistentModelIndex> closed;
    if (wasOfAll)
        tree->keepExpansion(TreeState::saveExpansion(*tree));
    else
        closed = closedCategories(*tree);
    bool categoriesCome = wasOfAll;
    const auto connection = QObject::connect(proxy, &GenParamTreeVisibilityFilterProxyModel::categoriesHaveCome, q,
                                             [&categoriesCome] { categoriesCome = true; });
    proxy->setChoice(choiceOf(part));
    QObject::disconnect(connection);
    if (!alive || revision != partRevision || proxy != filter())
        return;
    if (part.isOfAll()) {
        const QByteArray kept = tree->keptExpansion().value_or(QByteArray());
        tree->keepExpansion(std::nullopt);
        TreeState::loadExpansion(*tree, kept, tree->currentIndex());
    } else if (part.favoritesOnly || part.changedOnly) {
        if (categoriesCome)
            openAllBut(closed, *tree);
    } else if (const QModelIndex category = shown(part.category); category.isValid()) {
        tree->openCategory(category);
    }
}

FeatureChoice OrvFeatureTreeToolsPrivate::choiceOf(const Part &chosenPart) const
{
    FeatureChoice chosen;
    QSet<GenApi::IValue *> features;
    if (chosenPart.favoritesOnly) {
        for (const QString &name : favorites)
            features.insert(featureAt(sourceOf(name)));
    }
    if (chosenPart.changedOnly) {
        const QSet<GenApi::IValue *> changed = watch.changed() + candidates;
        features = chosenPart.favoritesOnly ? features.intersect(changed) : changed;
    }
    if (chosenPart.favoritesOnly || chosenPart.changedOnly) {
        QVector<GenApi::INode *> nodes;
        for (GenApi::IValue *const feature : std::as_const(features))
            failureOf([&] { nodes.append(nodeOf(feature)); });
        chosen.setFeatures(nodes);
    }
    if (!chosenPart.category.isEmpty())
        chosen.setCategory(nodeAt(sourceOf(chosenPart.category)));
    return chosen;
}

bool OrvFeatureTreeToolsPrivate::contains(const Part &some, const QModelIndex &source) const
{
    const FeatureChoice chosen = choiceOf(some);
    for (QModelIndex row = source; row.isValid(); row = row.parent()) {
        if (!chosen.accepts(nodeAt(row), nodeAt(row.parent())))
            return false;
    }
    return true;
}

/** As little as will do. */
OrvFeatureTreeToolsPrivate::Part OrvFeatureTreeToolsPrivate::enlargedFor(const QModelIndex &source) const
{
    Part more = part;
    more.category.clear();
    if (contains(more, source))
        return more;
    more.changedOnly = false;
    if (!contains(more, source))
        more.favoritesOnly = false;
    return more;
}

QString OrvFeatureTreeToolsPrivate::whyHidden(const QString &name) const
{
    const QModelIndex source = sourceOf(name);
    if (!source.isValid())
        return OrvFeatureTreeTools::tr("There is no feature '%1'.").arg(name);
    int level = 0;
    bool isImplemented = true;
    for (QModelIndex above = source; above.isValid(); above = above.parent()) {
        GenApi::INode *const node = nodeAt(above);
        failureOf([&] { level = qMax(level, node ? int(node->GetVisibility()) : 0); });
        isImplemented = isImplemented && FilterRule::isImplemented(node).value_or(true);
    }
    const auto *const levels = view->findChild<QComboBox *>(QStringLiteral("cbVisibility"));
    if (level > Guru)
        return OrvFeatureTreeTools::tr("'%1' is not meant to be shown.").arg(name);
    if (level > view->visibility() && levels)
        return OrvFeatureTreeTools::tr("'%1' is shown at the level %2.").arg(name, levels->itemText(level));
    if (isImplemented && !view->filterText().isEmpty())
        return OrvFeatureTreeTools::tr("'%1' is hidden by the filter.").arg(name);
    const QString reason = q->reasonFor(name);
    return reason.isEmpty() ? OrvFeatureTreeTools::tr("'%1' is not shown.").arg(name)
                            : OrvFeatureTreeTools::tr("'%1' is not shown: %2.").arg(name, reason);
}

/** Of the tree and of an editor in it, which leaves these keys alone. */
bool OrvFeatureTreeToolsPrivate::filterKey(const QKeyEvent &event)
{
    const bool isForMenu =
        event.key() == Qt::Key_Menu || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
    if (!hasContextMenu || !isForMenu)
        return false;
    openMenuAtCurrent();
    return true;
}

/** Of all in the view that leaves these keys alone. */
bool OrvFeatureTreeToolsPrivate::filterKeyOfView(const QKeyEvent &event)
{
    if (!findBar)
        return false;
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    if (event.key() == Qt::Key_F && modifiers == (Qt::ControlModifier | Qt::ShiftModifier))
        findBar->open();
    else if (event.key() == Qt::Key_F3 && (modifiers & ~Qt::ShiftModifier) == 0)
        findBar->step(modifiers == Qt::NoModifier);
    else if (event.matches(QKeySequence::Cancel) && findBar->isVisible())
        findBar->leave();
    else
        return false;
    return true;
}

/** The right button makes the row current, but opens no editor, which the menu would cover. */
bool OrvFeatureTreeToolsPrivate::filterPress(const QMouseEvent &event)
{
    if (!hasContextMenu || event.button() != Qt::RightButton)
        return false;
    const QPersistentModelIndex index(tree->indexAt(event.pos()));
    const QPointer<FeatureTree> pressed(tree);
    pressed->setFocus(Qt::MouseFocusReason);
    if (pressed && index.isValid())
        pressed->moveCurrentTo(index);
    return true;
}

bool OrvFeatureTreeToolsPrivate::isViewport(const QObject *object) const
{
    return tree && object == tree->viewport();
}

bool OrvFeatureTreeToolsPrivate::filterContextMenu(const QContextMenuEvent &event, const QObject *watched)
{
    if (!hasContextMenu || !tree)
        return false;
    if (event.reason() != QContextMenuEvent::Mouse)
        openMenuAtCurrent();
    else if (isViewport(watched))
        openMenu(tree->indexAt(event.pos()), event.globalPos());
    return true;
}

void OrvFeatureTreeToolsPrivate::openMenuAtCurrent()
{
    const OpenCalls::Call call;
    const QModelIndex current = tree->currentIndex();
    tree->scrollTo(current); // the menu opens beside it
    const QRect cell = tree->visualRect(current.siblingAtColumn(GenParamTreeModel::NameColumn));
    const QPoint corner = current.isValid() ? cell.center() : tree->viewport()->rect().center();
    openMenu(current, tree->viewport()->mapToGlobal(corner));
}

void OrvFeatureTreeToolsPrivate::openMenu(const QModelIndex &row, const QPoint &globalPos)
{
    const OpenCalls::Call call;
    if ((menu && menu->isVisible()) || !tree->model()) // a key may arrive in two ways
        return;
    const QPointer<OrvFeatureTreeTools> alive(q);
    const QPointer<QAbstractItemModel> opened(tree->model());
    const QPointer<FeatureMenu> made(new FeatureMenu(*q, *tree, row));
    // Nodes have been asked, which may have changed anything.
    if (!alive || !tree || tree->model() != opened) {
        if (made)
            made->deleteLater();
        return;
    }
    menu = made;
    made->popup(globalPos);
}

/** Links that are opened in a text browser would replace its text. */
bool OrvFeatureTreeToolsPrivate::openLink(const QUrl &link)
{
    const bool isOurs = tellsReasons && link.scheme() == linkScheme;
    if (isOurs)
        q->jumpTo(link.path(QUrl::FullyDecoded));
    return isOurs;
}

/** Of a hidden feature: it is shown until its value is read, and longer if that differs from the first. */
void OrvFeatureTreeToolsPrivate::valueMayHaveChanged(const QModelIndex &cell)
{
    if (!part.changedOnly)
        return;
    GenApi::IValue *const feature = featureAt(cell);
    if (watch.changed().contains(feature) || candidates.contains(feature))
        return;
    auto known = polled.find(feature);
    if (known == polled.end())
        known = polled.insert(feature, isPolled(feature));
    if (*known)
        return;
    candidates.insert(feature);
    filterChangedSoon();
}

void OrvFeatureTreeToolsPrivate::filterChangedSoon()
{
    if (part.changedOnly && !filterSoon.isActive())
        filterSoon.start();
}

/** Called while the value is painted: the rows follow later. */
void OrvFeatureTreeToolsPrivate::compared(GenApi::IValue *feature)
{
    if (candidates.remove(feature) && !watch.changed().contains(feature))
        filterChangedSoon();
}

/** Only features whose access depends on others change it, and then their nodes report. */
void OrvFeatureTreeToolsPrivate::reasonMayHaveChanged(const QModelIndex &cell)
{
    if (!tellsReasons || isReasonQueued || !tree)
        return;
    const QModelIndex current = tree->currentIndex();
    if (!current.isValid() || featureAt(current) != featureAt(cell))
        return;
    isReasonQueued = true;
    QMetaObject::invokeMethod(
        q, [this] { updateReason(); }, Qt::QueuedConnection);
}

/** For the help text of the current feature, and for What's This of any row, which may know it better. */
QString OrvFeatureTreeToolsPrivate::tellReason(GenApi::IValue *feature)
{
    const QPointer<OrvFeatureTreeTools> alive(q);
    const AccessReason reason(feature);
    if (alive && tree && featureAt(tree->currentIndex()) == feature) {
        const bool wasCurrent = std::exchange(reasonFeature, feature) == feature;
        if (std::exchange(shownReason, reason.text()) != reason.text() && wasCurrent && !isRenewing)
            QMetaObject::invokeMethod(
                q, [this] { renewHelp(); }, Qt::QueuedConnection);
    }
    return reason.html();
}

/** Once, also if the reason is another one each time. */
void OrvFeatureTreeToolsPrivate::renewHelp()
{
    if (!tree || !tellsReasons)
        return;
    const OpenCalls::Call call;
    const QPointer<OrvFeatureTreeTools> alive(q);
    isRenewing = true;
    Q_EMIT tree->helpOutdated();
    if (alive)
        isRenewing = false;
}

void OrvFeatureTreeToolsPrivate::installTeller()
{
    reasonFeature = nullptr;
    GenParamTreeModel *const source = model();
    if (source && tellsReasons)
        source->setReasonTeller([this, alive = QPointer<OrvFeatureTreeTools>(q)](GenApi::IValue *feature) {
            return alive ? tellReason(feature) : QString();
        });
    else if (source)
        source->setReasonTeller({});
}

/** The help text is made anew later: that reads registers, and the tools may be going. */
void OrvFeatureTreeToolsPrivate::stopTelling()
{
    if (!std::exchange(tellsReasons, false))
        return;
    help->disconnect(q);
    help->setOpenLinks(true);
    installTeller();
    QMetaObject::invokeMethod(tree, &FeatureTree::helpOutdated, Qt::QueuedConnection);
}

/** The rest of the help text reads more registers, so it is made anew only if the reason differs. */
void OrvFeatureTreeToolsPrivate::updateReason()
{
    isReasonQueued = false;
    if (!tree || !tellsReasons)
        return;
    const OpenCalls::Call call;
    tellReason(featureAt(tree->currentIndex())); // has it made anew
}

OrvFeatureTreeTools::OrvFeatureTreeTools(OrvGenParamTreeView *view, QObject *parent)
    : QObject(parent)
    , d(new OrvFeatureTreeToolsPrivate(this, view))
{
    if (!d->tree)
        return;
    view->installEventFilter(this);
    d->tree->installEventFilter(this);
    d->tree->viewport()->installEventFilter(this);
    connect(d->tree, &FeatureTree::modelReplaced, this, [this] { d->modelReplaced(); });
    connect(d->tree, &FeatureTree::viewIsGoing, this, [this] { d->leaveView(); });
    d->watch.setModel(d->model());
    d->followModel();
}

OrvFeatureTreeTools::~OrvFeatureTreeTools()
{
    if (!d->tree)
        return;
    if (d->menu)
        d->menu->close();
    setFindBar(false);
    setMarksChanges(false);
    d->stopTelling();
    blockSignals(true);
    d->setPart({});
}

bool OrvFeatureTreeTools::hasContextMenu() const
{
    return d->hasContextMenu;
}

void OrvFeatureTreeTools::setContextMenu(bool on)
{
    d->hasContextMenu = on;
}

bool OrvFeatureTreeTools::tellsReasons() const
{
    return d->tellsReasons;
}

void OrvFeatureTreeTools::setTellsReasons(bool on)
{
    if (d->tellsReasons == on || !d->tree)
        return;
    if (!on) {
        d->stopTelling();
        return;
    }
    d->tellsReasons = true;
    d->help->setOpenLinks(false);
    connect(d->help, &QTextBrowser::anchorClicked, this, [this](const QUrl &link) { d->openLink(link); });
    d->installTeller();
    d->renewHelp();
}

QString OrvFeatureTreeTools::reasonFor(const QString &name) const
{
    const OpenCalls::Call call;
    return AccessReason(featureAt(d->sourceOf(name))).text();
}

QStringList OrvFeatureTreeTools::favorites() const
{
    return d->favorites;
}

void OrvFeatureTreeTools::setFavorites(const QStringList &names)
{
    QStringList favorites = names;
    favorites.removeDuplicates();
    if (std::exchange(d->favorites, favorites) == favorites)
        return;
    const QPointer<OrvFeatureTreeTools> alive(this);
    if (d->part.favoritesOnly)
        d->filterPart();
    if (alive)
        Q_EMIT favoritesChanged();
}

bool OrvFeatureTreeTools::isFavorite(const QString &name) const
{
    return d->favorites.contains(name);
}

void OrvFeatureTreeTools::setFavorite(const QString &name, bool on)
{
    QStringList favorites = d->favorites;
    favorites.removeAll(name);
    if (on)
        favorites.append(name);
    setFavorites(favorites);
}

bool OrvFeatureTreeTools::showsFavoritesOnly() const
{
    return d->part.favoritesOnly;
}

void OrvFeatureTreeTools::setShowsFavoritesOnly(bool on)
{
    OrvFeatureTreeToolsPrivate::Part wanted = d->part;
    if (std::exchange(wanted.favoritesOnly, on) != on)
        d->setPart(wanted);
}

bool OrvFeatureTreeTools::tracksChanges() const
{
    return d->watch.tracksChanges();
}

void OrvFeatureTreeTools::setTracksChanges(bool on)
{
    const QPointer<OrvFeatureTreeTools> alive(this);
    if (!on)
        setShowsChangedOnly(false);
    if (alive)
        d->watch.setTracksChanges(on);
}

QStringList OrvFeatureTreeTools::changedFeatures() const
{
    const OpenCalls::Call call;
    QStringList names;
    for (GenApi::IValue *const feature : d->watch.changed())
        failureOf([&] { names += fromGenICam(nodeOf(feature)->GetName()); });
    names.sort();
    return names;
}

bool OrvFeatureTreeTools::showsChangedOnly() const
{
    return d->part.changedOnly;
}

void OrvFeatureTreeTools::setShowsChangedOnly(bool on)
{
    if (on)
        d->watch.setTracksChanges(true);
    OrvFeatureTreeToolsPrivate::Part wanted = d->part;
    if (std::exchange(wanted.changedOnly, on) == on)
        return;
    d->candidates.clear();
    d->setPart(wanted);
}

bool OrvFeatureTreeTools::marksChanges() const
{
    return d->watch.marks();
}

void OrvFeatureTreeTools::setMarksChanges(bool on)
{
    if (!d->tree || on == marksChanges())
        return;
    d->watch.setMarks(on);
    if (on)
        d->marks.emplace(d->watch, *d->tree);
    else
        d->marks.reset();
}

QString OrvFeatureTreeTools::onlyCategory() const
{
    return d->part.category;
}

bool OrvFeatureTreeTools::showOnlyCategory(const QString &name)
{
    const OpenCalls::Call call;
    if (!name.isEmpty() && !isCategory(featureAt(d->sourceOf(name))))
        return false;
    OrvFeatureTreeToolsPrivate::Part wanted = d->part;
    if (std::exchange(wanted.category, name) != name)
        d->setPart(wanted);
    return true;
}

bool OrvFeatureTreeTools::jumpTo(const QString &name)
{
    if (!d->tree)
        return false;
    const OpenCalls::Call call;
    const QPointer<OrvFeatureTreeTools> alive(this);
    QModelIndex target = d->shown(name);
    const QModelIndex source = d->sourceOf(name);
    const bool isOfPart = target.isValid() || !source.isValid() || d->part.isOfAll();
    const bool helps = !isOfPart && d->filter()->acceptsWithoutChoice(source);
    if (alive && helps && d->sourceOf(name) == source)
        d->setPart(d->enlargedFor(source));
    if (!alive || !d->tree)
        return false;
    if (helps)
        target = d->shown(name);
    if (target.isValid())
        return d->tree->jumpTo(target);
    Q_EMIT told(d->whyHidden(name));
    return false;
}

bool OrvFeatureTreeTools::hasFindBar() const
{
    return d->findBar;
}

void OrvFeatureTreeTools::setFindBar(bool on)
{
    if (!on && d->findBar) {
        d->findBar->leave();
        OpenCalls::retire(std::exchange(d->findBar, nullptr).data()); // it may be on the stack
    }
    auto *const layout = d->view ? qobject_cast<QBoxLayout *>(d->view->layout()) : nullptr;
    if (!on || !layout || d->findBar)
        return;
    d->findBar = new FindBar(d->tree, d->view);
    layout->insertWidget(1, d->findBar); // above the tree
    d->findBar->standBefore(*d->tree);
}

void OrvFeatureTreeTools::find()
{
    if (d->findBar)
        d->findBar->open();
}

void OrvFeatureTreeTools::findNext()
{
    if (d->findBar)
        d->findBar->step(true);
}

void OrvFeatureTreeTools::findPrevious()
{
    if (d->findBar)
        d->findBar->step(false);
}

void OrvFeatureTreeTools::readAgain(const QString &name)
{
    const QModelIndex row = d->shown(name);
    if (row.isValid())
        d->rereading.start(row);
}

bool OrvFeatureTreeTools::eventFilter(QObject *watched, QEvent *event)
{
    // By the type first: other events come while the view is being destroyed.
    switch (event->type()) {
    case QEvent::KeyPress:
        return watched == d->view ? d->filterKeyOfView(*static_cast<QKeyEvent *>(event))
                                  : watched == d->tree && d->filterKey(*static_cast<QKeyEvent *>(event));
    case QEvent::MouseButtonPress:
        return d->isViewport(watched) && d->filterPress(*static_cast<QMouseEvent *>(event));
    case QEvent::ContextMenu:
        return watched != d->view && d->filterContextMenu(*static_cast<QContextMenuEvent *>(event), watched);
    case QEvent::WhatsThisClicked:
        return d->openLink(QUrl(static_cast<QWhatsThisClickedEvent *>(event)->href()));
    default:
        return false;
    }
}

} // namespace OrvGui
