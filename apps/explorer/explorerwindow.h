#pragma once

#include <QMainWindow>

#include <memory>

class CameraSource;
class ConfigureMenu;
class QLabel;
class QModelIndex;
class QTabWidget;
class SimulationMenu;

namespace OrvGui {
class OrvGenParamTreeView;
}

/** Shows the features of a camera, one at a time, and on another page the widgets for values. */
class ExplorerWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent = nullptr);
    ~ExplorerWindow() override;

    /** Shows the camera with that identifier instead; what keeps it from that, a message tells, and nothing changes. */
    void showCamera(const QString &id);

    /** Shows that GenICam description instead; the same holds. */
    void showDescription(const QString &path);

    /** Writes what saveState() of the view gives into the file, or arranges the view by what is in it. */
    void saveStateTo(const QString &path);
    void loadStateFrom(const QString &path);

    /** The names of the pages, not translated, in their order; the first is shown at first. */
    QStringList pageNames() const;
    void showPage(const QString &name);

    /** The menu with the dialogs for groups of features. */
    ConfigureMenu &configureMenu() const { return *m_configure; }

private:
    void createPages();
    void createFileMenu();
    void createViewMenu();
    void createSimulationMenu();
    void createHelpMenu();

    void setSource(std::unique_ptr<CameraSource> source);
    void chooseCamera();
    void chooseDescription();
    void chooseStateToSave();
    void chooseStateToLoad();
    void choosePollingTime();
    void setPolling(bool on);
    void refresh();
    void followCurrent(const QModelIndex &current);
    void report(const QString &message);
    void showAbout();

    std::unique_ptr<CameraSource> m_source;
    QTabWidget *const m_pages;
    OrvGui::OrvGenParamTreeView *const m_view;
    ConfigureMenu *m_configure = nullptr;
    SimulationMenu *m_simulation = nullptr;
    QLabel *const m_pollingLabel;
};
