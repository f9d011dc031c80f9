#pragma once

#include "storage/field_stream.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

// Reads the values of a project file one by one from an open file, as a stream: the file is
// never held whole, so a huge or binary file costs no more memory than one line.
//
// - A text is the rest of the current line. CR LF, a bare LF and a bare CR all end a line.
// - A number skips blanks and line ends, takes the characters up to the next blank, comma or
//   line end, and then skips the rest of that line with its line end, so that a text read next
//   starts on the following line. An integer is that number rounded to nearest, ties to even.
//
// Failures throw FileError: 62 when the file ends where a value is needed, 13 when a number is
// not one (or is longer than MaxNumberLength), 6 when it is beyond a double or an integer is
// outside -32768..32767, 7 for a line longer than MaxLineLength (field_stream.h), and the
// number of the system's failure when the file cannot be opened or read.
class LineReader final : public FieldStream {
  public:
    static constexpr std::size_t MaxNumberLength = 256;

    explicit LineReader(const std::filesystem::path& path);
    ~LineReader() override;
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;

    void text(std::string& value) override;
    void integer(std::int16_t& value) override;
    void real(double& value) override;

    // Makes `line` the next line to read, as if it stood again in front of the rest of the
    // file. The first line of a file without a version line is its first value.
    void putBackLine(const std::string& line);

  private:
    int next();
    int peek();
    bool fill();
    void skipLineEnd(int lineEnd);

    std::filesystem::path m_path;
    int m_descriptor = -1;
    std::vector<char> m_buffer;
    std::size_t m_position = 0;
    std::size_t m_end = 0;
    bool m_atEnd = false;
    std::string m_putBack;
    std::size_t m_putBackPosition = 0;
};

// The value of a number token such as ".05", "-1", "1E+15" or "2.5D-3". Throws FileError 13 for
// a text that is no number and 6 for one beyond the range of a double.
double NumberFromToken(std::string_view token);

// A number as an integer field takes it: rounded to nearest, ties to even. Throws FileError 6
// outside -32768..32767.
std::int16_t Int16FromNumber(double value);

// The number at the start of a line of text by the same rule as a number read from the file:
// leading blanks skipped, the value ends at a blank or comma, the rest is ignored. Throws
// FileError 13 for a line that holds no number.
double NumberFromLine(std::string_view line);
