#include "explorerwindow.h"

#include "camerasource.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <GenApi/GenApi.h>

#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QStringList>
#include <QTreeView>
#include <QWhatsThis>

namespace {

constexpr int pollInterval = 200; // milliseconds
constexpr int messageTime = 5000; // milliseconds

} // namespace

ExplorerWindow::ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent)
    : QMainWindow(parent)
    , m_source(std::move(source))
    , m_model(new GenParamTreeModel(m_source->nodeMap(), nullptr))
{
    setWindowTitle(tr("%1 - Camera Explorer").arg(m_source->name()));
    resize(780, 760);
    watchErrors();
    createTree();
    createStatusBar();
    createActions();
    connect(&m_pollTimer, &QTimer::timeout, this, &ExplorerWindow::poll);
    m_sincePoll.start();
    m_pollTimer.start(pollInterval);
}

ExplorerWindow::~ExplorerWindow()
{
    delete takeCentralWidget(); // the view must not outlive the model, a member that goes before the child widgets
}

void ExplorerWindow::createTree()
{
    m_tree = new QTreeView(this);
    m_tree->setModel(m_model.data());
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_tree->expandToDepth(0);
    setCentralWidget(m_tree);

    m_tree->header()->setSectionsMovable(false);
    m_tree->header()->resizeSection(GenParamTreeModel::NameColumn, width() / 2);
}

void ExplorerWindow::createStatusBar()
{
    std::set<const GenApi::IValue *> features;
    arrangeRows(QModelIndex(), features);
    m_errorLabel = new QLabel(this);
    statusBar()->setContentsMargins(6, 0, 6, 0);
    statusBar()->addWidget(new QLabel(tr("Features: %1").arg(features.size()), this));
    statusBar()->addPermanentWidget(m_errorLabel);
    showErrorCount();
}

void ExplorerWindow::arrangeRows(const QModelIndex &parent, std::set<const GenApi::IValue *> &features)
{
    for (int row = 0; row < m_model->rowCount(parent); ++row) {
        const QModelIndex index = m_model->index(row, GenParamTreeModel::NameColumn, parent);
        auto *value = index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
        if (!dynamic_cast<GenApi::ICategory *>(value)) {
            features.insert(value);
            continue;
        }
        m_tree->setFirstColumnSpanned(row, parent, true);
        arrangeRows(index, features);
    }
}

void ExplorerWindow::createActions()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Quit"), qApp, &QApplication::quit, QKeySequence::Quit);

    QMenu *view = menuBar()->addMenu(tr("&View"));
    view->addAction(tr("&Refresh Values"), this, &ExplorerWindow::refresh, QKeySequence::Refresh);
    view->addSeparator();
    view->addAction(tr("&Expand All"), m_tree, &QTreeView::expandAll);
    view->addAction(tr("&Collapse All"), m_tree, &QTreeView::collapseAll);

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(QWhatsThis::createAction(help));
    help->addAction(tr("&About"), this, &ExplorerWindow::showAbout);
}

void ExplorerWindow::watchErrors()
{
    connect(m_model.data(), &GenParamTreeModel::errorAppeared, this,
            [this](const QModelIndex &, const QString &name, const QString &message, int role) {
                m_errors[{name, role}] = message;
                showErrorCount();
            });
    connect(m_model.data(), &GenParamTreeModel::errorDisappeared, this,
            [this](const QModelIndex &, const QString &name, int role) {
                if (m_errors.erase({name, role}) > 0)
                    showErrorCount();
            });
}

void ExplorerWindow::showErrorCount()
{
    std::set<QString> features;
    QStringList lines;
    for (const auto &[place, message] : m_errors) {
        if (features.insert(place.first).second)
            lines.append(tr("%1: %2").arg(place.first, message));
    }
    m_errorLabel->setText(tr("Features with errors: %1").arg(features.size()));
    m_errorLabel->setToolTip(lines.join(QLatin1Char('\n')));
}

void ExplorerWindow::poll()
{
    try {
        m_source->nodeMap()->Poll(m_sincePoll.restart());
    } catch (const GenICam::GenericException &e) {
        statusBar()->showMessage(tr("Polling failed: %1").arg(QString::fromUtf8(e.GetDescription())), messageTime);
    }
}

void ExplorerWindow::refresh()
{
    try {
        m_source->nodeMap()->InvalidateNodes();
    } catch (const GenICam::GenericException &e) {
        statusBar()->showMessage(tr("Refreshing failed: %1").arg(QString::fromUtf8(e.GetDescription())), messageTime);
    }
    m_tree->viewport()->update();
}

void ExplorerWindow::showAbout()
{
    QMessageBox::about(this, tr("About Camera Explorer"),
                       tr("<b>Camera Explorer %1</b><p>Shows the features of GenICam cameras.</p>")
                           .arg(QApplication::applicationVersion()));
}
