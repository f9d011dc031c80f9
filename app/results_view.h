#pragma once

#include "engine/design_record.h"
#include "engine/results_record.h"
#include "output/results_screen.h"

#include <QWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

class QTabWidget;

// The results screen `frmOutput`: `tabMain` with the project page and its clickable summary
// lines, the ribbed foundation with `tabRibbed`, the uniform thickness foundation with
// `tabUniform` and the line load page; each page's rows as caption, values and unit in aligned
// columns, the styled lists with their "Display all" boxes. It mirrors the results model: the
// tab captions and counts as the analysis arranged them, the rows the model shows. A widget
// carries its control's name; a control shown on two pages has a widget on each.
class ResultsView : public QWidget {
  public:
    ResultsView(ResultsScreen& screen, const DesignRecord& record, const ResultsRecord& results,
                QWidget* parent = nullptr);

    // Draws the screen again from the model.
    void Refresh();

    // The widgets of a control, one per page it stands on.
    std::vector<QWidget*> Widgets(const std::string& name) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget* MakePage(const ResultPage& page);
    void FillTabs(QTabWidget* tabs, const TabStrip& strip, const std::function<int(int)>& frameOf,
                  const std::string& array);

    ResultsScreen& m_screen;
    const DesignRecord& m_record;
    const ResultsRecord& m_results;
    std::map<std::string, std::vector<QWidget*>> m_widgets;
    std::map<std::string, QWidget*> m_pages; // by frame
    std::vector<std::pair<const ResultRow*, std::vector<QWidget*>>> m_rows;
    QTabWidget* m_main;
    QTabWidget* m_ribbed;
    QTabWidget* m_uniform;
    bool m_refreshing = false;
};
