#include "output/results_paging.h"

#include "output/results_tabs.h"

#include <vector>

namespace {

// A page of the run: its main tab and, on a tab with a strip of its own, that strip's tab (0
// for none).
struct RunPage {
    int mainTab;
    int innerTab;
};

std::vector<RunPage> PageRun(const ResultsScreen& screen) {
    std::vector<RunPage> run;
    for (int tab = 1; tab <= screen.tabMain.count(); ++tab) {
        const int frame = MainFrameOfTab(screen.tabMain, tab);
        const TabStrip* inner = frame == 1   ? &screen.tabRibbed
                                : frame == 2 ? &screen.tabUniform
                                             : nullptr;
        if (inner == nullptr || inner->count() == 0) {
            run.push_back({tab, 0});
            continue;
        }
        for (int innerTab = 1; innerTab <= inner->count(); ++innerTab) {
            run.push_back({tab, innerTab});
        }
    }
    return run;
}

} // namespace

void StepResultsPage(ResultsScreen& screen, const DesignRecord& record, int step) {
    const std::vector<RunPage> run = PageRun(screen);
    if (run.empty()) {
        return;
    }
    const int mainTab = screen.tabMain.selected;
    const int frame = MainFrameOfTab(screen.tabMain, mainTab);
    const int innerTab = frame == 1   ? screen.tabRibbed.selected
                         : frame == 2 ? screen.tabUniform.selected
                                      : 0;
    int at = 0;
    for (std::size_t i = 0; i < run.size(); ++i) {
        if (run[i].mainTab == mainTab && (run[i].innerTab == innerTab || run[i].innerTab == 0)) {
            at = static_cast<int>(i);
        }
    }
    const int count = static_cast<int>(run.size());
    const RunPage next = run[static_cast<std::size_t>(((at + step) % count + count) % count)];
    SelectMainTab(screen, next.mainTab);
    if (next.innerTab != 0) {
        if (MainFrameOfTab(screen.tabMain, next.mainTab) == 1) {
            SelectRibbedTab(screen, record, next.innerTab);
        } else {
            SelectUniformTab(screen, record, next.innerTab);
        }
    }
}
