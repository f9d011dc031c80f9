#pragma once

#include <string>
#include <string_view>
#include <vector>

// What the report's page procedures draw on: a printer's sheets in twips (1440 to the inch),
// from the top left of the sheet. Text is placed with its top at y, as a printer places it.
// The page procedures set the font and colour and then place texts and lines; a back end puts
// them on paper, in a PDF file or in a record for the tests.

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;

    bool operator==(const Colour&) const = default;
};

inline constexpr Colour Black{0, 0, 0};
inline constexpr Colour Red{255, 0, 0};

// How a line is drawn: solid, or in dashes (the slab tendons of a plan).
enum class LineStyle { Solid, Dashed };

class DrawingSurface {
  public:
    virtual ~DrawingSurface() = default;

    virtual void BeginDocument() = 0;
    // Ends the sheet and starts the next one.
    virtual void NewPage() = 0;
    // Sends the document on: to the printer, into the file.
    virtual void EndDocument() = 0;

    virtual void SetFontName(const std::string& name) = 0;
    virtual void SetFontSize(double points) = 0;
    virtual void SetBold(bool bold) = 0;
    virtual void SetUnderline(bool underline) = 0;
    virtual void SetColour(Colour colour) = 0;
    virtual void SetLineWidth(int width) = 0;
    // Solid until set otherwise.
    virtual void SetLineStyle(LineStyle style) = 0;

    // The size of a text in the current font, in twips.
    virtual double TextWidth(std::string_view text) = 0;
    virtual double TextHeight(std::string_view text) = 0;

    virtual void DrawText(double x, double y, std::string_view text) = 0;
    virtual void DrawLine(double x1, double y1, double x2, double y2) = 0;
    // A rectangle filled with `fill` and without an outline, from its top left corner.
    virtual void FillRectangle(double x, double y, double width, double height, Colour fill) = 0;

    virtual std::vector<std::string> FontNames() = 0;
    virtual std::string PrinterName() = 0;
    // The running number of the sheet being drawn, from 1.
    virtual int PageNumber() = 0;
};
