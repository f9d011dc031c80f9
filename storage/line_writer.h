#pragma once

#include "storage/field_stream.h"

#include <string>

// Puts each value on a line of its own, ended by CR LF, and keeps the text in memory until the
// whole file is made:
//   text     the value as it stands, no quotation marks, no escapes ("" is an empty line);
//   integer  " 2 " and "-1 ": a leading blank or the minus sign, one blank after the digits;
//   real     the same frame around the general number text: " .05 ", " 3000 ", "-.75 ".
// A value that a line cannot hold (a text with a line end in it or longer than MaxLineLength,
// a real that is not a finite number) is refused with error 5 before anything reaches the
// disk. Putting the text in a file is not done here.
class LineWriter final : public FieldStream {
  public:
    void text(std::string& value) override;
    void integer(std::int16_t& value) override;
    void real(double& value) override;

    const std::string& contents() const { return m_contents; }

  private:
    void line(const std::string& value);
    std::string m_contents;
};
