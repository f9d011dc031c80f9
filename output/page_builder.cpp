#include "output/page_builder.h"

void AddValueLabel(FormModel& form, const std::string& name, const std::string& parent) {
    if (form.has(name)) {
        return;
    }
    Control control;
    control.name = name;
    control.parent = parent;
    control.tabStop = false;
    form.add(std::move(control));
}

PageBuilder::PageBuilder(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters,
                         std::string frame)
    : m_form(form), m_pages(pages), m_pageIndex(pages.size()), m_counters(counters) {
    pages.push_back(ResultPage{std::move(frame), {}});
}

Control& PageBuilder::Label(const std::string& name, const std::string& text) {
    Control control;
    control.name = name;
    control.parent = m_panel.empty() ? Frame() : m_panel;
    control.caption = text;
    control.tabStop = false;
    return m_form.add(std::move(control));
}

std::string PageBuilder::Unit(const std::string& unit) {
    if (unit.empty()) {
        return {};
    }
    const std::string name = ArrayName("lblUnit", m_counters.units++);
    Label(name, unit);
    return name;
}

void PageBuilder::Place(ResultRow row) {
    row.frame = m_panel;
    for (const std::string& value : row.values) {
        AddValueLabel(m_form, value, m_panel.empty() ? Frame() : m_panel);
    }
    Page().rows.push_back(std::move(row));
}

void PageBuilder::Heading(const std::string& text) {
    const std::string name = ArrayName("lblHeading", m_counters.headings++);
    Label(name, text);
    Place({RowKind::Heading, name, {}, {}, {}});
}

void PageBuilder::Columns(const std::string& first, const std::string& second) {
    // The heads stand over the value columns; the row's caption is an empty label of its own.
    const std::string caption = ArrayName("lblCaption", m_counters.captions++);
    Label(caption, "");
    std::vector<std::string> heads;
    for (const std::string& text : {first, second}) {
        heads.push_back(ArrayName("lblColumn", m_counters.columns++));
        Label(heads.back(), text);
    }
    Place({RowKind::Columns, caption, heads, {}, {}});
}

void PageBuilder::Row(const std::string& caption, const std::vector<std::string>& values,
                      const std::string& unit) {
    const std::string name = ArrayName("lblCaption", m_counters.captions++);
    Label(name, caption);
    Place({RowKind::Value, name, values, Unit(unit), {}});
}

void PageBuilder::TextRow(const std::string& caption, const std::string& value) {
    const std::string name = ArrayName("lblCaption", m_counters.captions++);
    Label(name, caption);
    ResultRow row{RowKind::Value, name, {value}, {}, {}};
    row.text = true;
    Place(std::move(row));
}

void PageBuilder::NamedRow(const std::string& captionControl, const std::string& caption,
                           const std::vector<std::string>& values, const std::string& unit) {
    if (!m_form.has(captionControl)) {
        Label(captionControl, caption);
    }
    Place({RowKind::Value, captionControl, values, Unit(unit), {}});
}

void PageBuilder::Note(const std::string& name, const std::string& text) {
    if (!m_form.has(name)) {
        Label(name, text);
    }
    Place({RowKind::Note, name, {}, {}, {}});
}

void PageBuilder::Panel(const std::string& name, const std::string& caption) {
    m_panel.clear();
    if (name.empty()) {
        return;
    }
    Label(name, caption);
    m_panel = name;
    // The panel's caption is its title, the first row inside it: it shows and hides with it.
    Place({RowKind::Heading, name, {}, {}, {}});
}

void PageBuilder::List(const std::string& name) {
    Label(name, "");
    Place({RowKind::List, name, {}, {}, {}});
}

void PageBuilder::Check(const std::string& name, const std::string& caption) {
    Control& box = Label(name, caption);
    box.tabStop = true;
    Place({RowKind::Check, name, {}, {}, {}});
}
