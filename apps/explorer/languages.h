// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QStringList>

/** The languages that the library and the explorer speak, English among them: de, en, zh_CN... */
QStringList languages();

/**
 * From now on the windows speak \a language, one of languages(), and Qt with it where its catalogues are installed;
 * empty: the one of the system, or English. For once, after the application object and before the first window.
 */
void speak(const QString &language);
