#pragma once

/**
 * Makes assistive tools meet the sliders and composites as what they are, from the first call on. Their "value",
 * "minimum", "maximum" and "singleStep" are read and set where a tool asks for the value of the widget or of the slider
 * inside, whose own numbers are but positions; a slider without an accessible name bears that of what it is a part of,
 * or its caption.
 */
void installValueAccessibility();
