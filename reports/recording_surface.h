#pragma once

#include "reports/drawing_surface.h"

#include <string>
#include <vector>

// A drawing surface that keeps what is drawn, sheet by sheet, for the tests and for the command
// line's JSON. Its font metrics are simple and fixed, so that positions can be worked out by
// hand: every character is half the font size wide (size x 10 twips) and a text is 23 twips per
// point high, whatever the font.

struct RecordedText {
    double x = 0;
    double y = 0;
    std::string text;
    std::string font;
    double size = 0;
    bool bold = false;
    bool underline = false;
    Colour colour;
};

struct RecordedLine {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    int width = 1;
    Colour colour;
    LineStyle style = LineStyle::Solid;
};

struct RecordedRectangle {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;
    Colour fill;
};

struct RecordedSheet {
    std::vector<RecordedText> texts;
    std::vector<RecordedLine> lines;
    std::vector<RecordedRectangle> rectangles;
};

class RecordingSurface : public DrawingSurface {
  public:
    void BeginDocument() override;
    void NewPage() override;
    void EndDocument() override;
    void SetFontName(const std::string& name) override { m_font = name; }
    void SetFontSize(double points) override { m_size = points; }
    void SetBold(bool bold) override { m_bold = bold; }
    void SetUnderline(bool underline) override { m_underline = underline; }
    void SetColour(Colour colour) override { m_colour = colour; }
    void SetLineWidth(int width) override { m_lineWidth = width; }
    void SetLineStyle(LineStyle style) override { m_lineStyle = style; }
    double TextWidth(std::string_view text) override;
    double TextHeight(std::string_view text) override;
    void DrawText(double x, double y, std::string_view text) override;
    void DrawLine(double x1, double y1, double x2, double y2) override;
    void FillRectangle(double x, double y, double width, double height, Colour fill) override;
    std::vector<std::string> FontNames() override;
    std::string PrinterName() override { return "Recording"; }
    int PageNumber() override { return static_cast<int>(m_sheets.size()); }

    const std::vector<RecordedSheet>& sheets() const { return m_sheets; }
    bool ended() const { return m_ended; }

  private:
    RecordedSheet& Current();

    std::vector<RecordedSheet> m_sheets;
    bool m_ended = false;
    std::string m_font = "Arial";
    double m_size = 10;
    bool m_bold = false;
    bool m_underline = false;
    Colour m_colour;
    int m_lineWidth = 1;
    LineStyle m_lineStyle = LineStyle::Solid;
};
