#include "reports/header_fit.h"
#include "reports/page_frame.h"
#include "reports/recording_surface.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace {

// A recording surface that measures as Arial does (the advance widths of its letters, in
// thousandths of the font size; Liberation Sans has the same), so that the header's columns are
// judged as the printer prints them. Heights stay the recording surface's, 23 twips a point.
class ArialRecording : public RecordingSurface {
  public:
    double TextWidth(std::string_view text) override {
        double units = 0;
        for (const char c : text) {
            units += Advance(c);
        }
        return units * Size() * 20 / 1000;
    }
    void SetFontSize(double points) override {
        m_size = points;
        RecordingSurface::SetFontSize(points);
    }
    double Size() const { return m_size; }

    // The width of a placed text as ink: its trailing blanks print nothing.
    static double InkWidth(const RecordedText& placed) {
        std::string ink = placed.text;
        while (!ink.empty() && ink.back() == ' ') {
            ink.pop_back();
        }
        double units = 0;
        for (const char c : ink) {
            units += Advance(c);
        }
        return units * placed.size * 20 / 1000;
    }

  private:
    static double Advance(char c) {
        // The printable ASCII letters from the blank to the tilde.
        static constexpr std::array<int, 95> widths = {
            278,  278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
            556,  556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
            1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
            667,  778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
            333,  556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
            556,  556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};
        const int index = static_cast<unsigned char>(c) - 32;
        return index >= 0 && index < 95 ? widths[static_cast<std::size_t>(index)] : 1000;
    }

    double m_size = 10;
};

struct HeaderSheet {
    ArialRecording surface;
    DesignRecord record;
    ResultsRecord results;
    PageContext page{surface, record, results};

    const std::vector<RecordedText>& Print() {
        surface.BeginDocument();
        PrintHeader(page, 230);
        return surface.sheets().back().texts;
    }
};

// Every text of the header, as a box of its ink, apart from every other, and none past the right
// text edge.
void ExpectHeaderKeepsToItsColumns(const std::vector<RecordedText>& texts) {
    const auto right = [](const RecordedText& t) { return t.x + ArialRecording::InkWidth(t); };
    const auto bottom = [](const RecordedText& t) { return t.y + t.size * 23; };
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const RecordedText& a = texts[i];
        EXPECT_LE(right(a), RightTextEdge) << a.text;
        EXPECT_GE(a.size, SmallestHeaderSize) << a.text;
        for (std::size_t j = i + 1; j < texts.size(); ++j) {
            const RecordedText& b = texts[j];
            const bool apart =
                right(a) <= b.x || right(b) <= a.x || bottom(a) <= b.y || bottom(b) <= a.y;
            EXPECT_TRUE(apart) << "\"" << a.text << "\" runs into \"" << b.text << "\"";
        }
    }
}

const RecordedText* Starting(const std::vector<RecordedText>& texts, const std::string& start) {
    for (const RecordedText& t : texts) {
        if (t.text.rfind(start, 0) == 0) {
            return &t;
        }
    }
    return nullptr;
}

} // namespace

TEST(ReportHeader, TextsOfTheLongestLengthKeepToTheirColumns) {
    // The longest texts the input screen takes: title, date and number 60 characters, engineer,
    // geotechnical firm and report number 30, report date 18; in the widest capital, in a
    // mixed text, and with a digit's width.
    for (const char* letters : {"W", "Geotechnical Engineering Group, GEG ", "8"}) {
        HeaderSheet sheet;
        const auto text = [letters](std::size_t length) {
            std::string filled;
            while (filled.size() < length) {
                filled += letters;
            }
            return filled.substr(0, length);
        };
        DesignRecord& r = sheet.record;
        r.ProjName = text(60);
        r.ProjDate = text(60);
        r.ProjNum = text(60);
        r.ProjEng = text(30);
        r.ProjGeoRep = text(30);
        r.ProjGeoNum = text(30);
        r.ProjGeoDate = text(18);
        SCOPED_TRACE(letters);
        const std::vector<RecordedText>& texts = sheet.Print();
        ExpectHeaderKeepsToItsColumns(texts);

        if (std::string(letters) != "W") {
            continue;
        }
        // Sixty capital Ws do not fit at 10 point: the caption stays at 10 point, the title is
        // printed smaller, and the 60 letter date is cut.
        const RecordedText* caption = Starting(texts, "Project Title :");
        ASSERT_TRUE(caption);
        EXPECT_EQ(caption->size, 10);
        EXPECT_EQ(caption->text, "Project Title :    ");
        const RecordedText* title = Starting(texts, text(60));
        ASSERT_TRUE(title);
        EXPECT_LT(title->size, 10);
        std::size_t cut = 0;
        for (const RecordedText& t : texts) {
            cut += t.text.ends_with(CutMark) && t.x == RightValueColumn ? 1 : 0;
        }
        EXPECT_GE(cut, 2u); // the date and the number
    }
}

TEST(ReportHeader, ShortTextsPrintAsAlwaysAndLongOnesShrinkThenAreCut) {
    HeaderSheet sheet;
    DesignRecord& r = sheet.record;
    r.ProjName = "Lot 14";
    r.ProjEng = "J. Alvarez, P.E.";
    r.ProjNum = "2026-117";
    r.ProjDate = "November 23, 2026";
    r.ProjGeoDate = "September 18, 2026";
    const std::vector<RecordedText>& texts = sheet.Print();
    ExpectHeaderKeepsToItsColumns(texts);
    const RecordedText* title = Starting(texts, "Project Title :    Lot 14");
    ASSERT_TRUE(title);
    EXPECT_EQ(title->size, 10);
    EXPECT_EQ(Starting(texts, "Project Engineer :  J. Alvarez, P.E.")->size, 10);
    const RecordedText* date = Starting(texts, "September 18, 2026");
    ASSERT_TRUE(date);
    EXPECT_EQ(date->size, 10);
    EXPECT_EQ(date->x, 8750);

    // One text alone: "MMMMMMMMMM" is 10 x 833 thousandths of the size wide, 1,666 twips at 10
    // point. In 1,300 twips it fits at 7.5 point (1,249.5; 8 point would take 1,332.8), and
    // stands on the 10 point line's baseline: (230 - 172.5) x 0.81 lower.
    ArialRecording surface;
    surface.BeginDocument();
    DrawFittedText(surface, 1000, 500, 2300, "MMMMMMMMMM");
    ASSERT_EQ(surface.sheets().back().texts.size(), 1u);
    const RecordedText fitted = surface.sheets().back().texts[0];
    EXPECT_EQ(fitted.text, "MMMMMMMMMM");
    EXPECT_EQ(fitted.size, 7.5);
    EXPECT_DOUBLE_EQ(fitted.y, 500 + (230 - 172.5) * 0.81);
    EXPECT_EQ(surface.Size(), 10); // the font is back at 10 point

    // In 550 twips it is cut at 6 point, where a letter takes 99.96 twips and "..." 100.08:
    // four letters and the mark (499.92) fit, five and the mark (599.88) do not.
    DrawFittedText(surface, 1000, 500, 1550, "MMMMMMMMMM");
    const RecordedText cut = surface.sheets().back().texts[1];
    EXPECT_EQ(cut.text, "MMMM...");
    EXPECT_EQ(cut.size, 6);

    // Narrow letters before wide ones: the cut keeps as many as fit, "iiiiiiii" (8 x 222) and
    // "WW" (2 x 944) and the mark (834) thousandths at 6 point, 539.76 twips, in 600; a third W
    // (113.28 more) does not.
    DrawFittedText(surface, 1000, 500, 1600, "iiiiiiiiWWWWWWWWWWWWWWWWWWWW");
    EXPECT_EQ(surface.sheets().back().texts.back().text, "iiiiiiiiWW...");

    // A cut never splits a letter of more than one byte.
    DrawFittedText(surface, 1000, 500, 1300, "\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9\xC3\xA9");
    const std::string accented = surface.sheets().back().texts.back().text;
    EXPECT_EQ(accented.substr(accented.size() - 3), "...");
    EXPECT_EQ((accented.size() - 3) % 2, 0u);
}
