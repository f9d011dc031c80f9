#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The general text of a number: its shortest full form with at most 15 significant digits, no
// trailing zeros, no zero before the decimal point, and the exponent form ("1E+15", "1E-05")
// only where plain digits would need more than 15 places. 3000 is "3000", 0.05 is ".05",
// -0.75 is "-.75". No blanks are added here.
std::string GeneralNumberText(double value);

// Reads a number written in any general form: an optional sign, digits with an optional decimal
// point, and an optional exponent (E or D, upper or lower case). Leading and trailing blanks are
// not accepted here. Gives nothing for text that is no number, and for a number beyond the
// range of a double.
enum class NumberParse { Ok, NotANumber, OutOfRange };
NumberParse ParseGeneralNumber(std::string_view text, double& value);

// The value of the leading numeric part of a text, as the settings store's numbers are read:
// blanks, tabs and line feeds are passed over, then an optional sign, digits with an optional
// decimal point and an optional exponent are taken as far as they go. "12.5 ft" is 12.5; empty
// or non-numeric text is 0. A number beyond the range of a double throws RunTimeError 6
// (overflow).
double LeadingNumberValue(std::string_view text);

// A value rounded to the nearest whole number, ties to even, as a 16-bit integer. Outside the
// 16-bit range throws RunTimeError 6 (overflow).
std::int16_t RoundedInt16(double value);
