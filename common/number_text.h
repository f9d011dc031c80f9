#pragma once

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
