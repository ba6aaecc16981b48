#pragma once

#include <GenApi/INodeMap.h>

#include <QMenu>

class Drift;

/**
 * Plugs simulated cameras in and out; makes features of one fail and recover, lets it refuse all writes, and lets its
 * values drift. All but the first is disabled while there is none.
 */
class SimulationMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SimulationMenu(QWidget *parent);

    /** \a id is empty for what is no simulated camera; \a nodeMap is what the application reads it with. */
    void setCamera(const QString &id, GenApi::INodeMap *nodeMap);

    /** The node name of the feature that is to fail; empty for none. */
    void setFeature(const QString &name);

Q_SIGNALS:
    /** The camera behaves differently from now on. */
    void changed();

    /** What came of it, for people. */
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
