// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <chrono>

namespace OrvGui {

/** How often the library does what it does by itself. Each period is read when the work starts. */
struct Periods
{
    /** The camera selector looks for devices, on its thread; the pause between two looks. */
    std::chrono::milliseconds search{1000};

    /** A `NodeMapClock` polls its node map. */
    std::chrono::milliseconds poll{200};

    /** The configuration window reads the status of its camera and acts upon the events of the device. */
    std::chrono::milliseconds status{1000};
};

/** The periods in force: the defaults, unless a test changes them with a QScopedValueRollback. GUI thread only. */
Periods &periods();

} // namespace OrvGui
