#pragma once

#include <iosfwd>
#include <string>

// A number with a fixed count of decimals and thousands grouped by commas: 12,345.68.
std::string FixedNumber(double value, int decimals);

// The aligned text table of the command line's summary: a label, a unit, and one value or the
// short and long values side by side.
class SummaryTable {
  public:
    explicit SummaryTable(std::ostream& out) : m_out(out) {}

    void heading(const std::string& title);
    void directionsHeading(const std::string& title);
    void value(const std::string& label, const std::string& unit, const std::string& text);
    void value(const std::string& label, const std::string& unit, double number, int decimals);
    void pair(const std::string& label, const std::string& unit, double shortValue,
              double longValue, int decimals);
    void text(const std::string& label, const std::string& unit, const std::string& shortText,
              const std::string& longText);
    void note(const std::string& line);

  private:
    std::ostream& m_out;
};
