#pragma once

#include <cstdint>

// The counts of items out of their limits that the compliance lists keep, per section. They are
// 16-bit, as the lists have always counted.

struct RibbedCounters {
    std::int16_t centerLift = 0;
    std::int16_t edgeLift = 0;
    std::int16_t centerDown = 0;
    std::int16_t edgeDown = 0;
    std::int16_t bearing = 0;
    std::int16_t cracked = 0;
};

struct UniformCounters {
    std::int16_t centerLift = 0;
    std::int16_t edgeLift = 0;
    std::int16_t centerDown = 0;
    std::int16_t edgeDown = 0;
};

struct LineLoadCounters {
    std::int16_t ribbed = 0;
    std::int16_t uniform = 0;
};
