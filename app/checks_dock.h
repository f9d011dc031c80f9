#pragma once

#include "output/checks_panel.h"

#include <QDockWidget>
#include <functional>

class QCheckBox;
class QLabel;
class QTableWidget;

// The Checks panel `dckChecks` beside the results: the check table of the last analysis in
// `grdChecks`, sortable by a click on a column's caption, its rows not ok in red, the box
// `chkFailingOnly`. A double click on a row asks `open` to bring up the page of that check. It
// draws the panel's model and hands every event to it.
class ChecksDock : public QDockWidget {
  public:
    ChecksDock(ChecksPanel& panel, std::function<void(std::size_t)> open,
               QWidget* parent = nullptr);

    // Draws the table again from the model; `current` is false while the results are not
    // those of the values on the input pages.
    void Refresh(bool current);

  private:
    ChecksPanel& m_panel;
    std::function<void(std::size_t)> m_open;
    QLabel* m_caption;
    QCheckBox* m_failingOnly;
    QTableWidget* m_table;
    bool m_current = true;
};
