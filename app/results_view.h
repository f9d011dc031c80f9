#pragma once

#include "output/results_screen.h"

#include <QWidget>

class QTabWidget;

// The results screen `frmOutput`, read only: a tab for each tab of `tabMain`, and within the
// foundations' tabs each of their pages, with the visible rows of the model as caption, values
// and unit, and the styled lists.
class ResultsView : public QWidget {
  public:
    explicit ResultsView(const ResultsScreen& screen, QWidget* parent = nullptr);

    // Draws the screen again from the model, for the record's soil.
    void Refresh(std::int16_t soilType, std::int16_t clSettleState);

  private:
    const ResultsScreen& m_screen;
    QTabWidget* m_tabs;
};

// The visible rows of one page as an HTML table.
QString PageHtml(const ResultsScreen& screen, const std::string& frame);
