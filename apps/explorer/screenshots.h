// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QDir>
#include <QString>

class ExplorerWindow;
class QWidget;

/** Draws the application's windows into PNG files, each into one with its name, for its documentation. */
class Screenshots
{
public:
    /** \a directory is made when the first picture is written. */
    Screenshots(ExplorerWindow &window, const QString &directory);

    /** The files that were written are added to those; false when one cannot be written, and fault() is that. */
    bool save();

    QStringList files() const { return m_files; }
    QString fault() const { return m_fault; }

private:
    void savePages();
    void saveErrors();
    void savePicture();
    void saveCameraWindows();
    void saveConfigWindow();
    void saveSelection();
    void showAndGrab(QWidget &window, const QString &name);
    void grab(QWidget &window, const QString &name);

    ExplorerWindow &m_window;
    const QDir m_directory;
    QStringList m_files;
    QString m_fault;
};
