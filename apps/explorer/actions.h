#pragma once

#include <QIcon>

class QAction;

/** The icon of that name in the explorer's resources. */
QIcon iconOf(const char *name);

/** The tip of an action, with its keys, as a tool tip is where people look for them. */
void setTip(QAction &action, const QString &tip);
