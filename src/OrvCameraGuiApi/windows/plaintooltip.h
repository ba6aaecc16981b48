// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

/** A tool tip that shows \a text as it stands. Qt takes what looks like HTML for that, with the images it names. */
QString plainToolTip(const QString &text);
