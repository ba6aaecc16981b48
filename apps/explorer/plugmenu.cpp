// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "plugmenu.h"

#include <OrvCameraApi/simulation.h>

PlugMenu::PlugMenu(QWidget *parent)
    : QMenu(tr("Plug &In and Out"), parent)
{
    connect(this, &QMenu::aboutToShow, this, &PlugMenu::list);
}

void PlugMenu::list()
{
    clear();
    for (const std::string &interface : OrvSim::interfaceNames()) {
        addSwitch(interface, QString::fromStdString(interface));
        for (const std::string &device : OrvSim::deviceNames(interface)) {
            QAction *const action = addSwitch(device, QStringLiteral("    ") + QString::fromStdString(device));
            action->setEnabled(OrvSim::isPluggedIn(interface));
        }
    }
}

QAction *PlugMenu::addSwitch(const std::string &name, const QString &text)
{
    QAction *const action = addAction(text);
    action->setObjectName(QString::fromStdString(name));
    action->setCheckable(true);
    action->setChecked(OrvSim::isPluggedIn(name));
    connect(action, &QAction::triggered, this, [this, name](bool plugIn) {
        if (plugIn)
            OrvSim::replug(name);
        else
            OrvSim::unplug(name);
        Q_EMIT changed();
    });
    return action;
}
