// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

/**
 * Registers the accessible interfaces of the spin boxes, sliders and composites; each of them calls this when it is
 * made. The interfaces read and set the properties "value", "minimum", "maximum" and "singleStep", also for the slider
 * inside, whose own numbers are positions.
 *
 * A composite takes its name from its accessible name, else from its caption, else from the label whose buddy it is. A
 * part without an accessible name of its own has the name of the composite, and so has the line edit of a spin box. The
 * slider beside a spin box, and the button that opens it, are called "... slider". Names are determined when a tool
 * asks.
 */
void installValueAccessibility();
