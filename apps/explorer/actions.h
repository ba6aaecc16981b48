// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QIcon>
#include <QKeySequence>

class QAction;

/** The icon of that name in the explorer's resources. */
QIcon iconOf(const char *name);

/** The tip of an action, with its keys, as a tool tip is where people look for them. */
void setTip(QAction &action, const QString &tip);

/** \a key with \a modifiers, with either Qt. */
inline QKeySequence keys(Qt::KeyboardModifiers modifiers, int key)
{
    return int(modifiers) | key;
}
