#pragma once

/**
 * The point nearest to \a value of the grid minimum + k * step, at most \a maximum. What lies at least half a step
 * above a point goes up, where half a whole step is rounded down for integers. Minimum and maximum themselves stay, on
 * the grid or off it.
 *
 * The value may lie outside the range; below the minimum it is never made less. A step of 0 or less has no grid.
 */
int snappedToGrid(int value, int minimum, int maximum, int step);

/** The same for numbers that are not whole. Where the grid cannot be computed (NaN, infinite
 * width) the value stays, at most the maximum. */
double snappedToGrid(double value, double minimum, double maximum, double step);
