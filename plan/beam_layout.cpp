#include "plan/foundation_plan.h"

#include <cmath>

namespace {

// The slot among `slots` places that is nearest to `ideal`; a tie goes away from the middle of
// the row, so that a row laid out this way is the same read from either end.
int NearestSlot(double ideal, int slots) {
    const double middle = (slots - 1) / 2.0;
    if (ideal < middle) {
        return static_cast<int>(std::ceil(ideal - 0.5));
    }
    if (ideal > middle) {
        return static_cast<int>(std::floor(ideal + 0.5));
    }
    return static_cast<int>(std::floor(ideal));
}

// The type of each beam from the first edge to the other.
std::vector<int> TypesInOrder(int type1, int type2) {
    const int count = type1 + type2;
    if (type1 == 0 || type2 == 0) {
        return std::vector<int>(static_cast<std::size_t>(count), type1 == 0 ? 2 : 1);
    }
    if (type1 == 1 && type2 == 1) {
        return {1, 2};
    }
    // The edges take type 1 when there are two of them; otherwise the lone type 1 beam goes
    // between type 2 beams. The other type is spread over the places between the edges, each
    // at the middle of its equal share of them.
    const int edgeType = type1 >= 2 ? 1 : 2;
    const int spreadType = edgeType == 1 ? 2 : 1;
    const int spreadCount = edgeType == 1 ? type2 : type1;
    const int inner = count - 2;
    std::vector<int> types(static_cast<std::size_t>(count), edgeType);
    for (int k = 0; k < spreadCount; ++k) {
        const double ideal = (k + 0.5) * inner / spreadCount - 0.5;
        int slot = NearestSlot(ideal, inner);
        // Shares of one place or more never meet; this only guards the arithmetic.
        while (types[static_cast<std::size_t>(slot + 1)] == spreadType && slot + 1 < inner) {
            ++slot;
        }
        types[static_cast<std::size_t>(slot + 1)] = spreadType;
    }
    return types;
}

} // namespace

std::vector<PlanBeam> LayOutBeams(double sideFt, int type1, double width1, int type2,
                                  double width2) {
    std::vector<PlanBeam> beams;
    if (type1 < 0 || type2 < 0 || type1 + type2 == 0) {
        return beams;
    }
    const int count = type1 + type2;
    const double summedWidth = (type2 * width2 + type1 * width1) / 12;
    const double gap = count > 1 ? (sideFt - summedWidth) / (count - 1) : 0;
    double widthBefore = 0; // inches of the beams already placed
    int placed = 0;
    for (const int type : TypesInOrder(type1, type2)) {
        PlanBeam beam;
        beam.type = type;
        beam.width = type == 1 ? width1 : width2;
        beam.from = count > 1 ? placed * gap + widthBefore / 12 : (sideFt - beam.width / 12) / 2;
        beam.to = beam.from + beam.width / 12;
        widthBefore += beam.width;
        ++placed;
        beams.push_back(beam);
    }
    return beams;
}

std::vector<double> SlabTendonPlaces(double sideFt, double count, double spacing) {
    std::vector<double> places;
    if (!(count >= 1)) {
        return places;
    }
    if (count == 1) {
        places.push_back(sideFt / 2);
        return places;
    }
    for (int i = 0; i < count; ++i) {
        places.push_back(2 + i * spacing);
    }
    return places;
}
