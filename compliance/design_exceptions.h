#pragma once

#include "common/styled_text.h"
#include "engine/design_record.h"
#include "engine/results_record.h"

#include <array>
#include <cstdint>

// The rules of the PTI manual that the geometry and the materials of a design break, apart from
// the calculated stresses: the lists of the "PTI Exceptions" pages.

// Empties the ribbed exceptions box, adds 1 to `count` per rule broken (however many beam
// groups break it) and writes the list; "NO PTI EXCEPTIONS EXIST" when nothing is broken. The
// caller sets `count` to 0 first.
//
// The depth ratio divides the deepest beam of a direction by its shallowest; a direction without
// any beam group that has both depth and quantity has no shallowest beam, and the division
// throws ArithmeticFault.
void RibbedExceptions(const DesignRecord& record, const ResultsRecord& results, std::int16_t& count,
                      StyledText& box);

// The nine rules of the ribbed foundation in the order of the list, each true when broken: beam
// widths under 8 in, over 14 in, depths under 11 in, beams less than 7 in below the slab, the
// depth ratio over 1.2, spacings over 15 ft, under 6 ft without the six foot rule, prestress
// under 50 psi, concrete under 2500 psi. The depth ratio throws as RibbedExceptions does.
using RibbedRules = std::array<bool, 9>;
RibbedRules RibbedRulesBroken(const DesignRecord& record, const ResultsRecord& results);

// A rule of the manual that each direction is held to by itself.
struct DirectionRule {
    bool shortDirection = false;
    bool longDirection = false;
};

// The same nine rules, broken or not, with the rules of the beam depth ratio, the spacings and
// the residual prestress for each direction apart; RibbedRulesBroken is made from them.
struct RibbedRuleTests {
    bool beamWidthMin = false;
    bool beamWidthMax = false;
    bool beamDepthMin = false;
    bool beamBelowSlab = false;
    DirectionRule beamDepthRatio;
    DirectionRule beamSpacingMax;
    DirectionRule beamSpacingMin;
    DirectionRule residualPrestress;
    bool concreteStrength = false;
};
RibbedRuleTests TestRibbedRules(const DesignRecord& record, const ResultsRecord& results);

// The deepest beam depth of one direction over its shallowest, with the fields it divides
// ("DS2 / DS1"). Throws ArithmeticFault for a direction without any beam group that has both a
// depth and a quantity.
struct BeamDepthRatio {
    const char* name;
    double ratio;
};
BeamDepthRatio ShortDepthRatio(const DesignRecord& record);
BeamDepthRatio LongDepthRatio(const DesignRecord& record);

// The two rules of the uniform thickness foundation in the order of its list, each true when
// broken: the ribbed foundation it is derived from has exceptions (`ribbedCount`), and the slab
// is under 7.5 in thick. None is broken without a uniform thickness foundation (`FlatSlab` 1).
using UniformRules = std::array<bool, 2>;
UniformRules UniformRulesBroken(const DesignRecord& record, const ResultsRecord& results,
                                std::int16_t ribbedCount);

// Writes the uniform thickness foundation's exceptions into its own box. A ribbed foundation
// with exceptions (`ribbedCount`, as RibbedExceptions left it) makes the uniform thickness
// analysis derived from it invalid, and counts as one exception here.
void UniformExceptions(const DesignRecord& record, const ResultsRecord& results,
                       std::int16_t& count, std::int16_t& ribbedCount, StyledText& box);
