// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/INodeMap.h>

#include <QMenu>

class Drift;

/**
 * Plugs simulated cameras in and out. For the current camera, makes features fail and recover, refuses all writes, and
 * lets values drift; these entries are disabled without a simulated camera.
 */
class SimulationMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SimulationMenu(QWidget *parent);

    /** \a id is empty if the camera is not simulated; \a nodeMap is the application's node map of it. */
    void setCamera(const QString &id, GenApi::INodeMap *nodeMap);

    /** The node name of the feature that will fail; empty for none. */
    void setFeature(const QString &name);

Q_SIGNALS:
    /** The camera behaves differently from now on. */
    void changed();

    /** The result of a command, for the status bar. */
    void told(const QString &message);

private:
    void failFeature(bool whenWritten);
    void refuseWrites();
    void recover();
    void setDrifting(bool on);
    void update();

    QString m_camera;
    QString m_feature;
    QAction *const m_failReading;
    QAction *const m_failWriting;
    QAction *const m_refuseWrites;
    QAction *const m_recover;
    QAction *const m_drifts;
    Drift *const m_drift;
};
