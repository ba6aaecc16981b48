// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QString>

/** The low 48 bits of \a mac as six bytes, the highest first, of two upper-case digits in base 16, joined with ":". */
QString macText(quint64 mac);
