// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QByteArray>
#include <QMenu>

#include <functional>
#include <vector>

class QSettings;

namespace OrvCam {
class Device;
} // namespace OrvCam

namespace OrvGui {
struct FeatureDialog;
} // namespace OrvGui

/**
 * The configuration window and the dialogs for groups of a camera's features: an entry each; that of a dialog is
 * checked while it is open. They are made when they are first opened, and then follow the camera that is shown.
 *
 * The configuration window lets its user disconnect it or connect it to another camera. Whenever the application's
 * camera is exchanged, or the window is opened from here, it shows the application's camera again.
 */
class ConfigureMenu : public QMenu
{
    Q_OBJECT

public:
    /** \a window is the parent of the menu and of the windows. */
    explicit ConfigureMenu(QWidget *window);

    /**
     * Shows \a device, or no camera if it is null, in all windows. The caller keeps it; it must live until
     * another one is set.
     */
    void setDevice(OrvCam::Device *device);

    /** Sets whether the camera can be reached; otherwise the dialogs have no camera. A new camera counts as reachable.
     */
    void setReachable(bool reachable);

    /** The places of the windows, including those that are opened later. */
    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

    /** The names of all entries, not translated. */
    QStringList windowNames() const;
    /** The window of that name, made if need be; null for another name, and while there is no camera. */
    QWidget *windowNamed(const QString &name);

private:
    struct Entry
    {
        QAction *action; ///< has the name
        std::function<QWidget *()> make;
        std::function<void(QWidget *, OrvCam::Device *)> setDevice;
        const char *neededFeature; ///< without which the window is of no use; null for none
        QWidget *window; ///< null until it is first opened
        QByteArray place; ///< where it is to be opened; empty: anywhere
    };

    void addConfigWindow();
    void addDialog(const OrvGui::FeatureDialog &feature);
    QWidget *windowOf(Entry &entry);
    void openConfigWindow();
    void openDialog(Entry &entry, bool isOpen);
    void updateEntries();

    QWidget *const m_parent;
    OrvCam::Device *m_device = nullptr;
    bool m_isReachable = true;
    std::vector<Entry> m_entries; ///< the configuration window, then the dialogs
};
