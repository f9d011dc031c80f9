#pragma once

#include "engine/checked_math.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

// The equivalent depths already found, each under the section it was found for, so that an
// analysis of many designs that share a direction's beams and slab does not bisect for the same
// depth again. The bisection's depth and final centroid are functions of its six inputs alone,
// so a remembered pair is the very pair it would give again, to the last bit; a remembered fault
// is the fault it would meet again. Inputs are matched bit for bit.
//
// It holds a fixed number of sections; a new one takes the place of an older one that falls in
// the same slot. It is not shared between threads: each thread of a search keeps its own.
class EquivalentDepthMemo {
  public:
    // The six inputs of the bisection (engine/equivalent_depth.h).
    struct Section {
        double width;
        double slab;
        double stem;
        double inertia;
        double depth1;
        double depth2;
    };

    // What the bisection gave: the depth and the centroid of the last trial section, or the fault
    // it ended in.
    struct Found {
        double depth = 0.0;
        double centroid = 0.0;
        std::optional<FaultKind> fault;
    };

    EquivalentDepthMemo();

    // The remembered outcome for exactly this section, or nothing.
    const Found* find(const Section& section) const;
    void remember(const Section& section, const Found& found);

  private:
    struct Slot {
        Section section{};
        Found found;
        bool used = false;
    };
    static std::size_t slotOf(const Section& section);
    std::vector<Slot> m_slots;
};
