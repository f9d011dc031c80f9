// The printed report as a reader of the PDF sees it: no two words of a page on top of each
// other, none past the right text edge. The words and their boxes come from pdftotext, which
// measures each word by its font's full height, so a power or a subscript that reaches into the
// line above or below, or a header text that runs into its neighbour, shows as two boxes that
// intersect.

#include "tests/cli/cli_test_support.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <regex>
#include <sys/wait.h>
#include <vector>

namespace {

struct Word {
    double xMin, yMin, xMax, yMax;
    std::string text;
};

std::string Run(const std::string& command, int& status) {
    FILE* pipe = popen((command + " 2>&1").c_str(), "r");
    std::string out;
    char buffer[4096];
    while (std::size_t n = std::fread(buffer, 1, sizeof buffer, pipe)) {
        out.append(buffer, n);
    }
    const int code = pclose(pipe);
    status = WIFEXITED(code) ? WEXITSTATUS(code) : -1;
    return out;
}

// The words of each page of a PDF, in points from the top left.
std::vector<std::vector<Word>> PageWords(const std::filesystem::path& pdf) {
    int status = 0;
    const std::string xhtml = Run("pdftotext -bbox '" + pdf.string() + "' -", status);
    EXPECT_EQ(status, 0) << xhtml;
    std::vector<std::vector<Word>> pages;
    const std::regex word(
        "<word xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\" xMax=\"([0-9.]+)\" yMax=\"([0-9.]+)\">"
        "([^<]*)</word>");
    std::size_t at = 0;
    while ((at = xhtml.find("<page ", at)) != std::string::npos) {
        const std::size_t end = xhtml.find("</page>", at);
        const std::string page = xhtml.substr(at, end - at);
        std::vector<Word> words;
        for (auto it = std::sregex_iterator(page.begin(), page.end(), word);
             it != std::sregex_iterator(); ++it) {
            words.push_back({std::stod((*it)[1]), std::stod((*it)[2]), std::stod((*it)[3]),
                             std::stod((*it)[4]), (*it)[5]});
        }
        pages.push_back(std::move(words));
        at = end;
    }
    return pages;
}

// The report of a project as a PDF written into `folder`, checked page by page; the header's
// texts end at the right text edge at the latest. Lines of text follow each other at
// the height of the font, so neighbouring lines may touch; an overlap of less than a twentieth
// of a point is touching.
void ExpectNoWordsIntersect(const std::filesystem::path& project, std::size_t sheets,
                            const std::filesystem::path& folder) {
    const auto pdf = folder / "report.pdf";
    int status = 0;
    const std::string out = Run("KORVATH3_SETTINGS='" + (folder / "k.conf").string() + "' " +
                                    std::string(K3_BINARY_DIR) + "/bin/korvath3-cli report '" +
                                    project.string() + "' --range entire -o '" + pdf.string() + "'",
                                status);
    ASSERT_EQ(status, 0) << out;
    const std::vector<std::vector<Word>> pages = PageWords(pdf);
    ASSERT_EQ(pages.size(), sheets);
    constexpr double Touch = 0.05;
    constexpr double RightTextEdge = 10580.0 / 20; // in points
    constexpr double BodyTop = 3322.0 / 20;        // below the header
    for (std::size_t p = 0; p < pages.size(); ++p) {
        const std::vector<Word>& words = pages[p];
        EXPECT_GT(words.size(), 20u) << "page " << p + 1;
        for (std::size_t i = 0; i < words.size(); ++i) {
            const Word& a = words[i];
            if (a.yMax < BodyTop && a.xMax > RightTextEdge + Touch) {
                ADD_FAILURE() << "page " << p + 1 << ": \"" << a.text << "\" ends at " << a.xMax;
            }
            for (std::size_t j = i + 1; j < words.size(); ++j) {
                const Word& b = words[j];
                const double across = std::min(a.xMax, b.xMax) - std::max(a.xMin, b.xMin);
                const double down = std::min(a.yMax, b.yMax) - std::max(a.yMin, b.yMin);
                if (across > Touch && down > Touch) {
                    ADD_FAILURE() << "page " << p + 1 << ": \"" << a.text << "\" and \"" << b.text
                                  << "\"";
                }
            }
        }
    }
}

} // namespace

TEST(ReportWords, NoTwoWordsOfTheExamplesEntireReportsIntersect) {
    ScratchFolder scratch;
    ExpectNoWordsIntersect(ExamplePath("expansive_ribbed.kvt"), 8, scratch.path());
    ExpectNoWordsIntersect(ExamplePath("compressible_edge_down.kvt"), 8, scratch.path());
    ExpectNoWordsIntersect(ExamplePath("uniform_line_load.kvt"), 13, scratch.path());
}

TEST(ReportWords, HeaderTextsOfTheLongestLengthStayApart) {
    // Title, date and number 60 characters, engineer, firm and report number 30, report date 18.
    std::string bytes = FileBytes(ExamplePath("expansive_ribbed.kvt"));
    const std::string sixty(60, 'W');
    const std::string thirty = "Geotechnical Consultants Group";
    bytes = withLine(bytes, 2, "Meadowbrook Residence, Lot 14, Phase 2, Building C, Unit 12");
    bytes = withLine(bytes, 3, sixty);
    bytes = withLine(bytes, 4, "2026-117-A-REV-4-" + std::string(43, 'M'));
    bytes = withLine(bytes, 5, "Jonathan Alexander Alvarez, PE");
    bytes = withLine(bytes, 6, thirty);
    bytes = withLine(bytes, 7, std::string(30, 'W'));
    bytes = withLine(bytes, 8, "September 30, 2026");
    ScratchFolder scratch;
    const auto project = scratch.path() / "long.kvt";
    WriteBytes(project, bytes);
    ExpectNoWordsIntersect(project, 8, scratch.path());
}
