#pragma once

#include <QElapsedTimer>
#include <QMainWindow>
#include <QScopedPointer>
#include <QTimer>

#include <map>
#include <memory>
#include <utility>

class CameraSource;
class GenParamTreeModel;
class QLabel;
class QTreeView;

/** Shows the features of one camera, their values following the camera. */
class ExplorerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent = nullptr);
    ~ExplorerWindow() override;

private:
    /** By feature name and item role: what went wrong there last. */
    using Errors = std::map<std::pair<QString, int>, QString>;

    void createActions();
    void createTree();
    void createStatusBar();
    void watchErrors();

    /** Lets categories below \a parent take the whole row; the number of rows there that are none. */
    int arrangeRows(const QModelIndex &parent);

    void poll();
    void refresh();
    void showErrorCount();
    void showAbout();

    const std::unique_ptr<CameraSource> m_source;
    const QScopedPointer<GenParamTreeModel> m_model; ///< goes before the node map that it shows
    QTreeView *m_tree = nullptr;
    QLabel *m_errorLabel = nullptr;
    Errors m_errors;
    QTimer m_pollTimer;
    QElapsedTimer m_sincePoll;
};
