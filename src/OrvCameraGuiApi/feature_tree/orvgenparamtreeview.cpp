// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <OrvCameraGuiApi/background/nodemapclock.h>
#include <OrvCameraGuiApi/camera_api/orvgenparam.h>
#include <OrvCameraGuiApi/feature_tree/categoryspans.h>
#include <OrvCameraGuiApi/feature_tree/featureselection.h>
#include <OrvCameraGuiApi/feature_tree/filteroptions.h>
#include <OrvCameraGuiApi/feature_tree/generrorsdlg.h>
#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>
#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>
#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>
#include <OrvCameraGuiApi/feature_tree/treestate.h>
#include <OrvCameraGuiApi/feature_tree/treeviewresizer.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>
#include <OrvCameraGuiApi/windows/readabledelegate.h>

#include "ui_genparamtreeview.h"

#include <QAction>
#include <QElapsedTimer>
#include <QFocusFrame>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSet>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace {

/**
 * Like QIcon(path), but made of pixmaps that Qt caches by name. With icons from the form, each view would leave further
 * pictures in Qt's cache.
 */
QIcon iconOf(const QString &path)
{
    QIcon icon{QPixmap(path)};
    icon.addPixmap(QPixmap(QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png"))));
    return icon;
}

/**
 * \a html with overlong words cut off: the time to lay out a word grows with the square of its length.
 */
QString shortened(const QString &html)
{
    constexpr int longest = 2000; // characters
    if (html.size() <= longest)
        return html;
    QString result;
    int length = 0;
    int entity = -1; ///< the start of an incomplete character entity
    for (const QChar c : html) {
        length = c.isSpace() || c == QLatin1Char('<') || c == QLatin1Char('>') ? 0 : length + 1;
        if (c == QLatin1Char('&'))
            entity = int(result.size());
        else if (c == QLatin1Char(';'))
            entity = -1;
        if (length == longest && entity >= 0)
            result.truncate(entity);
        if (length == longest)
            result += QChar(0x2026);
        else if (length < longest)
            result += c;
    }
    return result;
}

/** Makes \a field wide enough for its placeholder text beside the buttons at its end. */
void ensureRoomForPlaceholder(QLineEdit &field)
{
    int end = field.width();
    const auto buttons = field.findChildren<QToolButton *>();
    for (const QToolButton *const button : buttons)
        end = std::min(end, button->x());
    const QFontMetrics metrics = field.fontMetrics();
    const int text = metrics.horizontalAdvance(field.placeholderText()) + 2 * metrics.averageCharWidth();
    field.setMinimumWidth(std::max(field.minimumWidth(), text + field.width() - end));
}

QToolButton *buttonOf(const QLineEdit &field, const QAction *action)
{
    const auto buttons = field.findChildren<QToolButton *>();
    const auto found = std::find_if(buttons.begin(), buttons.end(),
                                    [action](const QToolButton *button) { return button->defaultAction() == action; });
    return found == buttons.end() ? nullptr : *found;
}

/** Lets Tab reach a button inside a field, and shows its focus: the button itself paints only its icon. */
class ReachableButton : public QObject
{
public:
    ReachableButton(QToolButton *button, QLineEdit *field)
        : QObject(button)
        , m_frame(new QFocusFrame(field))
    {
        button->setFocusPolicy(Qt::TabFocus);
        button->installEventFilter(this);
        QWidget::setTabOrder(field, button);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (m_frame && event->type() == QEvent::FocusIn)
            m_frame->setWidget(static_cast<QWidget *>(watched));
        else if (m_frame && event->type() == QEvent::FocusOut)
            m_frame->setWidget(nullptr);
        return false;
    }

private:
    const QPointer<QFocusFrame> m_frame;
};

/** Leaves the keys for filter and search to the window: a combo box would search its items for them. */
class FindKeyPasser : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto &key = *static_cast<QKeyEvent *>(event);
        const bool isForTools = key.key() == Qt::Key_F && key.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
        if (!isForTools && !key.matches(QKeySequence::Find) && !key.matches(QKeySequence::Cancel))
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

namespace OrvGui {

class OrvGenParamTreeViewPrivate
{
public:
    explicit OrvGenParamTreeViewPrivate(OrvGenParamTreeView *view)
        : q(view)
    {
    }
    Q_DISABLE_COPY(OrvGenParamTreeViewPrivate)

    void init(GenApi::INodeMap *map);
    void initSplitter();
    void initFilter();
    void initButtons();
    void initPolling();

    void install(GenApi::INodeMap *map);
    bool isEmptyTree() const;
    void fill(GenParamTreeModel &empty);
    void showFiltered();
    void remove();
    static void giveUp(QObject *object);
    void showModel(QAbstractItemModel *shown);
    void connectModel();
    void connectProxy();
    void splitColumns();
    void currentChanged(const QModelIndex &index);
    void showHelp(const QModelIndex &index);
    void tellCurrent(const QString &name);
    void moveCurrentFromGoing();

    void errorAppeared(const QModelIndex &index, const QString &name, const QString &message, int role);
    void errorDisappeared(const QModelIndex &index, const QString &name, int role);
    void writeFailed(const QModelIndex &index);
    void showStatus();
    void repaintSoon(GenApi::IValue *feature);
    void repaintRows();
    void cellChanged(const QModelIndex &index);
    void checkErrorsSoon();
    void checkErrors();
    void clearErrors();
    void applyState(const QByteArray &text);
    void saveLastState();
    void poll();
    void shareClock();

    OrvGenParamTreeView *const q;
    QSplitter *splitter = nullptr;
    Ui_GenParamTreeView ui;
    QByteArray state; ///< the text that was saved or loaded last
    QMetaObject::Connection firstShow;
    bool isStateLoaded = false; ///< never reset: the columns are not divided when the tree is shown first
    GenParamErrorController errors;
    FilterOptions *filterOptions = nullptr;
    QAction *filterOptionsAction = nullptr;
    QTimer *pollTimer = nullptr;
    GenApi::INodeMap *nodeMap = nullptr;
    NodeMapClock::Use clock; ///< while the view counts time for the node map

    GenParamTreeModel *model = nullptr;
    GenParamTreeVisibilityFilterProxyModel *proxy = nullptr; ///< null exactly when the model is
    bool statusShowsErrors = false;
    QSet<GenApi::IValue *> featuresToRepaint;
    QElapsedTimer sinceRepaint;

    /** A failure that painting the value does not clear. */
    struct StandingError
    {
        QPersistentModelIndex index; ///< of the model
        int role;
        QString content; ///< after a failed write: text and access; null until they have been read
        bool isToCheck = true;
    };
    std::vector<StandingError> standingErrors;
    bool isCheckQueued = false;
    bool isClearing = false; ///< while an error is cleared without a write

    QByteArray stateToCome; ///< loaded before there was a node map
    QByteArray lastState;
    bool matchesNames = false;
    QString currentName; ///< the last that was emitted
};

void OrvGenParamTreeViewPrivate::init(GenApi::INodeMap *map)
{
    ui.setupUi(q);
    openWithinScreen(*q);
    initSplitter();
    initButtons();
    filterOptions = new FilterOptions(q);
    QObject::connect(ui.treeView, &FeatureTree::helpOutdated, q, [this] { showHelp(ui.treeView->currentIndex()); });
    install(map);
    ui.treeView->setItemDelegate(new ReadableDelegate(q));
    ui.treeView->setItemDelegateForColumn(GenParamTreeModel::ValueColumn, new GenParamDelegate(q));
    auto *const resizer = new TreeViewResizer(ui.treeView);
    firstShow = QObject::connect(resizer, &TreeViewResizer::showed, q, [this] {
        QObject::disconnect(firstShow);
        if (!isStateLoaded)
            splitColumns();
    });
    initFilter();
    initPolling();
}

void OrvGenParamTreeViewPrivate::initSplitter()
{
    splitter = new QSplitter(Qt::Vertical, q);
    splitter->addWidget(ui.treeView);
    splitter->addWidget(ui.whatsThisLabel);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({1000, 10});
    ui.verticalLayout->addWidget(splitter);
}

/** The form is connected once; its settings go to the present proxy. */
void OrvGenParamTreeViewPrivate::initFilter()
{
    QAction *const clear =
        ui.filterLineEdit->addAction(iconOf(QStringLiteral("://images//clear_left.png")), QLineEdit::TrailingPosition);
    clear->setText(OrvGenParamTreeView::tr("Clear filter")); // what assistive tools call the icon
    clear->setToolTip(OrvGenParamTreeView::tr("Clear filter"));
    QObject::connect(clear, &QAction::triggered, ui.filterLineEdit, &QLineEdit::clear);
    filterOptionsAction = ui.filterLineEdit->addAction(iconOf(filterOptions->iconPath()), QLineEdit::TrailingPosition);
    filterOptionsAction->setText(OrvGenParamTreeView::tr("Filter options"));
    filterOptionsAction->setToolTip(OrvGenParamTreeView::tr("Filter options"));
    QObject::connect(filterOptionsAction, &QAction::triggered, q, [this] { filterOptions->popUp(*ui.filterLineEdit); });
    ensureRoomForPlaceholder(*ui.filterLineEdit);
    if (QToolButton *const button = buttonOf(*ui.filterLineEdit, filterOptionsAction))
        new ReachableButton(button, ui.filterLineEdit);
    ui.cbVisibility->installEventFilter(new FindKeyPasser(ui.cbVisibility));

    QObject::connect(ui.filterLineEdit, &QLineEdit::textChanged, q, [this](const QString &text) {
        if (proxy)
            proxy->setFilterText(text);
    });
    QObject::connect(ui.cbVisibility, QOverload<int>::of(&QComboBox::currentIndexChanged), q, [this](int level) {
        if (proxy)
            proxy->setFilterVisibility(level);
    });
    QObject::connect(filterOptions, &FilterOptions::caseSensitivityChanged, q, [this](bool isSensitive) {
        filterOptionsAction->setIcon(iconOf(filterOptions->iconPath()));
        if (proxy)
            proxy->setCaseSensitive(isSensitive);
    });
    QObject::connect(filterOptions, &FilterOptions::wholeWordsChanged, q, [this](bool wholeWords) {
        filterOptionsAction->setIcon(iconOf(filterOptions->iconPath()));
        if (proxy)
            proxy->setWholeWords(wholeWords);
    });
}

void OrvGenParamTreeViewPrivate::initButtons()
{
    ui.pbCollapseAll->setIcon(iconOf(QStringLiteral(":/images/collapse_all.png")));
    ui.pbExpandAll->setIcon(iconOf(QStringLiteral(":/images/expand_all.png")));
    ui.pbStatus->setIcon(iconOf(QStringLiteral(":/images/ok.png")));
    QObject::connect(ui.pbCollapseAll, &QToolButton::clicked, q, [this] {
        const OpenCalls::Call call;
        ui.treeView->collapseAll();
    });
    QObject::connect(ui.pbExpandAll, &QToolButton::clicked, q, [this] {
        const OpenCalls::Call call;
        ui.treeView->expandAll();
    });
    QObject::connect(ui.pbStatus, &QToolButton::clicked, q, [this] {
        auto *const dialog = new GenErrorsDlg(errors.GetErrorInfo(), q);
        QObject::connect(dialog, &GenErrorsDlg::cleared, q, [this] { clearErrors(); });
        dialog->show();
    });
    auto *const clear = new QAction(OrvGenParamTreeView::tr("Clear"), ui.pbStatus);
    QObject::connect(clear, &QAction::triggered, q, [this] { clearErrors(); });
    ui.pbStatus->addAction(clear);
    ui.pbStatus->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void OrvGenParamTreeViewPrivate::initPolling()
{
    pollTimer = new QTimer(q);
    QObject::connect(pollTimer, &QTimer::timeout, q, [this] { poll(); });
}

void OrvGenParamTreeViewPrivate::install(GenApi::INodeMap *map)
{
    const OpenCalls::Call call;
    GenParamTreeModel *const empty = isEmptyTree() ? std::exchange(model, nullptr) : nullptr;
    remove();
    nodeMap = map;
    shareClock();
    model = new GenParamTreeModel(map, q);
    connectModel();
    // From here on slots may take the node map away again, or set another one, and so may reading: OpenCalls.
    const auto *const installed = model;
    if (empty)
        fill(*empty);
    else
        showFiltered();
    if (model != installed)
        return;
    splitColumns();
    setSpanForChildren(*ui.treeView, QModelIndex());
    if (model == installed && map && !stateToCome.isEmpty())
        applyState(std::exchange(stateToCome, QByteArray()));
}

/** Whether there is a model without a node map. */
bool OrvGenParamTreeViewPrivate::isEmptyTree() const
{
    return model && !nodeMap && ui.treeView->model() == proxy && ui.treeView->featureSelection();
}

/** The filter stays, because to give a tree another one takes longer than all else that is done for a small camera. */
void OrvGenParamTreeViewPrivate::fill(GenParamTreeModel &empty)
{
    const auto *const installed = model;
    proxy->setChoice({}); // as in a new one
    proxy->setSourceModel(model);
    empty.disconnect(q);
    empty.release();
    giveUp(&empty);
    if (model == installed)
        Q_EMIT ui.treeView->modelReplaced();
}

void OrvGenParamTreeViewPrivate::showFiltered()
{
    const auto *const installed = model;
    proxy = new GenParamTreeVisibilityFilterProxyModel(q);
    proxy->setFilterVisibility(ui.cbVisibility->currentIndex());
    proxy->setFilterText(ui.filterLineEdit->text());
    proxy->setCaseSensitive(filterOptions->isCaseSensitive());
    proxy->setWholeWords(filterOptions->wholeWordsOnly());
    proxy->setMatchesNodeNames(matchesNames);
    proxy->setSourceModel(model);
    showModel(proxy);
    if (model == installed)
        connectProxy();
}

/** Nothing refers to the node map afterwards. The objects that did are given up: OpenCalls. */
void OrvGenParamTreeViewPrivate::remove()
{
    if (!model)
        return;
    model->disconnect(q);
    proxy->disconnect(q);
    showModel(nullptr);
    model->release();
    giveUp(std::exchange(proxy, nullptr));
    giveUp(std::exchange(model, nullptr));
    nodeMap = nullptr;
    clock = {};
    featuresToRepaint.clear();
    standingErrors.clear();
    errors = GenParamErrorController();
    showStatus();
    if (!ui.whatsThisLabel->document()->isEmpty()) // clearing it makes a new layout
        ui.whatsThisLabel->clear();
}

/** An object that is in use outlives the view too. */
void OrvGenParamTreeViewPrivate::giveUp(QObject *object)
{
    if (OpenCalls::any())
        object->setParent(nullptr);
    OpenCalls::retire(object);
}

/** Closes the open editors without writing. */
void OrvGenParamTreeViewPrivate::showModel(QAbstractItemModel *shown)
{
    if (QItemSelectionModel *const former = ui.treeView->selectionModel())
        former->disconnect(q);
    ui.treeView->setModel(shown);
    QObject::connect(ui.treeView->selectionModel(), &QItemSelectionModel::currentChanged, q,
                     [this](const QModelIndex &index) { currentChanged(index); });
}

void OrvGenParamTreeViewPrivate::connectModel()
{
    QObject::connect(model, &GenParamTreeModel::errorAppeared, q,
                     [this](const QModelIndex &index, const QString &name, const QString &message, int role) {
                         errorAppeared(index, name, message, role);
                     });
    QObject::connect(
        model, &GenParamTreeModel::errorDisappeared, q,
        [this](const QModelIndex &index, const QString &name, int role) { errorDisappeared(index, name, role); });
    QObject::connect(model, &GenParamTreeModel::writeFailed, q,
                     [this](const QModelIndex &index) { writeFailed(index); });
    QObject::connect(model, &QAbstractItemModel::dataChanged, q,
                     [this](const QModelIndex &index) { cellChanged(index); });
}

/** Connected after the tree, which has to know about a change before its rows are spanned. */
void OrvGenParamTreeViewPrivate::connectProxy()
{
    QObject::connect(proxy, &GenParamTreeVisibilityFilterProxyModel::rowsAboutToGo, q,
                     [this] { moveCurrentFromGoing(); });
    // A slot that is called before these may have taken the model away: OpenCalls.
    QObject::connect(proxy, &GenParamTreeVisibilityFilterProxyModel::categoriesHaveCome, q, [this] {
        if (proxy)
            setSpanForChildren(*ui.treeView, QModelIndex());
    });
    QObject::connect(proxy, &QAbstractItemModel::rowsInserted, q,
                     [this](const QModelIndex &parent, int first, int last) {
                         if (proxy)
                             setSpanForChildren(*ui.treeView, parent, first, last);
                     });
}

/** Into equal parts; the last column gets the rest. */
void OrvGenParamTreeViewPrivate::splitColumns()
{
    const QHeaderView *const header = ui.treeView->header();
    const int width = header->length();
    for (int column = 0; column < header->count() - 1; ++column)
        ui.treeView->setColumnWidth(column, width / header->count());
}

void OrvGenParamTreeViewPrivate::currentChanged(const QModelIndex &index)
{
    const QString name = index.data(GenParamTreeModel::FeatureNameRole).toString();
    showHelp(index);
    tellCurrent(name);
}

void OrvGenParamTreeViewPrivate::showHelp(const QModelIndex &index)
{
    ui.whatsThisLabel->setHtml(shortened(index.data(Qt::WhatsThisRole).toString()));
}

void OrvGenParamTreeViewPrivate::tellCurrent(const QString &name)
{
    if (std::exchange(currentName, name) != name)
        Q_EMIT q->currentFeatureChanged(name);
}

/**
 * An editor that is open there closes as with any move, and its entry is written if it counts. That comes first,
 * separately: a write may change rows, and the tree would go on with former indexes if it did both at once.
 */
void OrvGenParamTreeViewPrivate::moveCurrentFromGoing()
{
    const auto survivorOfCurrent = [this] {
        const QModelIndex current = ui.treeView->currentIndex();
        return proxy && current.isValid() ? proxy->survivorOf(current) : current;
    };
    FeatureSelection *const selection = ui.treeView->featureSelection();
    if (proxy && selection && selection->target().isValid())
        selection->setTarget(proxy->survivorOf(selection->target()));
    if (survivorOfCurrent() == ui.treeView->currentIndex())
        return;
    const bool hadFocus = ui.treeView->hasFocusInside();
    ui.treeView->endEditing(ui.treeView->currentIndex());
    const QModelIndex survivor = survivorOfCurrent();
    if (survivor == ui.treeView->currentIndex())
        return;
    // A user who types elsewhere goes on typing there.
    if (hadFocus)
        ui.treeView->setCurrentIndex(survivor);
    else
        ui.treeView->moveCurrentTo(survivor);
}

void OrvGenParamTreeViewPrivate::errorAppeared(const QModelIndex &index, const QString &name, const QString &message,
                                               int role)
{
    errors.SetError(name, message, role);
    showStatus();
    repaintSoon(featureAt(index));
    if (role == GenParamTreeModel::ValueInterfaceRole || role == Qt::EditRole) {
        standingErrors.push_back({QPersistentModelIndex(index), role, QString()});
        checkErrorsSoon();
    }
    // Not at once: errors occur while the tree is painted, and a slot may open a message box.
    QMetaObject::invokeMethod(
        q, [this, name, message] { Q_EMIT q->errorOccurred(name, message); }, Qt::QueuedConnection);
}

void OrvGenParamTreeViewPrivate::errorDisappeared(const QModelIndex &index, const QString &name, int role)
{
    if (role == Qt::DisplayRole)
        cellChanged(index);
    if (errors.ClearError(name, role)) {
        showStatus();
        repaintSoon(featureAt(index));
    }
    if (role == GenParamTreeModel::ValueInterfaceRole && !isClearing)
        Q_EMIT q->featureWritten(name);
}

/** The value after the latest failed write counts, also when there was an error before. */
void OrvGenParamTreeViewPrivate::writeFailed(const QModelIndex &index)
{
    for (StandingError &error : standingErrors) {
        if (error.index.internalId() == index.internalId() && error.role == GenParamTreeModel::ValueInterfaceRole)
            error.content = QString();
    }
    cellChanged(index);
}

/** Costs nothing while nothing has failed. */
void OrvGenParamTreeViewPrivate::cellChanged(const QModelIndex &index)
{
    for (StandingError &error : standingErrors) {
        if (error.index.internalId() == index.internalId()) {
            error.isToCheck = true;
            checkErrorsSoon();
        }
    }
}

/** From the event loop, after the write that is going on. */
void OrvGenParamTreeViewPrivate::checkErrorsSoon()
{
    if (std::exchange(isCheckQueued, true))
        return;
    QMetaObject::invokeMethod(
        q, [this] { checkErrors(); }, Qt::QueuedConnection);
}

/**
 * A failed read of the edit value is cleared when it can be read again. A failed write is cleared when value or access
 * differ from those after it. The model itself reports a later write that succeeds.
 */
void OrvGenParamTreeViewPrivate::checkErrors()
{
    const OpenCalls::Call call;
    isCheckQueued = false;
    std::vector<StandingError> pending = std::exchange(standingErrors, {});
    const QPointer<GenParamTreeModel> checked(model);
    for (StandingError &error : pending) {
        const QString name = error.index.data(GenParamTreeModel::FeatureNameRole).toString();
        if (!checked || checked != model || !error.index.isValid() || !errors.hasError(name, error.role))
            continue;
        if (std::exchange(error.isToCheck, false)) {
            if (error.role == Qt::EditRole) {
                error.index.data(Qt::EditRole); // clears it on success
                if (!errors.hasError(name, error.role))
                    continue;
            } else {
                const QString content = error.index.data().toString() + QChar(int(error.index.flags()));
                const bool wasRead = !errors.hasError(name, Qt::DisplayRole); // otherwise text and access are not known
                if (wasRead && !error.content.isNull() && content != error.content) {
                    const QScopedValueRollback<bool> clearing(isClearing, true);
                    checked->clearError(error.index, error.role);
                    continue;
                }
                if (wasRead)
                    error.content = content;
            }
        }
        standingErrors.push_back(error);
    }
}

/** Also the errors that the model has recorded, which names and tool tips show. */
void OrvGenParamTreeViewPrivate::clearErrors()
{
    const OpenCalls::Call call;
    const QScopedValueRollback<bool> clearing(isClearing, true);
    standingErrors.clear();
    errors = GenParamErrorController();
    if (model)
        model->clearErrors();
    showStatus();
    ui.treeView->viewport()->update();
}

void OrvGenParamTreeViewPrivate::showStatus()
{
    if (std::exchange(statusShowsErrors, errors.hasErrors()) == errors.hasErrors())
        return;
    ui.pbStatus->setAccessibleName(statusShowsErrors ? OrvGenParamTreeView::tr("There are errors")
                                                     : OrvGenParamTreeView::tr("No errors"));
    ui.pbStatus->setIcon(
        iconOf(statusShowsErrors ? QStringLiteral("://images//err.png") : QStringLiteral("://images//ok.png")));
}

/** Not at once: errors occur while rows are laid out and painted. */
void OrvGenParamTreeViewPrivate::repaintSoon(GenApi::IValue *feature)
{
    if (featuresToRepaint.isEmpty()) {
        // A feature that fails every second time would be painted without end.
        constexpr int interval = 200; // ms
        const bool isSoon = sinceRepaint.isValid() && !sinceRepaint.hasExpired(interval);
        QTimer::singleShot(isSoon ? interval : 0, q, [this] { repaintRows(); });
    }
    featuresToRepaint.insert(feature);
}

/** All rows of the features, in any category: an index maps only to the first occurrence. */
void OrvGenParamTreeViewPrivate::repaintRows()
{
    const QSet<GenApi::IValue *> features = std::exchange(featuresToRepaint, {});
    sinceRepaint.start();
    const QVector<FeatureTree::Row> rows = ui.treeView->rowsOnScreen();
    for (const FeatureTree::Row &row : rows) {
        if (features.contains(featureAt(row.index)))
            ui.treeView->viewport()->update(row.rect);
    }
}

void OrvGenParamTreeViewPrivate::poll()
{
    const OpenCalls::Call call;
    clock.polls();
    if (nodeMap)
        failureOf([this] { nodeMap->Poll(pollTimer->interval()); });
}

/** Other windows leave the polling of the node map to this view. With an interval of 0 it counts no time. */
void OrvGenParamTreeViewPrivate::shareClock()
{
    const bool countsTime = pollTimer && pollTimer->isActive() && pollTimer->interval() > 0;
    clock = countsTime ? NodeMapClock::Use(nodeMap, NodeMapClock::PollsItself) : NodeMapClock::Use();
}

void OrvGenParamTreeViewPrivate::applyState(const QByteArray &text)
{
    TreeState::loadExpansion(*ui.treeView, text);
    if (const auto width = TreeState::columnWidth(text)) {
        ui.treeView->setColumnWidth(GenParamTreeModel::NameColumn, *width);
        isStateLoaded = true;
    }
    const auto level = TreeState::visibility(text);
    const bool bringsRows = level && *level > ui.cbVisibility->currentIndex();
    if (level)
        ui.cbVisibility->setCurrentIndex(*level);
    TreeState::loadSplitter(*splitter, text);
    if (bringsRows && proxy)
        TreeState::loadExpansion(*ui.treeView, text);
}

void OrvGenParamTreeViewPrivate::saveLastState()
{
    if (nodeMap)
        lastState = TreeState::save(*ui.treeView, ui.cbVisibility->currentIndex(), *splitter);
}

IOrvGenParamTreeView::~IOrvGenParamTreeView() = default;

OrvGenParamTreeView::OrvGenParamTreeView(QWidget *parent)
    : OrvGenParamTreeView(static_cast<GenApi::INodeMap *>(nullptr), parent)
{
}

OrvGenParamTreeView::OrvGenParamTreeView(GenApi::INodeMap *nodeMap, QWidget *parent)
    : QDialog(parent)
    , d(new OrvGenParamTreeViewPrivate(this))
{
    d->init(nodeMap);
}

OrvGenParamTreeView::OrvGenParamTreeView(OrvGenParam::Array *params, QWidget *parent)
    : OrvGenParamTreeView(nodeMapOf(params), parent)
{
}

OrvGenParamTreeView::~OrvGenParamTreeView()
{
    Q_EMIT d->ui.treeView->viewIsGoing();
    d->ui.treeView->disconnect(this); // it outlives what the slots need
    d->remove();
}

void OrvGenParamTreeView::setParams(OrvGenParam::Array *params)
{
    setParams(nodeMapOf(params));
}

void OrvGenParamTreeView::setParams(GenApi::INodeMap *nodeMap)
{
    d->saveLastState();
    d->install(nodeMap);
    d->tellCurrent(d->ui.treeView->currentIndex().data(FeatureNameRole).toString());
}

void OrvGenParamTreeView::clearParams()
{
    d->saveLastState();
    d->remove();
    d->tellCurrent(QString());
}

Visibility OrvGenParamTreeView::visibility() const
{
    return Visibility(d->ui.cbVisibility->currentIndex());
}

void OrvGenParamTreeView::setVisibility(Visibility level)
{
    const OpenCalls::Call call;
    if (level >= Basic && level <= Guru)
        d->ui.cbVisibility->setCurrentIndex(level);
}

const char *OrvGenParamTreeView::saveState() const
{
    d->state = d->nodeMap ? TreeState::save(*d->ui.treeView, visibility(), *d->splitter) : QByteArray();
    return d->state.constData();
}

void OrvGenParamTreeView::loadState(const char *state)
{
    if (!state || !*state)
        return;
    if (!d->nodeMap) {
        d->stateToCome = state;
        return;
    }
    const OpenCalls::Call call;
    // A copy: the text may be that of saveState(), and a slot may save again meanwhile.
    const QByteArray text(state);
    d->state = text;
    d->applyState(text);
}

QString OrvGenParamTreeView::filterText() const
{
    return d->ui.filterLineEdit->text();
}

void OrvGenParamTreeView::setFilterText(const QString &text)
{
    const OpenCalls::Call call;
    d->ui.filterLineEdit->setText(text);
}

bool OrvGenParamTreeView::filterMatchesNames() const
{
    return d->matchesNames;
}

void OrvGenParamTreeView::setFilterMatchesNames(bool on)
{
    const OpenCalls::Call call;
    d->matchesNames = on;
    if (d->proxy)
        d->proxy->setMatchesNodeNames(on);
}

bool OrvGenParamTreeView::isReadOnly() const
{
    return d->ui.treeView->isReadOnly();
}

void OrvGenParamTreeView::setReadOnly(bool readOnly)
{
    const OpenCalls::Call call;
    d->ui.treeView->setReadOnly(readOnly);
}

const char *OrvGenParamTreeView::lastState() const
{
    return d->lastState.constData();
}

void OrvGenParamTreeView::setPollingTime(unsigned long milliseconds)
{
    constexpr unsigned long longest = std::numeric_limits<int>::max();
    d->pollTimer->setInterval(int(qMin(milliseconds, longest)));
    d->shareClock();
}

unsigned long OrvGenParamTreeView::getPollingTime()
{
    return static_cast<unsigned long>(d->pollTimer->interval());
}

void OrvGenParamTreeView::enablePolling(bool on)
{
    if (on)
        d->pollTimer->start();
    else
        d->pollTimer->stop();
    d->shareClock();
}

bool OrvGenParamTreeView::isPollingEnabled()
{
    return d->pollTimer->isActive();
}

QTreeView *OrvGenParamTreeView::treeView() const
{
    return d->ui.treeView;
}

/**
 * QDialog would click the button of a command that is open in the tree when Enter is pressed elsewhere, and would hide
 * at Escape even as a part of another window. The key for the filter arrives here only when no child uses it.
 */
void OrvGenParamTreeView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Find)) {
        d->ui.filterLineEdit->setFocus(Qt::ShortcutFocusReason);
        d->ui.filterLineEdit->selectAll();
    } else if (isWindow() && event->matches(QKeySequence::Cancel))
        QDialog::keyPressEvent(event);
    else
        QWidget::keyPressEvent(event);
}

} // namespace OrvGui
