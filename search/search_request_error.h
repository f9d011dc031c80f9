#pragma once

#include <stdexcept>
#include <string>

// A request for a design search that cannot be carried out as asked: an unknown field, a range
// that is empty or too large, a step of 0. The message tells the engineer which and why.
class SearchRequestError : public std::runtime_error {
  public:
    explicit SearchRequestError(const std::string& message) : std::runtime_error(message) {}
};
