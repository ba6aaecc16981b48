// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "simulationmenu.h"

#include "drift.h"
#include "plugmenu.h"

#include <OrvCameraApi/simulation.h>

#include <cstdint>
#include <limits>

SimulationMenu::SimulationMenu(QWidget *parent)
    : QMenu(tr("&Simulation"), parent)
    , m_failReading(addAction(QString(), this, [this] { failFeature(false); }))
    , m_failWriting(addAction(QString(), this, [this] { failFeature(true); }))
    , m_refuseWrites(addAction(tr("Refuse &All Writes"), this, &SimulationMenu::refuseWrites))
    , m_recover(addAction(tr("Re&cover All Features"), this, &SimulationMenu::recover))
    , m_drifts(addAction(tr("Let Values &Drift")))
    , m_drift(new Drift(this))
{
    auto *const plug = new PlugMenu(this);
    connect(plug, &PlugMenu::changed, this, &SimulationMenu::changed);
    insertMenu(m_failReading, plug);
    insertSeparator(m_failReading);
    m_failReading->setObjectName(QStringLiteral("failReading"));
    m_failWriting->setObjectName(QStringLiteral("failWriting"));
    m_refuseWrites->setObjectName(QStringLiteral("refuseWrites"));
    m_recover->setObjectName(QStringLiteral("recover"));
    m_drifts->setObjectName(QStringLiteral("drift"));
    m_drifts->setCheckable(true);
    insertSeparator(m_drifts);
    connect(m_drifts, &QAction::toggled, this, &SimulationMenu::setDrifting);
    update();
}

void SimulationMenu::setCamera(const QString &id, GenApi::INodeMap *nodeMap)
{
    m_camera = OrvSim::isPluggedIn(id.toStdString()) ? id : QString(); // a real camera has no faults to choose
    m_drifts->setChecked(false);
    m_drift->setCamera(m_camera.toStdString(), nodeMap);
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
    for (QAction *action : {m_refuseWrites, m_recover, m_drifts})
        action->setEnabled(!m_camera.isEmpty());
}

void SimulationMenu::failFeature(bool whenWritten)
{
    const OrvSim::Fault fault = whenWritten ? OrvSim::Fault::FailWrite : OrvSim::Fault::FailRead;
    if (OrvSim::setFault(m_camera.toStdString(), m_feature.toStdString(), fault))
        Q_EMIT changed();
    else
        Q_EMIT told(tr("'%1' has no register of its own that could fail.").arg(m_feature));
}

void SimulationMenu::refuseWrites()
{
    OrvSim::setFault(m_camera.toStdString(), 0, std::numeric_limits<std::int64_t>::max(), OrvSim::Fault::FailWrite);
    Q_EMIT told(tr("The camera refuses all writes until its features recover."));
}

void SimulationMenu::recover()
{
    OrvSim::clearFaults(m_camera.toStdString());
    Q_EMIT changed();
}

void SimulationMenu::setDrifting(bool on)
{
    if (on)
        m_drift->start();
    else
        m_drift->stop();
}
