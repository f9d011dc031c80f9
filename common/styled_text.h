#pragma once

#include <string>
#include <utility>
#include <vector>

// Styled text as the compliance and exception boxes hold it, kept apart from any widget: a
// sequence of runs, each appended to the end of the box with its own style. A run's text holds
// its tabs and line ends ("\t", "\n") exactly as appended; a view draws them as they stand.
struct StyledRun {
    std::string text;
    bool bold = false;
    bool red = false; // colour value 255; black otherwise
    int size = 8;     // points
    bool centred = false;
};

struct StyledText {
    std::vector<StyledRun> runs;
};

// The colour value of a run as the boxes give it: 255 for red, 0 for black.
constexpr int RedColourValue = 255;
constexpr int BlackColourValue = 0;

inline int ColourValue(const StyledRun& run) {
    return run.red ? RedColourValue : BlackColourValue;
}

inline void Clear(StyledText& box) {
    box.runs.clear();
}

inline void Append(StyledText& box, StyledRun run) {
    box.runs.push_back(std::move(run));
}

// The box's text without its styles, runs joined as they stand.
std::string PlainText(const StyledText& box);
