#include "output/compliance_pages.h"

#include "compliance/compliance_summaries.h"

#include <stdexcept>
#include <string>

void AddCompliancePages(FormModel& form, std::vector<ResultPage>& pages, LabelCounters& counters) {
    {
        PageBuilder page(form, pages, counters, "fraExpOutput(1)");
        page.Heading("RIBBED FOUNDATION - DESIGN COMPLIANCE");
        page.Check("chkRibbedDC", "Display all");
        page.List("rtbRibbedDC");
    }
    {
        PageBuilder page(form, pages, counters, "fraExpOutput(2)");
        page.Heading("RIBBED FOUNDATION - PTI EXCEPTIONS");
        page.Note("lblRPELabel", ExceptionsHeading);
        page.List("rtbRibbedPE");
    }
    {
        PageBuilder page(form, pages, counters, "fraUTFOutput(1)");
        page.Heading("UNIFORM THICKNESS FOUNDATION - DESIGN COMPLIANCE");
        page.Check("chkUniformDC", "Display all");
        page.List("rtbUniformDC");
    }
    {
        PageBuilder page(form, pages, counters, "fraUTFOutput(2)");
        page.Heading("UNIFORM THICKNESS FOUNDATION - PTI EXCEPTIONS");
        page.Note("lblUTFPELabel", ExceptionsHeading);
        page.List("rtbUTFPE");
    }
}

StyledText& StyledList(ResultsScreen& screen, std::string_view name) {
    if (name == "rtbRibbedDC") {
        return screen.rtbRibbedDC;
    }
    if (name == "rtbRibbedPE") {
        return screen.rtbRibbedPE;
    }
    if (name == "rtbUniformDC") {
        return screen.rtbUniformDC;
    }
    if (name == "rtbUTFPE") {
        return screen.rtbUTFPE;
    }
    if (name == "rtbLLDC") {
        return screen.rtbLLDC;
    }
    throw std::out_of_range("no styled list named " + std::string(name));
}

const StyledText& StyledList(const ResultsScreen& screen, std::string_view name) {
    return StyledList(const_cast<ResultsScreen&>(screen), name);
}

void FillCompliancePages(ResultsScreen& screen, const CompliancePass& pass) {
    screen.rtbRibbedDC = pass.ribbed.box;
    screen.rtbRibbedPE = pass.ribbedExceptions.box;
    if (pass.uniform) {
        screen.rtbUniformDC = pass.uniform->box;
    }
    if (pass.uniformExceptions) {
        screen.rtbUTFPE = pass.uniformExceptions->box;
    }
    if (pass.lineLoad) {
        screen.rtbLLDC = pass.lineLoad->box;
    }
    screen.RibbedOutCount = pass.RibbedOutCount;
    screen.form["chkRibbedDC"].checked = screen.flags.ShowAllRibbed != 0;
    screen.form["chkUniformDC"].checked = screen.flags.ShowAllUniform != 0;
    screen.form["chkRibbedLLDC"].checked = screen.flags.ShowAllLineLoad != 0;
}

void ClickDisplayAll(ResultsScreen& screen, std::string_view box, bool checked,
                     const DesignRecord& record, const ResultsRecord& results) {
    const std::int16_t flag = checked ? 1 : 0;
    screen.form[box].checked = checked;
    if (box == "chkRibbedDC") {
        screen.flags.ShowAllRibbed = flag;
        RibbedCounters unused;
        RibbedCompliance(record, results, unused, flag, screen.rtbRibbedDC);
    } else if (box == "chkUniformDC") {
        screen.flags.ShowAllUniform = flag;
        UniformCounters unused;
        UniformCompliance(record, results, screen.RibbedOutCount, unused, flag,
                          screen.rtbUniformDC);
    } else if (box == "chkRibbedLLDC") {
        screen.flags.ShowAllLineLoad = flag;
        LineLoadCounters unused;
        LineLoadCompliance(record, results, unused, flag, screen.rtbLLDC);
    } else {
        throw std::out_of_range("no Display all box named " + std::string(box));
    }
}
