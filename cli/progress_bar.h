#pragma once

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

// The line of a progress bar: the bar, the share done, the candidates tried of all, and the
// pace. Forty characters of bar: "[################------------------------]  40%  ...".
std::string ProgressBarLine(std::int64_t tried, std::int64_t total, double seconds);

// Draws the progress of a long search on a terminal, over and over on one line, and takes the
// line away when the search ends. It does not decide whether there is a terminal.
class ProgressBar {
  public:
    ProgressBar(std::ostream& err, std::int64_t total);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(std::int64_t tried);

  private:
    std::ostream& m_err;
    std::int64_t m_total;
    std::chrono::steady_clock::time_point m_start;
    std::size_t m_width = 0;
};
