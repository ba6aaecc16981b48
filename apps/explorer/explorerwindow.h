// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraApi/transports.h>

#include <QHash>
#include <QIcon>
#include <QMainWindow>
#include <QSize>

#include <memory>
#include <optional>

class CameraSource;
class CameraWatch;
class ConfigureMenu;
class FeatureMarks;
class LogDock;
class PictureDock;
class QLabel;
class QMenu;
class QModelIndex;
class QSettings;
class QTabWidget;
class QToolBar;
class SettingsMenu;
class SimulationMenu;
class TreeToolsMenu;
class WriteWatch;

namespace OrvGui {
class OrvGenParamTreeView;
}

/**
 * Shows the features of a camera, one at a time, and on another page the widgets for values; other windows that show
 * the camera are opened from here. While the camera cannot be reached, it is not asked for anything.
 */
class ExplorerWindow : public QMainWindow
{
    Q_OBJECT

public:
    /** On a screen that has room for it. */
    static constexpr QSize usualSize{780, 760};

    explicit ExplorerWindow(std::unique_ptr<CameraSource> source, QWidget *parent = nullptr);
    ~ExplorerWindow() override;

    /** Shows the camera with that identifier instead; what keeps it from that, a message tells, and nothing changes. */
    void showCamera(const QString &id);

    /** Shows that GenICam description instead, likewise. */
    void showDescription(const QString &path);

    /** Writes the state of the view into the file, or restores it from the file. */
    void saveStateTo(const QString &path);
    void loadStateFrom(const QString &path);

    /**
     * Settings between runs: the places of the windows, the polling, and the arrangement of the tree for each camera.
     */
    void saveSettings(QSettings &settings) const;
    void restoreSettings(QSettings &settings);

    /** Chooses simulated or real cameras as in the last run, unless the environment chooses. */
    static void restoreCameras(const QSettings &settings);

    /** The identifier of the camera that was shown at the end of the last run; empty for none. */
    static QString lastCamera(const QSettings &settings);

    /** The names of the pages, not translated, in their order; the first is shown at first. */
    QStringList pageNames() const;
    void showPage(const QString &name);

    /** The menu with the dialogs for groups of features. */
    ConfigureMenu &configureMenu() const { return *m_configure; }

protected:
    void showEvent(QShowEvent *event) override;

private:
    void createPages();
    void createStatusBar();
    void createFileMenu();
    void createCamerasMenu(QMenu &file);
    void createViewMenu();
    void createLog();
    void createConfigureMenu();
    void createSettingsMenu();
    void createPictureMenu();
    void createSimulationMenu();
    void createHelpMenu();

    void setSource(std::shared_ptr<CameraSource> source);
    void arrangeTree();
    void fitNames();
    void chooseCamera();
    void chooseDescription();
    void chooseStateToSave();
    void chooseStateToLoad();
    void choosePollingTime();
    void setReachable(bool reachable);
    void updatePolling();
    void refresh();
    void goTo(const QString &feature);
    void followCurrent(const QModelIndex &current);
    void report(const QString &message);
    void tell(const QString &message);
    void showAbout();

    std::shared_ptr<CameraSource> m_source; ///< kept by the end of its pictures as well
    std::unique_ptr<CameraWatch> m_watch; ///< on the camera of the source
    std::unique_ptr<WriteWatch> m_writes; ///< to it
    bool m_isReachable = true;
    bool m_isBusy = false; ///< with settings
    bool m_wasShown = false;
    QHash<QString, QByteArray> m_treeStates; ///< of cameras that are not shown, by name
    QTabWidget *const m_pages;
    OrvGui::OrvGenParamTreeView *const m_view;
    QToolBar *const m_tools;
    ConfigureMenu *const m_configure;
    LogDock *const m_log;
    SettingsMenu *const m_settings;
    TreeToolsMenu *const m_treeTools;
    FeatureMarks *const m_marks;
    PictureDock *const m_picture;
    SimulationMenu *const m_simulation;
    std::optional<OrvTransports::Cameras> m_chosenCameras; ///< in the menu
    QAction *m_polling = nullptr;
    const QIcon m_connectedIcon; ///< kept, as each new one would add to the cache of pixmaps
    const QIcon m_disconnectedIcon;
    QLabel *const m_connectionIcon;
    QLabel *const m_connectionLabel;
    QLabel *const m_pollingLabel;
};
