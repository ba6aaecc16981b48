// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "actions.h"

#include <QAction>

QIcon iconOf(const char *name)
{
    return QIcon(QStringLiteral(":/explorer/%1.ico").arg(QLatin1String(name)));
}

void setTip(QAction &action, const QString &tip)
{
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
    action.setStatusTip(tip);
}
