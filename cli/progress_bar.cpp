#include "cli/progress_bar.h"

#include "cli/summary_table.h"

#include <algorithm>
#include <ostream>

namespace {

constexpr std::int64_t BarWidth = 40;

} // namespace

std::string ProgressBarLine(std::int64_t tried, std::int64_t total, double seconds) {
    const std::int64_t filled = total > 0 ? tried * BarWidth / total : BarWidth;
    const std::int64_t percent = total > 0 ? tried * 100 / total : 100;
    std::string line = "[" + std::string(static_cast<std::size_t>(filled), '#') +
                       std::string(static_cast<std::size_t>(BarWidth - filled), '-') + "] ";
    const std::string share = std::to_string(percent) + "%";
    line += std::string(4 - std::min<std::size_t>(4, share.size()), ' ') + share;
    line += "  " + FixedNumber(static_cast<double>(tried), 0) + " of " +
            FixedNumber(static_cast<double>(total), 0) + " candidates";
    if (seconds > 0) {
        line += ", " + FixedNumber(static_cast<double>(tried) / seconds, 0) + " a second";
    }
    return line;
}

ProgressBar::ProgressBar(std::ostream& err, std::int64_t total)
    : m_err(err), m_total(total), m_start(std::chrono::steady_clock::now()) {}

ProgressBar::~ProgressBar() {
    if (m_width > 0) {
        m_err << '\r' << std::string(m_width, ' ') << '\r' << std::flush;
    }
}

void ProgressBar::show(std::int64_t tried) {
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
    std::string line = ProgressBarLine(tried, m_total, seconds);
    // A shorter line than the last is padded, so that nothing of the last is left behind.
    const std::size_t width = line.size();
    if (width < m_width) {
        line.append(m_width - width, ' ');
    }
    m_width = std::max(m_width, width);
    m_err << '\r' << line << std::flush;
}
