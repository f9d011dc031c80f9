#pragma once

#include "reports/drawing_surface.h"

#include <string>

// How the calculation package writes its numbers and units: one number format per kind of
// quantity, chosen by the unit, so that a stress or a moment reads the same on every page.
//
//   ksi 0.000   psi, psf, lb/ft, pcf, pci whole   ft-k/ft, ft-k, k/ft, kips 0.00
//   in^2, in^3, in^4 whole   in, ft 0.00   "count" whole   "ratio" 0.00
//   no unit: a coefficient, in its shortest full form.

// The number in the format of its unit.
std::string PackageNumber(double value, const std::string& unit);

// The unit as the reader sees it: "count", "ratio" and no unit show nothing; a power is drawn
// raised (see DrawUnit).
std::string UnitShown(const std::string& unit);

// The width of a unit as DrawUnit draws it, at the surface's current size.
double UnitWidth(DrawingSurface& surface, const std::string& unit);

// Draws a unit at x with its top at y in the current font of `points` size; the power of "in^4"
// is a real superscript: smaller and raised. Gives the width drawn.
double DrawUnit(DrawingSurface& surface, double x, double y, const std::string& unit,
                double points);

// The text cut short with "..." so that it is at most `width` wide in the current font; a text
// that fits is given whole.
std::string FitText(DrawingSurface& surface, const std::string& text, double width);
