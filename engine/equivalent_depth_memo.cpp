#include "engine/equivalent_depth_memo.h"

#include <bit>

namespace {

// Enough for the sections of one direction in any ordinary search, and small enough to stay in
// a processor's own cache.
constexpr std::size_t SlotCount = 4096;

bool sameBits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool sameSection(const EquivalentDepthMemo::Section& a, const EquivalentDepthMemo::Section& b) {
    return sameBits(a.width, b.width) && sameBits(a.slab, b.slab) && sameBits(a.stem, b.stem) &&
           sameBits(a.inertia, b.inertia) && sameBits(a.depth1, b.depth1) &&
           sameBits(a.depth2, b.depth2);
}

} // namespace

EquivalentDepthMemo::EquivalentDepthMemo() : m_slots(SlotCount) {}

std::size_t EquivalentDepthMemo::slotOf(const Section& section) {
    std::uint64_t hash = 0;
    for (const double value : {section.width, section.slab, section.stem, section.inertia,
                               section.depth1, section.depth2}) {
        hash = (hash ^ std::bit_cast<std::uint64_t>(value)) * 0x9E3779B97F4A7C15ULL;
        hash ^= hash >> 29;
    }
    return static_cast<std::size_t>(hash % SlotCount);
}

const EquivalentDepthMemo::Found* EquivalentDepthMemo::find(const Section& section) const {
    const Slot& slot = m_slots[slotOf(section)];
    if (slot.used && sameSection(slot.section, section)) {
        return &slot.found;
    }
    return nullptr;
}

void EquivalentDepthMemo::remember(const Section& section, const Found& found) {
    Slot& slot = m_slots[slotOf(section)];
    slot.section = section;
    slot.found = found;
    slot.used = true;
}
