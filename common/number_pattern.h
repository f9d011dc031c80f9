#pragma once

#include <string>
#include <string_view>

// Formats a number by a display pattern such as "#,##0.00", "#,##0.0##" or "###,###,##0.0",
// as the screens and the report show their values.
//
// - "0" is a digit that is always shown, "#" a digit shown only when needed; "," anywhere among
//   the digits before the point turns on thousands grouping; "." is the decimal point.
// - The value is rounded to the pattern's number of decimals, half away from zero, on its
//   decimal value as written with 15 significant digits: 0.285 with "0.00" gives "0.29",
//   although the double nearest 0.285 lies just below it.
// - Decimals written "#" after the last "0" are dropped while they are trailing zeros.
// - A value that rounds to zero is shown without a minus sign: -0.001 with "0.00" is "0.00".
//
// The patterns used by the program hold only these characters; any other character of a
// pattern is ignored.
std::string FormatNumber(double value, std::string_view pattern);
