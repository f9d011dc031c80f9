#include "output/results_layout.h"

#include <stdexcept>

const ResultPage& PageOfFrame(const std::vector<ResultPage>& pages, const std::string& frame) {
    for (const ResultPage& page : pages) {
        if (page.frame == frame) {
            return page;
        }
    }
    throw std::out_of_range("no results page in frame " + frame);
}

bool IsRowShown(const FormModel& form, const ResultRow& row) {
    if (!form[row.caption].visible) {
        return false;
    }
    return row.frame.empty() || form[row.frame].visible;
}
