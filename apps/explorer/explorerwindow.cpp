// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "explorerwindow.h"

#include "actions.h"
#include "cameradialog.h"
#include "camerasource.h"
#include "camerawatch.h"
#include "configuremenu.h"
#include "featuremarks.h"
#include "log/logdock.h"
#include "log/writewatch.h"
#include "picture/picturedock.h"
#include "settings/settingsmenu.h"
#include "simulationmenu.h"
#include "treetoolsmenu.h"
#include "widgetspage.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
#include <OrvCameraGuiApi/windows/fitscreen.h>

#include <GenApi/GenApi.h>
#include <OrvCameraApi/transports.h>

#include <QActionGroup>
#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSaveFile>
#include <QScrollArea>
#include <QSettings>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QTreeView>
#include <QUrl>

#include <utility>

// The type of what the view's model answers to Qt::UserRole.
Q_DECLARE_METATYPE(GenApi::IValue *)

using OrvTransports::Cameras;

namespace {

constexpr int defaultPollingTime = 200; // milliseconds
constexpr int longestPollingTime = 60000; // milliseconds
constexpr int messageTime = 5000; // milliseconds

const QLatin1String geometryKey("window/geometry");
const QLatin1String toolsKey("window/tools");
const QLatin1String pageKey("window/page");
const QLatin1String treesGroup("trees");
const QLatin1String camerasKey("cameras");
const QLatin1String cameraKey("camera");
const QLatin1String pollsKey("polling/enabled");
const QLatin1String intervalKey("polling/interval");

} // namespace

ExplorerWindow::ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent)
    : QMainWindow(parent)
    , m_pages(new QTabWidget(this))
    , m_view(new OrvGui::OrvGenParamTreeView(this))
    , m_tools(addToolBar(tr("Tools")))
    , m_configure(new ConfigureMenu(this))
    , m_log(new LogDock(this))
    , m_settings(new SettingsMenu(this))
    , m_treeTools(new TreeToolsMenu(*m_view, this))
    , m_marks(new FeatureMarks(*m_view, this))
    , m_picture(new PictureDock(this))
    , m_simulation(new SimulationMenu(this))
    , m_connectedIcon(QStringLiteral(":/icons/connected.ico"))
    , m_disconnectedIcon(QStringLiteral(":/icons/disconnected.ico"))
    , m_connectionIcon(new QLabel(this))
    , m_connectionLabel(new QLabel(this))
    , m_pollingLabel(new QLabel(this))
{
    resize(usualSize);
    openWithinScreen(*this);
    m_view->setPollingTime(defaultPollingTime);
    m_tools->setObjectName(QStringLiteral("tools"));
    createPages();
    createStatusBar();
    createFileMenu();
    createViewMenu();
    createLog();
    createConfigureMenu();
    createSettingsMenu();
    createPictureMenu();
    createSimulationMenu();
    createHelpMenu();
    setSource(std::move(source));
    m_view->treeView()->setColumnWidth(0, width() / 2); // for a picture of a window that is never shown
}

ExplorerWindow::~ExplorerWindow()
{
    // View and windows go after the camera.
    m_watch.reset();
    m_settings->setCamera(nullptr); // its thread may hold the lock that the others need
    m_writes.reset();
    m_simulation->setCamera(QString(), nullptr);
    m_configure->setDevice(nullptr);
    m_picture->setCamera(nullptr);
    m_view->clearParams();
}

void ExplorerWindow::createStatusBar()
{
    statusBar()->setContentsMargins(6, 0, 6, 0);
    m_connectionIcon->setObjectName(QStringLiteral("connectionIcon"));
    m_connectionLabel->setObjectName(QStringLiteral("connection"));
    m_pollingLabel->setContentsMargins(0, 0, 12, 0);
    for (QLabel *const label : {m_pollingLabel, m_connectionLabel, m_connectionIcon})
        statusBar()->addPermanentWidget(label);
}

void ExplorerWindow::createPages()
{
    m_view->setWindowFlags(Qt::Widget);
    m_view->setObjectName(QStringLiteral("explorer"));
    auto *const widgets = new QScrollArea; // for small screens
    widgets->setObjectName(QStringLiteral("widgets"));
    widgets->setFrameShape(QFrame::NoFrame);
    widgets->setWidgetResizable(true);
    m_pages->setDocumentMode(true);
    m_pages->addTab(m_view, tr("Features"));
    m_pages->addTab(widgets, tr("Widgets"));
    // Made when it is first looked at, so that the window comes sooner.
    connect(m_pages, &QTabWidget::currentChanged, widgets, [this, widgets] {
        if (m_pages->currentWidget() == widgets && !widgets->widget())
            widgets->setWidget(new WidgetsPage);
    });
    setCentralWidget(m_pages);
}

QStringList ExplorerWindow::pageNames() const
{
    QStringList names;
    for (int i = 0; i < m_pages->count(); ++i)
        names.append(m_pages->widget(i)->objectName());
    return names;
}

void ExplorerWindow::showPage(const QString &name)
{
    m_pages->setCurrentIndex(int(pageNames().indexOf(name)));
}

void ExplorerWindow::createFileMenu()
{
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    QAction *const camera =
        file->addAction(iconOf("opencamera"), tr("Open &Camera..."), this, &ExplorerWindow::chooseCamera,
                        keys(Qt::ControlModifier | Qt::ShiftModifier, Qt::Key_O));
    camera->setObjectName(QStringLiteral("openCamera"));
    setTip(*camera, tr("Choose another camera"));
    QAction *const description = file->addAction(iconOf("opendescription"), tr("&Open Description..."), this,
                                                 &ExplorerWindow::chooseDescription, QKeySequence::Open);
    setTip(*description, tr("Show a GenICam description"));
    m_tools->addActions({camera, description});
    createCamerasMenu(*file);
    file->addSeparator();
    file->addAction(tr("&Save View State..."), this, &ExplorerWindow::chooseStateToSave, QKeySequence::Save);
    file->addAction(tr("&Load View State..."), this, &ExplorerWindow::chooseStateToLoad);
    file->addSeparator();
    file->addAction(tr("&Quit"), qApp, &QApplication::quit, QKeySequence::Quit);
}

/** Which cameras are offered from now on; the one that is shown stays. */
void ExplorerWindow::createCamerasMenu(QMenu &file)
{
    QMenu *const menu = file.addMenu(tr("&Cameras"));
    auto *const group = new QActionGroup(menu);
    const std::pair<Cameras, QString> choices[] = {
        {Cameras::Simulated, tr("&Simulated")}, {Cameras::Real, tr("&Real")}, {Cameras::Both, tr("&Both")}};
    for (const auto &[cameras, text] : choices) {
        QAction *const action = group->addAction(text);
        action->setCheckable(true);
        action->setChecked(OrvTransports::used() == cameras);
        action->setEnabled(cameras == Cameras::Simulated || OrvTransports::canReachRealCameras());
        connect(action, &QAction::triggered, this, [this, cameras = cameras] {
            OrvTransports::use(cameras);
            m_chosenCameras = cameras;
        });
    }
    menu->addActions(group->actions());
}

void ExplorerWindow::createViewMenu()
{
    QMenu *const view = menuBar()->addMenu(tr("&View"));
    QAction *const refreshing = view->addAction(iconOf("refresh"), tr("&Refresh Values"), this,
                                                &ExplorerWindow::refresh, QKeySequence::Refresh);
    setTip(*refreshing, tr("Read the values of the tree again"));
    view->addSeparator();
    m_polling = view->addAction(iconOf("poll"), tr("&Poll"));
    m_polling->setObjectName(QStringLiteral("poll"));
    m_polling->setShortcut(keys(Qt::ControlModifier, Qt::Key_P));
    m_polling->setCheckable(true);
    m_polling->setChecked(true);
    setTip(*m_polling, tr("Read values that change by themselves regularly"));
    connect(m_polling, &QAction::toggled, this, &ExplorerWindow::updatePolling);
    view->addAction(tr("Polling &Interval..."), this, &ExplorerWindow::choosePollingTime);
    view->addMenu(m_treeTools);
    connect(m_treeTools, &TreeToolsMenu::treeWanted, this, [this] { showPage(m_view->objectName()); });
    connect(m_treeTools, &TreeToolsMenu::told, this,
            [this](const QString &message) { statusBar()->showMessage(message, messageTime); });
    view->addSeparator();
    view->addActions({m_tools->toggleViewAction(), m_picture->toggleViewAction(), m_log->toggleViewAction()});
    m_log->toggleViewAction()->setShortcut(keys(Qt::ControlModifier, Qt::Key_L));
    m_tools->addSeparator();
    m_tools->addActions({refreshing, m_polling});
}

void ExplorerWindow::createLog()
{
    addDockWidget(Qt::BottomDockWidgetArea, m_log);
    m_log->hide();
    connect(m_log, &LogDock::featureChosen, this, &ExplorerWindow::goTo);
    connect(m_log, &LogDock::told, this,
            [this](const QString &message) { statusBar()->showMessage(message, messageTime); });
    connect(m_view, &OrvGui::OrvGenParamTreeView::featureWritten, this, [this](const QString &feature) {
        if (m_writes)
            m_writes->noteWritten(feature);
    });
    connect(m_view, &OrvGui::OrvGenParamTreeView::errorOccurred, this,
            [this](const QString &feature, const QString &text) { m_log->log().add(LogLevel::Error, feature, text); });
}

/** Ctrl+0 opens the configuration window, Ctrl+1 and so on the dialogs. */
void ExplorerWindow::createConfigureMenu()
{
    menuBar()->addMenu(m_configure);
    m_tools->addSeparator();
    int key = Qt::Key_0;
    const QList<QAction *> actions = m_configure->actions();
    for (QAction *const action : actions) {
        m_tools->addAction(action);
        if (action->isSeparator())
            continue;
        action->setShortcut(keys(Qt::ControlModifier, key++));
        setTip(*action, QString(action->text()).remove(QLatin1Char('&')));
    }
}

void ExplorerWindow::createSettingsMenu()
{
    menuBar()->addMenu(m_settings);
    connect(m_settings, &SettingsMenu::told, this, &ExplorerWindow::tell);
    connect(m_settings, &SettingsMenu::busyChanged, this, [this](bool busy) {
        m_isBusy = busy; // what is polled meanwhile would be that of other selectors
        updatePolling();
    });
    connect(m_settings, &SettingsMenu::stopWanted, m_picture, &PictureDock::stop);
    connect(m_settings, &SettingsMenu::featuresMarked, m_marks, &FeatureMarks::mark);
    connect(m_settings, &SettingsMenu::featureChosen, this, &ExplorerWindow::goTo);
}

void ExplorerWindow::goTo(const QString &feature)
{
    if (!m_marks->goTo(feature) && !m_treeTools->jumpTo(feature))
        return; // and the tools have told why
    showPage(m_view->objectName());
    activateWindow();
    m_view->treeView()->setFocus();
}

/** With the dock that shows pictures. */
void ExplorerWindow::createPictureMenu()
{
    addDockWidget(Qt::RightDockWidgetArea, m_picture);
    m_picture->hide();
    menuBar()->addMenu(m_picture->menu());
    connect(m_picture, &PictureDock::told, this, &ExplorerWindow::tell);
    connect(m_picture, &PictureDock::failed, this, &ExplorerWindow::report);
}

void ExplorerWindow::createSimulationMenu()
{
    menuBar()->addMenu(m_simulation);
    connect(m_simulation, &SimulationMenu::changed, this, &ExplorerWindow::refresh);
    connect(m_simulation, &SimulationMenu::told, this,
            [this](const QString &message) { statusBar()->showMessage(message, messageTime); });
}

void ExplorerWindow::createHelpMenu()
{
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &ExplorerWindow::showAbout);
}

void ExplorerWindow::setSource(std::shared_ptr<CameraSource> source)
{
    // All before the former one goes.
    m_watch = std::make_unique<CameraWatch>(source->device());
    m_settings->setCamera(source->nodeMap());
    m_writes = std::make_unique<WriteWatch>(*source->nodeMap(), m_log->log());
    m_simulation->setCamera(source->id(), source->nodeMap());
    m_simulation->setFeature(QString());
    m_configure->setDevice(source->device());
    m_picture->setCamera(source);
    if (m_source)
        m_treeStates.insert(m_source->name(), m_view->saveState());
    m_view->setParams(source->nodeMap());
    m_source = std::move(source);
    m_treeTools->setCamera(m_source->nodeMap());
    m_log->log().add(LogLevel::Information, QString(), tr("%1 is shown.").arg(m_source->name()));
    setWindowTitle(tr("%1 - Camera Explorer").arg(m_source->name()));
    arrangeTree();
    connect(m_watch.get(), &CameraWatch::reachableChanged, this, &ExplorerWindow::setReachable);
    connect(m_view->treeView()->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ExplorerWindow::followCurrent);
    setReachable(true);
}

/** As it was left, if the camera has been seen before. */
void ExplorerWindow::arrangeTree()
{
    const QByteArray state = m_treeStates.value(m_source->name());
    if (state.isEmpty())
        m_view->treeView()->expandToDepth(0);
    if (state.isEmpty() && isVisible())
        fitNames();
    else if (!state.isEmpty())
        m_view->loadState(state.constData());
}

/** The view itself divides its columns in halves when it is shown first. */
void ExplorerWindow::fitNames()
{
    QTreeView *const tree = m_view->treeView();
    tree->resizeColumnToContents(0);
    tree->setColumnWidth(0, qMin(tree->columnWidth(0), tree->viewport()->width() * 2 / 3));
}

void ExplorerWindow::showEvent(QShowEvent *event)
{
    QMainWindow::showEvent(event);
    const bool isFirst = !std::exchange(m_wasShown, true);
    if (isFirst && !m_treeStates.contains(m_source->name()))
        QMetaObject::invokeMethod(this, &ExplorerWindow::fitNames, Qt::QueuedConnection);
}

void ExplorerWindow::setReachable(bool reachable)
{
    const bool isChange = reachable != m_isReachable;
    m_isReachable = reachable;
    m_connectionLabel->setText(reachable ? tr("Connected") : tr("Disconnected"));
    const QIcon &icon = reachable ? m_connectedIcon : m_disconnectedIcon;
    m_connectionIcon->setPixmap(icon.pixmap(windowHandle(), QSize(16, 16)));
    for (QLabel *const label : {m_connectionLabel, m_connectionIcon})
        label->setVisible(m_source->device());
    updatePolling();
    if (!isChange)
        return;
    m_log->log().add(reachable ? LogLevel::Information : LogLevel::Error, QString(),
                     reachable ? tr("%1 is back.").arg(m_source->name()) : tr("%1 is lost.").arg(m_source->name()));
    m_configure->setReachable(reachable);
    m_settings->setReachable(reachable);
    m_picture->setReachable(reachable);
    refresh();
}

void ExplorerWindow::showCamera(const QString &id)
{
    if (id == m_source->id())
        return;
    try {
        setSource(openCamera(id));
    } catch (const CameraSourceError &e) {
        report(e.message);
    }
}

void ExplorerWindow::showDescription(const QString &path)
{
    try {
        setSource(openDescription(path));
    } catch (const CameraSourceError &e) {
        report(e.message);
    }
}

void ExplorerWindow::chooseCamera()
{
    try {
        if (std::unique_ptr<CameraSource> source = ::chooseCamera(this, m_source->id()))
            setSource(std::move(source));
    } catch (const CameraSourceError &e) {
        report(e.message);
    }
}

void ExplorerWindow::chooseDescription()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Open Description"), QString(),
                                                      tr("GenICam descriptions (*.xml);;All files (*)"));
    if (!path.isEmpty())
        showDescription(path);
}

void ExplorerWindow::chooseStateToSave()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save View State"));
    if (!path.isEmpty())
        saveStateTo(path);
}

void ExplorerWindow::chooseStateToLoad()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Load View State"));
    if (!path.isEmpty())
        loadStateFrom(path);
}

void ExplorerWindow::saveStateTo(const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(m_view->saveState()) < 0 || !file.commit())
        report(tr("Cannot write '%1': %2.").arg(path, file.errorString()));
}

void ExplorerWindow::loadStateFrom(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        m_view->loadState(file.readAll().constData());
    else
        report(tr("Cannot read '%1': %2.").arg(path, file.errorString()));
}

void ExplorerWindow::choosePollingTime()
{
    bool accepted = false;
    const int time = QInputDialog::getInt(this, tr("Polling Interval"), tr("Milliseconds:"),
                                          int(m_view->getPollingTime()), 0, longestPollingTime, 1, &accepted);
    if (!accepted)
        return;
    m_view->setPollingTime(static_cast<unsigned long>(time));
    updatePolling();
}

/** A camera that was lost would let each poll wait for its answer. */
void ExplorerWindow::updatePolling()
{
    const bool polls = m_polling->isChecked() && m_isReachable && !m_isBusy;
    m_view->enablePolling(polls);
    m_pollingLabel->setText(polls ? tr("Polling every %1 ms").arg(m_view->getPollingTime()) : tr("Not polling"));
}

void ExplorerWindow::saveSettings(QSettings &settings) const
{
    settings.setValue(geometryKey, saveGeometry());
    settings.setValue(toolsKey, saveState());
    settings.setValue(pageKey, m_pages->currentIndex());
    if (!m_source->id().isEmpty())
        settings.setValue(cameraKey, m_source->id());
    if (m_chosenCameras)
        settings.setValue(camerasKey, int(*m_chosenCameras));
    settings.setValue(pollsKey, m_polling->isChecked());
    settings.setValue(intervalKey, int(m_view->getPollingTime()));
    m_configure->saveSettings(settings);
    m_settings->saveSettings(settings);
    m_treeTools->saveSettings(settings);
    QHash<QString, QByteArray> trees = m_treeStates;
    trees.insert(m_source->name(), m_view->saveState());
    settings.beginGroup(treesGroup);
    for (auto tree = trees.cbegin(); tree != trees.cend(); ++tree)
        settings.setValue(QString::fromLatin1(QUrl::toPercentEncoding(tree.key())), tree.value());
    settings.endGroup();
}

void ExplorerWindow::restoreCameras(const QSettings &settings)
{
    const int saved = settings.value(camerasKey, -1).toInt();
    if (saved < 0 || saved > int(Cameras::Both) || qEnvironmentVariableIsSet("ORV_CAMERAS"))
        return;
    if (Cameras(saved) == Cameras::Simulated || OrvTransports::canReachRealCameras())
        OrvTransports::use(Cameras(saved));
}

QString ExplorerWindow::lastCamera(const QSettings &settings)
{
    return settings.value(cameraKey).toString();
}

/** Missing settings change nothing. The user may have edited the file, so every value is checked. */
void ExplorerWindow::restoreSettings(QSettings &settings)
{
    restoreGeometry(settings.value(geometryKey).toByteArray());
    restoreState(settings.value(toolsKey).toByteArray());
    m_pages->setCurrentIndex(settings.value(pageKey, m_pages->currentIndex()).toInt());
    const int interval = settings.value(intervalKey, defaultPollingTime).toInt();
    m_view->setPollingTime(static_cast<unsigned long>(qBound(0, interval, longestPollingTime)));
    m_polling->setChecked(settings.value(pollsKey, true).toBool());
    updatePolling();
    m_configure->restoreSettings(settings);
    m_settings->restoreSettings(settings);
    m_treeTools->restoreSettings(settings);
    settings.beginGroup(treesGroup);
    const QStringList names = settings.childKeys();
    for (const QString &name : names)
        m_treeStates.insert(QUrl::fromPercentEncoding(name.toLatin1()), settings.value(name).toByteArray());
    settings.endGroup();
    arrangeTree();
}

void ExplorerWindow::refresh()
{
    try {
        m_source->nodeMap()->InvalidateNodes();
    } catch (const GenICam::GenericException &e) {
        statusBar()->showMessage(tr("Refreshing failed: %1").arg(QString::fromUtf8(e.GetDescription())), messageTime);
    }
    m_view->treeView()->viewport()->update();
}

void ExplorerWindow::followCurrent(const QModelIndex &current)
{
    QString name;
    try {
        if (auto *const value = current.data(Qt::UserRole).value<GenApi::IValue *>())
            name = QString::fromUtf8(value->GetNode()->GetName().c_str());
    } catch (const GenICam::GenericException &) {
        // A feature that cannot tell its name cannot be made to fail either.
    }
    m_simulation->setFeature(name);
    if (m_writes)
        m_writes->noteCurrent(name);
}

void ExplorerWindow::report(const QString &message)
{
    m_log->log().add(LogLevel::Error, QString(), message);
    auto *const box = new QMessageBox(QMessageBox::Warning, windowTitle(), message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // a camera may have a part in it
    box->open();
}

void ExplorerWindow::tell(const QString &message)
{
    statusBar()->showMessage(message, messageTime);
    m_log->log().add(LogLevel::Information, QString(), message);
}

void ExplorerWindow::showAbout()
{
    QMessageBox::about(this, tr("About Camera Explorer"),
                       tr("<b>Camera Explorer %1</b><p>Shows the features of GenICam cameras.</p>")
                           .arg(QApplication::applicationVersion()));
}
