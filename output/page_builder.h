#pragma once

#include "output/results_layout.h"

#include <cstddef>
#include <string>
#include <vector>

// Numbers the fixed labels of the whole screen as it is built: captions, units, headings and
// column heads are control arrays ("lblCaption(12)"), numbered in the order of the pages.
struct LabelCounters {
    int captions = 0;
    int units = 0;
    int headings = 0;
    int columns = 0;
};

// Adds the controls of one page in reading order and sets out its rows. A value control is added
// the first time a row names it; later rows on other pages place the same control.
class PageBuilder {
  public:
    PageBuilder(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters,
                std::string frame);

    void Heading(const std::string& text);
    void Columns(const std::string& first = "Short Direction",
                 const std::string& second = "Long Direction");
    // A row under a fixed caption.
    void Row(const std::string& caption, const std::vector<std::string>& values,
             const std::string& unit = {});
    // A row whose value is a text (a name, a date, a number with its unit written after it).
    void TextRow(const std::string& caption, const std::string& value);
    // A row whose caption is a named control that the results change (`lblSlab(0)`).
    void NamedRow(const std::string& captionControl, const std::string& caption,
                  const std::vector<std::string>& values, const std::string& unit = {});
    // A label that is a line of its own (`lblUseBeta(0)`, `lblBeamOnly`).
    void Note(const std::string& name, const std::string& text = {});
    // A styled list of the screen, and a check box with its caption.
    void List(const std::string& name);
    void Check(const std::string& name, const std::string& caption);
    // Rows after this call stand in the named panel, which is added here with its caption as the
    // heading of its first row; an empty name ends the panel.
    void Panel(const std::string& name, const std::string& caption = {});

  private:
    Control& Label(const std::string& name, const std::string& text);
    std::string Unit(const std::string& unit);
    void Place(ResultRow row);

    ResultPage& Page() { return m_pages[m_pageIndex]; }
    std::string Frame() const { return m_pages[m_pageIndex].frame; }

    FormModel& m_form;
    std::vector<ResultPage>& m_pages;
    std::size_t m_pageIndex; // an index, so that a builder of a later page leaves it valid
    LabelCounters& m_counters;
    std::string m_panel;
};

// The label control of a value, added to the form the first time it is named.
void AddValueLabel(FormModel& form, const std::string& name, const std::string& parent);
