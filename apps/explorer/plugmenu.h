// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QMenu>

#include <string>

/** Plugs simulated interfaces and devices in and out: whatever there is has an entry, checked while it is plugged in.
 */
class PlugMenu : public QMenu
{
    Q_OBJECT

public:
    explicit PlugMenu(QWidget *parent = nullptr);

Q_SIGNALS:
    /** Something was plugged in or out. */
    void changed();

private:
    void list();
    QAction *addSwitch(const std::string &name, const QString &text);
};
