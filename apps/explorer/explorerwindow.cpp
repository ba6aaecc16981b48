#include "explorerwindow.h"

#include "cameradialog.h"
#include "camerasource.h"
#include "configuremenu.h"
#include "simulationmenu.h"
#include "widgetspage.h"

#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <GenApi/GenApi.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QItemSelectionModel>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QSaveFile>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeView>

// The type of what the view's model answers to Qt::UserRole.
Q_DECLARE_METATYPE(GenApi::IValue *)

namespace {

constexpr int defaultPollingTime = 200; // milliseconds
constexpr int longestPollingTime = 60000; // milliseconds
constexpr int messageTime = 5000; // milliseconds

} // namespace

ExplorerWindow::ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent)
    : QMainWindow(parent)
    , m_pages(new QTabWidget(this))
    , m_view(new OrvGui::OrvGenParamTreeView(this))
    , m_pollingLabel(new QLabel(this))
{
    resize(780, 760);
    m_view->setPollingTime(defaultPollingTime);
    createPages();
    statusBar()->setContentsMargins(6, 0, 6, 0);
    statusBar()->addPermanentWidget(m_pollingLabel);
    createFileMenu();
    createViewMenu();
    m_configure = new ConfigureMenu(this);
    menuBar()->addMenu(m_configure);
    createSimulationMenu();
    createHelpMenu();
    setSource(std::move(source));
    m_view->treeView()->setColumnWidth(0, width() / 2); // for a picture of a window that is never shown
    setPolling(true);
}

ExplorerWindow::~ExplorerWindow()
{
    // View and dialogs go after the camera.
    m_configure->setDevice(nullptr);
    m_view->clearParams();
}

void ExplorerWindow::createPages()
{
    m_view->setWindowFlags(Qt::Widget);
    m_view->setObjectName(QStringLiteral("explorer"));
    auto *const widgets = new WidgetsPage;
    widgets->setObjectName(QStringLiteral("widgets"));
    m_pages->setDocumentMode(true);
    m_pages->addTab(m_view, tr("Features"));
    m_pages->addTab(widgets, tr("Widgets"));
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
    m_pages->setCurrentIndex(pageNames().indexOf(name));
}

void ExplorerWindow::createFileMenu()
{
    QMenu *const file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open Description..."), this, &ExplorerWindow::chooseDescription, QKeySequence::Open);
    file->addAction(tr("Open &Camera..."), this, &ExplorerWindow::chooseCamera)
        ->setObjectName(QStringLiteral("openCamera"));
    file->addSeparator();
    file->addAction(tr("&Save View State..."), this, &ExplorerWindow::chooseStateToSave, QKeySequence::Save);
    file->addAction(tr("&Load View State..."), this, &ExplorerWindow::chooseStateToLoad);
    file->addSeparator();
    file->addAction(tr("&Quit"), qApp, &QApplication::quit, QKeySequence::Quit);
}

void ExplorerWindow::createViewMenu()
{
    QMenu *const view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("&Refresh Values"), this, &ExplorerWindow::refresh, QKeySequence::Refresh);
    view->addSeparator();
    QAction *const polling = view->addAction(tr("&Poll"));
    polling->setObjectName(QStringLiteral("poll"));
    polling->setCheckable(true);
    polling->setChecked(true);
    connect(polling, &QAction::toggled, this, &ExplorerWindow::setPolling);
    view->addAction(tr("Polling &Interval..."), this, &ExplorerWindow::choosePollingTime);
}

void ExplorerWindow::createSimulationMenu()
{
    m_simulation = new SimulationMenu(this);
    menuBar()->addMenu(m_simulation);
    connect(m_simulation, &SimulationMenu::changed, this, &ExplorerWindow::refresh);
    connect(m_simulation, &SimulationMenu::refused, this,
            [this](const QString &reason) { statusBar()->showMessage(reason, messageTime); });
}

void ExplorerWindow::createHelpMenu()
{
    menuBar()->addMenu(tr("&Help"))->addAction(tr("&About"), this, &ExplorerWindow::showAbout);
}

void ExplorerWindow::setSource(std::unique_ptr<CameraSource> source)
{
    m_configure->setDevice(source->device()); // before the former one goes
    m_view->setParams(source->nodeMap());
    m_source = std::move(source);
    setWindowTitle(tr("%1 - Camera Explorer").arg(m_source->name()));
    m_view->treeView()->expandToDepth(0);
    m_simulation->setCamera(m_source->id());
    m_simulation->setFeature(QString());
    connect(m_view->treeView()->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ExplorerWindow::followCurrent);
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
        if (std::unique_ptr<CameraSource> source = ::chooseCamera(this))
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
    setPolling(m_view->isPollingEnabled());
}

void ExplorerWindow::setPolling(bool on)
{
    m_view->enablePolling(on);
    m_pollingLabel->setText(on ? tr("Polling every %1 ms").arg(m_view->getPollingTime()) : tr("Not polling"));
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
}

void ExplorerWindow::report(const QString &message)
{
    auto *const box = new QMessageBox(QMessageBox::Warning, windowTitle(), message, QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void ExplorerWindow::showAbout()
{
    QMessageBox::about(this, tr("About Camera Explorer"),
                       tr("<b>Camera Explorer %1</b><p>Shows the features of GenICam cameras.</p>")
                           .arg(QApplication::applicationVersion()));
}
