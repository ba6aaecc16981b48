// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "settingscompare.h"

#include <QMenu>
#include <QPointer>

#include <memory>

class QFileDialog;
class QSettings;
class SettingsJob;
class SettingsReport;
struct ReportRow;

/**
 * Saves the settings of a camera into a file, loads them from one, and compares. What cannot be done is told in
 * reports, which lead to the features.
 */
class SettingsMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SettingsMenu(QWidget *parent);
    ~SettingsMenu() override;

    /**
     * Those of \a nodeMap from now on; null for none. What is under way with the former one, which must live until
     * then, is interrupted before this returns, and told.
     */
    void setCamera(GenApi::INodeMap *nodeMap);

    /** A camera that was lost interrupts what is under way. */
    void setReachable(bool reachable);

    void saveTo(const QString &path);
    void loadFrom(const QString &path);
    void compareWith(const QString &path);
    void compareFiles(const QString &left, const QString &right);

    /** The folder of the last file. */
    void saveSettings(QSettings &settings) const;
    void restoreSettings(const QSettings &settings);

Q_SIGNALS:
    /** Selectors move from now on; or no longer. */
    void busyChanged(bool busy);

    /** The result of a command, for the status bar. */
    void told(const QString &message);

    /** The camera has to stop sending pictures, which locks settings. */
    void stopWanted();

    /** A person wants to see the feature. */
    void featureChosen(const QString &name);

    /** The features that differ from a file; none when nobody looks at the differences any more. */
    void featuresMarked(const QStringList &names);

private:
    struct Task;
    using Work = std::function<void(const SettingsProgress &)>;

    void askForFile(const QString &title, bool isNew, const std::function<void(const QString &)> &use);
    void askForSecondFile(const QString &first);
    void whenUnlocked(const QString &title, const std::function<void()> &go);
    void waitUntilUnlocked(const QString &title, const std::function<void()> &go, int attempts);
    bool isLocked() const;
    void start(const QString &title, const Work &work, const std::function<void()> &whenDone);
    void finish();
    void save(const QString &path);
    void askAboutDevice(const std::shared_ptr<Task> &task);
    void load(const std::shared_ptr<Task> &task);
    void write(const std::shared_ptr<Task> &task);
    void putBack(const std::shared_ptr<Task> &task);
    void reportSaved(const Task &task);
    void reportLoaded(const std::shared_ptr<Task> &task, bool isPutBack);
    SettingsReport *reportCompared(const Task &task, const QString &left, const QString &right);
    SettingsReport *report(const QString &title, const QString &summary, const QStringList &columns,
                           QVector<ReportRow> rows, int others = 0);
    bool isFile(const QString &path);
    void warn(const QString &message);
    void update();

    QAction *const m_save;
    QAction *const m_load;
    QAction *const m_compare;
    GenApi::INodeMap *m_nodeMap = nullptr;
    int m_camera = 0; ///< its number, for what was begun with it
    bool m_isReachable = true;
    QPointer<SettingsReport> m_marking; ///< the report whose features are marked
    QString m_folder;
    std::unique_ptr<SettingsJob> m_job;
    std::function<void()> m_whenDone; ///< the job
};
