// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * The point nearest to \a value of the grid minimum + k * step, at most \a maximum. A value at least half a step above
 * a point goes up; for integers half a step is rounded down. Minimum and maximum themselves stay, on the grid or off
 * it.
 *
 * The value may lie outside the range; a value below the minimum is never made less. A step of 0 or less has no grid.
 */
int snappedToGrid(int value, int minimum, int maximum, int step);

/** The same for a \a value within the range, which may span all 64 bits. */
long long snappedToGrid(long long value, long long minimum, long long maximum, long long step);

/**
 * The same for numbers with decimals. If the grid cannot be computed (NaN, infinite width), the value stays, limited to
 * the maximum.
 */
double snappedToGrid(double value, double minimum, double maximum, double step);

/** The number that steps lead to. */
struct StepTarget
{
    long long value; ///< pinned to 64 bits
    int overflow; ///< -1 or 1 when the steps left 64 bits on that side, else 0

    /** The number when the ends of the range are joined: beyond one bound lies the other. */
    long long wrapped(long long minimum, long long maximum) const;
};

StepTarget stepped(long long from, int steps, long long singleStep);
