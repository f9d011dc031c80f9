#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// The longest line a project file may hold, line end not counted. The reader refuses longer
// lines so that a huge or binary file cannot take unbounded memory, and the writer refuses
// longer texts so that it never makes a file the reader would refuse.
inline constexpr std::size_t MaxLineLength = 1024 * 1024;

// One value a line, in the order a layout asks for them. A layout is written once as a
// sequence of calls on a FieldStream; the file reader fills each value from its line and the
// file writer puts each value on its line, so reading and writing follow the same lines and
// the same conditions by construction. A condition in a layout looks at the record after the
// call, which for the reader is the value just read.
class FieldStream {
  public:
    virtual ~FieldStream() = default;
    virtual void text(std::string& value) = 0;
    virtual void integer(std::int16_t& value) = 0;
    virtual void real(double& value) = 0;
};
