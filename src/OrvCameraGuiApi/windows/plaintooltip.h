#pragma once

#include <QString>

/** A tool tip that shows \a text as it stands. Qt takes what looks like HTML for that, with the images it names. */
QString plainToolTip(const QString &text);
