#include "storage/line_reader.h"

#include "common/number_text.h"
#include "storage/file_error.h"

#include <cerrno>
#include <cmath>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr int EndOfFile = -1;
constexpr std::size_t BufferSize = 64 * 1024;

bool IsBlank(int c) {
    return c == ' ' || c == '\t';
}
bool IsLineEnd(int c) {
    return c == '\r' || c == '\n';
}
bool EndsToken(int c) {
    return c == EndOfFile || IsBlank(c) || c == ',' || IsLineEnd(c);
}
} // namespace

LineReader::LineReader(const std::filesystem::path& path) : m_path(path) {
    if (path.empty()) {
        throw FileError(52);
    }
    do {
        m_descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    } while (m_descriptor < 0 && errno == EINTR);
    if (m_descriptor < 0) {
        throw FileError(ErrorNumberForSystemError(errno, path));
    }
    struct stat status {};
    if (::fstat(m_descriptor, &status) != 0 || S_ISDIR(status.st_mode)) {
        ::close(m_descriptor);
        throw FileError(75);
    }
    m_buffer.resize(BufferSize);
}

LineReader::~LineReader() {
    ::close(m_descriptor);
}

bool LineReader::fill() {
    if (m_atEnd) {
        return false;
    }
    ssize_t count = 0;
    do {
        count = ::read(m_descriptor, m_buffer.data(), m_buffer.size());
    } while (count < 0 && errno == EINTR);
    if (count < 0) {
        throw FileError(ErrorNumberForSystemError(errno, m_path));
    }
    m_position = 0;
    m_end = static_cast<std::size_t>(count);
    m_atEnd = count == 0;
    return !m_atEnd;
}

int LineReader::peek() {
    if (m_putBackPosition < m_putBack.size()) {
        return static_cast<unsigned char>(m_putBack[m_putBackPosition]);
    }
    if (m_position == m_end && !fill()) {
        return EndOfFile;
    }
    return static_cast<unsigned char>(m_buffer[m_position]);
}

int LineReader::next() {
    const int c = peek();
    if (m_putBackPosition < m_putBack.size()) {
        ++m_putBackPosition;
    } else if (c != EndOfFile) {
        ++m_position;
    }
    return c;
}

// A CR followed by an LF is one line end.
void LineReader::skipLineEnd(int lineEnd) {
    if (lineEnd == '\r' && peek() == '\n') {
        next();
    }
}

void LineReader::putBackLine(const std::string& line) {
    m_putBack = line + "\n";
    m_putBackPosition = 0;
}

void LineReader::text(std::string& value) {
    int c = next();
    if (c == EndOfFile) {
        throw FileError(62);
    }
    std::string line;
    while (c != EndOfFile && !IsLineEnd(c)) {
        if (line.size() == MaxLineLength) {
            throw FileError(7);
        }
        line += static_cast<char>(c);
        c = next();
    }
    skipLineEnd(c);
    value = std::move(line);
}

void LineReader::real(double& value) {
    int c = next();
    while (IsBlank(c) || IsLineEnd(c)) {
        c = next();
    }
    if (c == EndOfFile) {
        throw FileError(62);
    }
    std::string token;
    while (!EndsToken(c)) {
        if (token.size() == MaxNumberLength) {
            throw FileError(13);
        }
        token += static_cast<char>(c);
        c = next();
    }
    const double number = NumberFromToken(token);
    while (c != EndOfFile && !IsLineEnd(c)) {
        c = next();
    }
    skipLineEnd(c);
    value = number;
}

void LineReader::integer(std::int16_t& value) {
    double number = 0.0;
    real(number);
    value = Int16FromNumber(number);
}

double NumberFromToken(std::string_view token) {
    double value = 0.0;
    switch (ParseGeneralNumber(token, value)) {
    case NumberParse::Ok:
        return value;
    case NumberParse::OutOfRange:
        throw FileError(6);
    case NumberParse::NotANumber:
        break;
    }
    throw FileError(13);
}

std::int16_t Int16FromNumber(double value) {
    double rounded = std::floor(value);
    const double fraction = value - rounded;
    if (fraction > 0.5 || (fraction == 0.5 && std::fmod(rounded, 2.0) != 0.0)) {
        rounded += 1.0;
    }
    if (!(rounded >= -32768.0 && rounded <= 32767.0)) {
        throw FileError(6);
    }
    return static_cast<std::int16_t>(rounded);
}

double NumberFromLine(std::string_view line) {
    std::size_t start = 0;
    while (start < line.size() && IsBlank(static_cast<unsigned char>(line[start]))) {
        ++start;
    }
    std::size_t end = start;
    while (end < line.size() && !EndsToken(static_cast<unsigned char>(line[end]))) {
        ++end;
    }
    if (end - start > LineReader::MaxNumberLength) {
        throw FileError(13);
    }
    return NumberFromToken(line.substr(start, end - start));
}
