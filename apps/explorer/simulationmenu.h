#pragma once

#include <QMenu>

/**
 * Plugs simulated cameras in and out, and makes features of one fail and recover; the latter is disabled while there is
 * none.
 */
class SimulationMenu : public QMenu
{
    Q_OBJECT

public:
    explicit SimulationMenu(QWidget *parent);

    /** \a id is empty for what is no simulated camera. */
    void setCamera(const QString &id);

    /** The node name of the feature that is to fail; empty for none. */
    void setFeature(const QString &name);

Q_SIGNALS:
    /** The camera behaves differently from now on. */
    void changed();

    /** Why nothing changed. */
    void refused(const QString &reason);

private:
    void failFeature(bool whenWritten);
    void recover();
    void update();

    QString m_camera;
    QString m_feature;
    QAction *const m_failReading;
    QAction *const m_failWriting;
    QAction *const m_recover;
};
