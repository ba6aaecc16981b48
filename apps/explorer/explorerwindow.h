#pragma once

#include <GenApi/IValue.h>

#include <QElapsedTimer>
#include <QMainWindow>
#include <QScopedPointer>
#include <QTimer>

#include <map>
#include <memory>
#include <set>
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

    /** Lets the categories below \a parent take whole rows and adds what is no category to \a features. */
    void arrangeRows(const QModelIndex &parent, std::set<const GenApi::IValue *> &features);

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
