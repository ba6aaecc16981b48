// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/background/periods.h>

namespace OrvGui {

Periods &periods()
{
    static Periods inForce;
    return inForce;
}

} // namespace OrvGui
