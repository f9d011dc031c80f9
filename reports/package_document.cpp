#include "reports/package_document.h"

#include "reports/package_format.h"
#include "reports/recording_surface.h"

#include <algorithm>

namespace {

constexpr double HeaderY = 620;
constexpr double HeaderRuleY = 920;
constexpr double TitleY = 1040;
constexpr double FooterRuleY = 14940;
constexpr double FooterY = 15020;

} // namespace

PackageWriter::PackageWriter(DrawingSurface& surface, const PackageContent& content,
                             int totalSheets)
    : m_surface(surface), m_content(content), m_total(totalSheets) {}

void PackageWriter::Font(double points, bool bold, Colour colour) {
    m_surface.SetFontName(m_content.info.fontName);
    m_surface.SetFontSize(points);
    m_surface.SetBold(bold);
    m_surface.SetUnderline(false);
    m_surface.SetColour(colour);
}

void PackageWriter::Text(double x, const std::string& text, double width) {
    const std::string fitted = FitText(m_surface, text, width);
    if (!fitted.empty()) {
        m_surface.DrawText(x, m_y, fitted);
    }
}

void PackageWriter::TextRight(double right, const std::string& text) {
    m_surface.DrawText(right - m_surface.TextWidth(text), m_y, text);
}

void PackageWriter::Rule(double x1, double x2, int width) {
    m_surface.SetColour(Black);
    m_surface.SetLineWidth(width);
    m_surface.SetLineStyle(LineStyle::Solid);
    m_surface.DrawLine(x1, m_y, x2, m_y);
}

void PackageWriter::Header() {
    const DesignRecord& record = m_content.record;
    const double third = (PackageRight - PackageLeft) / 3;
    Font(9, true);
    m_surface.DrawText(PackageLeft, HeaderY,
                       FitText(m_surface, record.ProjName, third * 1.4 - 120));
    Font(9);
    const std::string number = "Project No. " + record.ProjNum;
    const std::string fitted = FitText(m_surface, number, third * 0.9 - 120);
    m_surface.DrawText(PackageLeft + third * 1.4, HeaderY, fitted);
    Font(9, true);
    const std::string kind = "Calculation package";
    m_surface.DrawText(PackageRight - m_surface.TextWidth(kind), HeaderY, kind);
    m_surface.SetLineWidth(6);
    m_surface.SetLineStyle(LineStyle::Solid);
    m_surface.DrawLine(PackageLeft, HeaderRuleY, PackageRight, HeaderRuleY);
}

void PackageWriter::Footer() {
    const PackageTrace& trace = m_content.info.trace;
    m_surface.SetColour(Black);
    m_surface.SetLineWidth(4);
    m_surface.SetLineStyle(LineStyle::Solid);
    m_surface.DrawLine(PackageLeft, FooterRuleY, PackageRight, FooterRuleY);
    Font(8);
    const double third = (PackageRight - PackageLeft) / 3;
    m_surface.DrawText(PackageLeft, FooterY, FitText(m_surface, trace.fileName, third - 120));
    const std::string page =
        "Page " + std::to_string(m_sheet) + " of " + std::to_string(std::max(m_total, m_sheet));
    m_surface.DrawText((PackageLeft + PackageRight - m_surface.TextWidth(page)) / 2, FooterY, page);
    const std::string date = FitText(m_surface, trace.runDate, third - 120);
    m_surface.DrawText(PackageRight - m_surface.TextWidth(date), FooterY, date);
}

void PackageWriter::Title(const std::string& title) {
    Font(13, true);
    m_surface.DrawText(PackageLeft, TitleY, FitText(m_surface, title, PackageRight - PackageLeft));
    m_y = PackageBodyTop;
}

void PackageWriter::BeginPage(const std::string& title) {
    if (m_sheet > 0) {
        Footer();
        m_surface.NewPage();
    }
    ++m_sheet;
    m_title = title;
    Header();
    Title(title);
}

void PackageWriter::Room(double height) {
    if (m_y + height <= PackageBodyBottom || m_y <= PackageBodyTop) {
        return;
    }
    Footer();
    m_surface.NewPage();
    ++m_sheet;
    Header();
    Title(m_title + " (continued)");
}

void PackageWriter::Finish() {
    if (m_sheet > 0) {
        Footer();
    }
}

VerdictCounts CountVerdict(std::span<const DesignCheck> checks, Foundation foundation) {
    VerdictCounts counts;
    for (const DesignCheck& check : checks) {
        if (check.foundation != foundation || check.status == CheckStatus::Ok) {
            continue;
        }
        if (check.mode == CheckMode::Rules) {
            ++counts.brokenRules;
        } else {
            ++counts.failingChecks;
        }
    }
    return counts;
}

std::vector<PackagePage> PackagePages(const PackageContent& content) {
    if (content.fault) {
        return {{"Calculation package", DrawPackageFault}};
    }
    std::vector<PackagePage> pages{
        {"Calculation package", DrawPackageCover},
        {"Design basis and input", DrawPackageInputs},
        {"Foundation plan and typical sections", DrawPackagePlan},
        {"Design checks", DrawPackageChecks},
        {"Key results", DrawPackageResults},
    };
    if (content.record.LineLoadType == 1) {
        pages.push_back({"Line load", DrawPackageLineLoad});
    }
    return pages;
}

std::size_t StudyPagePlace(const std::vector<PackagePage>& pages) {
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].title == "Key results") {
            return i + 1;
        }
    }
    return pages.size();
}

namespace {

int DrawPages(DrawingSurface& surface, const PackageContent& content,
              const std::vector<PackagePage>& pages, int totalSheets) {
    PackageWriter writer(surface, content, totalSheets);
    for (const PackagePage& page : pages) {
        writer.BeginPage(page.title);
        page.draw(writer, content);
    }
    writer.Finish();
    return writer.sheets();
}

} // namespace

int DrawPackage(DrawingSurface& surface, const PackageContent& content,
                const std::vector<PackagePage>& pages) {
    // The sheets a page takes depend on its rows only, never on the widths of its texts, so a
    // run on the recording surface counts them for any back end.
    RecordingSurface counting;
    counting.BeginDocument();
    const int total = DrawPages(counting, content, pages, 0);
    surface.BeginDocument();
    const int drawn = DrawPages(surface, content, pages, total);
    surface.EndDocument();
    return drawn;
}
