#include "simulationmenu.h"

#include "plugmenu.h"

#include <OrvCameraApi/simulation.h>

SimulationMenu::SimulationMenu(QWidget *parent)
    : QMenu(tr("&Simulation"), parent)
    , m_failReading(addAction(QString(), this, [this] { failFeature(false); }))
    , m_failWriting(addAction(QString(), this, [this] { failFeature(true); }))
    , m_recover(addAction(tr("Re&cover All Features"), this, &SimulationMenu::recover))
{
    auto *const plug = new PlugMenu(this);
    connect(plug, &PlugMenu::changed, this, &SimulationMenu::changed);
    insertMenu(m_failReading, plug);
    insertSeparator(m_failReading);
    m_failReading->setObjectName(QStringLiteral("failReading"));
    m_failWriting->setObjectName(QStringLiteral("failWriting"));
    m_recover->setObjectName(QStringLiteral("recover"));
    update();
}

void SimulationMenu::setCamera(const QString &id)
{
    m_camera = id;
    update();
}

void SimulationMenu::setFeature(const QString &name)
{
    m_feature = name;
    update();
}

void SimulationMenu::update()
{
    const QString feature = m_feature.isEmpty() ? tr("a Feature") : tr("'%1'").arg(m_feature);
    m_failReading->setText(tr("Let &Reading %1 Fail").arg(feature));
    m_failWriting->setText(tr("Let &Writing %1 Fail").arg(feature));
    for (QAction *action : {m_failReading, m_failWriting})
        action->setEnabled(!m_camera.isEmpty() && !m_feature.isEmpty());
    m_recover->setEnabled(!m_camera.isEmpty());
}

void SimulationMenu::failFeature(bool whenWritten)
{
    const OrvSim::Fault fault = whenWritten ? OrvSim::Fault::FailWrite : OrvSim::Fault::FailRead;
    if (OrvSim::setFault(m_camera.toStdString(), m_feature.toStdString(), fault))
        Q_EMIT changed();
    else
        Q_EMIT refused(tr("'%1' has no register of its own that could fail.").arg(m_feature));
}

void SimulationMenu::recover()
{
    OrvSim::clearFaults(m_camera.toStdString());
    Q_EMIT changed();
}
