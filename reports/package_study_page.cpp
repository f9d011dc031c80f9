#include "reports/package_study_page.h"

#include "reports/package_format.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr Colour ContourColour{0, 0, 0};
constexpr Colour AxisColour{0, 0, 0};
constexpr Colour GridColour{170, 170, 170};
constexpr double TickLength = 80;
constexpr double MarkerSize = 110;

// The chart's box on the sheet and the map from the axes' units to twips, y upwards.
struct ChartBox {
    double left, right, top, bottom;
    const SoilStudyChart& chart;

    double x(double value) const {
        const double span = chart.xMax - chart.xMin;
        return span > 0 ? left + (value - chart.xMin) / span * (right - left) : left;
    }
    double y(double value) const {
        const double span = chart.yMax - chart.yMin;
        return span > 0 ? bottom - (value - chart.yMin) / span * (bottom - top) : bottom;
    }
};

void DrawCells(DrawingSurface& surface, const ChartBox& box) {
    for (const StudyCell& cell : box.chart.cells) {
        const double x0 = std::clamp(box.x(cell.x0), box.left, box.right);
        const double x1 = std::clamp(box.x(cell.x1), box.left, box.right);
        const double y0 = std::clamp(box.y(cell.y0), box.top, box.bottom);
        const double y1 = std::clamp(box.y(cell.y1), box.top, box.bottom);
        surface.FillRectangle(std::min(x0, x1), std::min(y0, y1), std::abs(x1 - x0),
                              std::abs(y1 - y0), cell.fill);
    }
}

void DrawContour(DrawingSurface& surface, const ChartBox& box) {
    surface.SetColour(ContourColour);
    surface.SetLineWidth(28);
    surface.SetLineStyle(LineStyle::Solid);
    for (const StudySegment& s : box.chart.contour) {
        surface.DrawLine(box.x(s.x1), box.y(s.y1), box.x(s.x2), box.y(s.y2));
    }
}

void DrawLines(DrawingSurface& surface, const ChartBox& box) {
    const SoilStudyChart& chart = box.chart;
    if (chart.limitLine) {
        surface.SetColour(GridColour);
        surface.SetLineWidth(10);
        surface.SetLineStyle(LineStyle::Dashed);
        surface.DrawLine(box.left, box.y(*chart.limitLine), box.right, box.y(*chart.limitLine));
    }
    surface.SetLineStyle(LineStyle::Solid);
    surface.SetLineWidth(24);
    for (const StudyLine& line : chart.lines) {
        surface.SetColour(line.colour);
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            surface.DrawLine(box.x(line.points[i - 1].first), box.y(line.points[i - 1].second),
                             box.x(line.points[i].first), box.y(line.points[i].second));
        }
    }
}

// The design point: a cross in a square, black on any colour of the map.
void DrawDesign(DrawingSurface& surface, const ChartBox& box) {
    if (!box.chart.design) {
        return;
    }
    const double cx = box.x(box.chart.design->first);
    const double cy = box.y(box.chart.design->second);
    surface.SetColour(Black);
    surface.SetLineWidth(16);
    surface.SetLineStyle(LineStyle::Solid);
    const double h = MarkerSize / 2;
    surface.DrawLine(cx - h, cy - h, cx + h, cy - h);
    surface.DrawLine(cx + h, cy - h, cx + h, cy + h);
    surface.DrawLine(cx + h, cy + h, cx - h, cy + h);
    surface.DrawLine(cx - h, cy + h, cx - h, cy - h);
    surface.DrawLine(cx - h * 2, cy, cx + h * 2, cy);
    surface.DrawLine(cx, cy - h * 2, cx, cy + h * 2);
}

void DrawAxes(PackageWriter& w, const ChartBox& box) {
    DrawingSurface& surface = w.surface();
    surface.SetColour(AxisColour);
    surface.SetLineWidth(8);
    surface.SetLineStyle(LineStyle::Solid);
    surface.DrawLine(box.left, box.top, box.right, box.top);
    surface.DrawLine(box.right, box.top, box.right, box.bottom);
    surface.DrawLine(box.right, box.bottom, box.left, box.bottom);
    surface.DrawLine(box.left, box.bottom, box.left, box.top);
    w.Font(8);
    const double lineHeight = surface.TextHeight("0");
    for (const StudyTick& tick : box.chart.xTicks) {
        const double x = box.x(tick.value);
        surface.SetColour(AxisColour);
        surface.DrawLine(x, box.bottom, x, box.bottom + TickLength);
        surface.DrawText(x - surface.TextWidth(tick.text) / 2, box.bottom + TickLength + 20,
                         tick.text);
    }
    for (const StudyTick& tick : box.chart.yTicks) {
        const double y = box.y(tick.value);
        surface.DrawLine(box.left - TickLength, y, box.left, y);
        surface.DrawText(box.left - TickLength - 60 - surface.TextWidth(tick.text),
                         y - lineHeight / 2, tick.text);
    }
    w.Font(9, true);
    const std::string xTitle = FitText(surface, box.chart.xTitle, box.right - box.left);
    surface.DrawText((box.left + box.right - surface.TextWidth(xTitle)) / 2,
                     box.bottom + TickLength + 60 + lineHeight, xTitle);
    // The vertical axis is named above its top, where a title reads without turning the page.
    surface.DrawText(PackageLeft, box.top - surface.TextHeight("0") - 60,
                     FitText(surface, box.chart.yTitle, box.right - PackageLeft));
}

// A sentence broken at its blanks into lines no wider than `width`; a word longer than a line
// stands on a line of its own, cut short.
std::vector<std::string> WrappedLines(DrawingSurface& surface, const std::string& text,
                                      double width) {
    std::vector<std::string> lines;
    std::string line;
    std::size_t start = 0;
    while (start <= text.size()) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        const std::string word = text.substr(start, end - start);
        const std::string longer = line.empty() ? word : line + " " + word;
        if (!line.empty() && surface.TextWidth(longer) > width) {
            lines.push_back(line);
            line = word;
        } else {
            line = longer;
        }
        start = end + 1;
    }
    if (!line.empty()) {
        lines.push_back(FitText(surface, line, width));
    }
    return lines;
}

// Lines of text down the page, each sentence wrapped to the page's width.
void Paragraphs(PackageWriter& w, const std::vector<std::string>& sentences) {
    const double step = LineStep(9);
    const double width = PackageRight - PackageLeft;
    for (const std::string& sentence : sentences) {
        for (const std::string& line : WrappedLines(w.surface(), sentence, width)) {
            w.Room(step);
            w.Text(PackageLeft, line, width);
            w.Step(step);
        }
    }
}

void DrawStudy(PackageWriter& w, const SoilStudyChart& chart) {
    w.Font(9);
    const double titleRoom = w.surface().TextHeight("0") + 120;
    w.Step(titleRoom);
    const double top = w.y();
    const ChartBox box{StudyChartLeft, StudyChartRight, top, top + StudyChartHeight, chart};
    DrawCells(w.surface(), box);
    DrawContour(w.surface(), box);
    DrawLines(w.surface(), box);
    DrawDesign(w.surface(), box);
    DrawAxes(w, box);
    w.Step(StudyChartHeight + 900);

    w.Font(9);
    Paragraphs(w, chart.key);
    w.Step(LineStep(9) / 2);
    w.Font(10, true);
    w.Room(LineStep(10));
    w.Text(PackageLeft, "Where the design passes", PackageRight - PackageLeft);
    w.Step(LineStep(10));
    w.Font(9);
    Paragraphs(w, chart.summary);
}

} // namespace

PackagePage SoilStudyPage(SoilStudyChart chart) {
    return {"Soil sensitivity",
            [chart = std::move(chart)](PackageWriter& w, const PackageContent&) {
                DrawStudy(w, chart);
            }};
}
