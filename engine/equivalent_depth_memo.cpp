#include "engine/equivalent_depth_memo.h"

#include <bit>

namespace {

// Enough for the sections of one direction in any ordinary search, and small enough to stay in
// a processor's own cache: 2^12, a slot for each value of the top 12 bits of a hash.
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
    // Depths and widths in whole or half inches differ only in the high bits of their doubles,
    // so every bit is mixed into every other before a slot is taken from the top bits.
    std::uint64_t hash = 0;
    for (const double value : {section.width, section.slab, section.stem, section.inertia,
                               section.depth1, section.depth2}) {
        hash = (hash ^ std::bit_cast<std::uint64_t>(value)) * 0x9E3779B97F4A7C15ULL;
        hash ^= hash >> 32;
    }
    hash ^= hash >> 33;
    hash *= 0xFF51AFD7ED558CCDULL;
    hash ^= hash >> 33;
    hash *= 0xC4CEB9FE1A85EC53ULL;
    hash ^= hash >> 33;
    return static_cast<std::size_t>(hash >> 52);
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
