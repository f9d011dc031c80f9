#include "storage/line_writer.h"

#include "common/number_text.h"
#include "storage/file_error.h"

#include <cmath>

namespace {
// A number stands between a sign place, blank for a non-negative value, and one blank.
std::string NumberLine(const std::string& digits) {
    if (!digits.empty() && digits.front() == '-') {
        return digits + " ";
    }
    return " " + digits + " ";
}
} // namespace

void LineWriter::text(std::string& value) {
    if (value.size() > MaxLineLength || value.find_first_of("\r\n") != std::string::npos) {
        throw FileError(5);
    }
    line(value);
}

void LineWriter::integer(std::int16_t& value) {
    line(NumberLine(std::to_string(value)));
}

void LineWriter::real(double& value) {
    if (!std::isfinite(value)) {
        throw FileError(5);
    }
    line(NumberLine(GeneralNumberText(value)));
}

void LineWriter::line(const std::string& value) {
    m_contents += value;
    m_contents += "\r\n";
}
