#pragma once

/**
 * Makes assistive tools meet the spin boxes, sliders and composites as what they are; each calls this when it is made.
 * Their "value", "minimum", "maximum" and "singleStep" are read and set where a tool asks for the value of the widget
 * or of the slider inside, whose own numbers are but positions.
 *
 * A composite is called by its accessible name, else its caption, else the label whose buddy it is. Its parts, unless
 * they have accessible names of their own, are called like it, and so is the line edit of a spin box; the slider beside
 * a spin box, or the button that opens it, is its "... slider". All of that is found out when a tool asks.
 */
void installValueAccessibility();
