#include "reports/result_tables.h"

#include "common/number_pattern.h"

#include <algorithm>

namespace {

// The two columns of short and long values: heads centred on these x, values right-aligned a
// little to the right of them.
constexpr double ShortCentre = 8640;
constexpr double LongCentre = 10060;
constexpr double EdgeOffset = 350;
static_assert(ShortCentre + EdgeOffset == SingleValueEdge);

// The four columns of the stress tables: tension short and long, then compression.
constexpr double StressCentres[] = {4360, 5460, 8640, 9740};
constexpr double SecondLabelX = 6300;

void Centred(PageWriter& w, double centre, const std::string& text) {
    w.Text(centre - w.surface().TextWidth(text) / 2, text);
}

// Centred on `centre`, but drawn left far enough to end on the right text edge: the caption over
// the compression columns is wider than the room to the right of their middle.
void CentredWithinEdge(PageWriter& w, double centre, const std::string& text) {
    const double width = w.surface().TextWidth(text);
    w.Text(std::min(centre - width / 2, RightTextEdge - width), text);
}

} // namespace

std::string Formatted(double value, const char* pattern) {
    return FormatNumber(value, pattern);
}

void BlockHeading(PageWriter& w, const std::string& heading) {
    w.Heading(heading);
    w.Step();
}

void MomentHeading(PageWriter& w, const std::string& heading, bool useBeta,
                   const std::string& note) {
    DrawingSurface& s = w.surface();
    s.SetBold(true);
    const double headingWidth = s.TextWidth(heading);
    s.SetBold(false);
    w.Heading(heading);
    if (useBeta) {
        w.Text(w.page().column1 + headingWidth, note);
    }
    w.Step();
}

void DirectionHeads(PageWriter& w) {
    Centred(w, ShortCentre, "Short");
    Centred(w, LongCentre, "Long");
    w.Step();
    Centred(w, ShortCentre, "Direction");
    Centred(w, LongCentre, "Direction");
    w.Step();
}

void PairRow(PageWriter& w, const std::string& label, const std::string& shortText,
             const std::string& longText) {
    PairRowAt(w, w.page().column2, label, shortText, longText);
}

void PairRowAt(PageWriter& w, double labelX, const std::string& label, const std::string& shortText,
               const std::string& longText) {
    w.Text(labelX, label);
    w.Value(ShortCentre + EdgeOffset, shortText);
    w.Value(LongCentre + EdgeOffset, longText);
    w.Step();
}

void PowerPairRow(PageWriter& w, const std::string& before, const std::string& power,
                  const std::string& after, const std::string& shortText,
                  const std::string& longText) {
    double x = w.TextAt(w.page().column2, 0, before);
    x = w.Raised(x, power);
    w.TextAt(x, 0, after);
    w.Value(ShortCentre + EdgeOffset, shortText);
    w.Value(LongCentre + EdgeOffset, longText);
    w.Step();
}

void SingleRow(PageWriter& w, const std::string& label, const std::string& value,
               const std::string& unit) {
    w.Label(label);
    w.Value(SingleValueEdge, value, unit);
    w.Step();
}

void StressRows(PageWriter& w, const ResultsRecord& r, const StressTable& t) {
    Centred(w, (StressCentres[0] + StressCentres[1]) / 2, t.tensionCaption);
    CentredWithinEdge(w, (StressCentres[2] + StressCentres[3]) / 2, t.compressionCaption);
    w.Step();
    const char* heads[] = {"Short", "Long", "Short", "Long"};
    for (int i = 0; i < 4; ++i) {
        Centred(w, StressCentres[i], heads[i]);
    }
    w.Step();
    for (const double centre : StressCentres) {
        Centred(w, centre, "Direction");
    }
    w.Step();
    const auto row = [&w](const std::string& label, const std::string(&values)[4]) {
        w.Label(label);
        w.Value(StressCentres[0] + EdgeOffset, values[0]);
        w.Value(StressCentres[1] + EdgeOffset, values[1]);
        w.Text(SecondLabelX, label);
        w.Value(StressCentres[2] + EdgeOffset, values[2]);
        w.Value(StressCentres[3] + EdgeOffset, values[3]);
        w.Step();
    };
    const std::string allowTension = Formatted(r.AllowTension, "###,##0.000");
    const std::string allowCompression = Formatted(r.AllowCompression / 1000, "###,##0.000");
    row("Allowable Stress", {allowTension, allowTension, allowCompression, allowCompression});
    row("Actual Stress",
        {Formatted(t.tensionShort, "###,##0.000"), Formatted(t.tensionLong, "###,##0.000"),
         Formatted(t.compressionShort, t.compressionPattern),
         Formatted(t.compressionLong, t.compressionPattern)});
}

StressTable ModeStressTable(std::string tensionCaption, std::string compressionCaption,
                            const ModeValues& values, const char* compressionPattern) {
    return {std::move(tensionCaption),
            std::move(compressionCaption),
            values.shortDirection.tension,
            values.longDirection.tension,
            values.shortDirection.compression,
            values.longDirection.compression,
            compressionPattern};
}
