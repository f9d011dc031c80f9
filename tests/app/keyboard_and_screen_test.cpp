// What an engineer found in use: typing after an input check, number boxes, the keyboard's way
// through the pages and option groups, the menus' access keys, the toolbar's disabled look and
// the width of the input screen, on a window of 1280 by 800.

#include "app/main_window.h"
#include "app/qt_user_dialogs.h"
#include "app/results_view.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/load_settings.h"

#include "tests/shell/shell_test_support.h"
#include "tests/test_files.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QTreeView>
#include <gtest/gtest.h>
#include <set>

namespace {

struct Desktop {
    ScratchFolder scratch;
    ShellFixture shell;
    Program program;
    MainWindow window{program, shell.services, {scratch.path() / "share", "korvath3"}};

    explicit Desktop(const std::string& example) {
        LoadSettings(shell.services, program.settings);
        window.resize(1280, 800);
        window.show();
        const auto copy = scratch.path() / (example + ".kvt");
        std::filesystem::copy_file(
            std::filesystem::path(K3_SOURCE_DIR) / "examples" / (example + ".kvt"), copy);
        OpenRecentProject(program, shell.services, copy.string());
        window.Refresh();
        QApplication::processEvents();
    }

    template <typename Widget> Widget* Find(const char* name) {
        Widget* widget = window.findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }

    // Types over the whole text of a box, as after selecting it all.
    void TypeOver(QLineEdit* box, const char* text) {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, text);
    }
};

} // namespace

TEST(FoundInUse, TypingAfterAnInputCheckEditsTheTextItSelected) {
    Desktop d("expansive_ribbed");
    auto* strength = d.Find<QLineEdit>("txtFpc");
    d.TypeOver(strength, "0");
    d.window.Action("mnuAnalysis")->trigger();
    ASSERT_FALSE(d.shell.dialogs.messages.empty());
    EXPECT_EQ(d.shell.dialogs.messages.back().text,
              "Concrete Compressive Strength can not be zero");
    ASSERT_EQ(QApplication::focusWidget(), strength);
    EXPECT_EQ(strength->selectedText(), "0");
    QTest::keyClicks(QApplication::focusWidget(), "3500");
    EXPECT_EQ(strength->text(), "3500");

    // A beam depth typed as 26 is 26, not 6.
    auto* depth = d.Find<QLineEdit>("txtDS1");
    d.TypeOver(depth, "4");
    d.window.Action("mnuAnalysis")->trigger();
    EXPECT_EQ(d.shell.dialogs.messages.back().text,
              "Depth of Type 1 Beams in the short direction must be greater than slab thickness");
    ASSERT_EQ(QApplication::focusWidget(), depth);
    QTest::keyClicks(depth, "26");
    EXPECT_EQ(depth->text(), "26");
    d.window.Action("mnuAnalysis")->trigger();
    EXPECT_TRUE(d.program.output.visible);
    EXPECT_EQ(d.program.record.DS1, 26);
}

TEST(FoundInUse, ANumberBoxRefusesASecondPoint) {
    Desktop d("expansive_ribbed");
    auto* depth = d.Find<QLineEdit>("txtDS1");
    d.TypeOver(depth, "4.5.5");
    EXPECT_EQ(depth->text(), "4.55");
    auto* name = d.Find<QLineEdit>("txtProjName");
    d.TypeOver(name, "Lot 4.5.5");
    EXPECT_EQ(name->text(), "Lot 4.5.5");
    // A paste of words into a number box is refused as a whole.
    depth->selectAll();
    depth->insert("twenty");
    EXPECT_EQ(depth->text(), "4.55");
}

TEST(FoundInUse, KeyboardReachesEveryPageAndOptionThroughItsOwnKeys) {
    Desktop d("expansive_ribbed");
    auto* tabs = d.Find<QTabWidget>("tabInput");
    auto* name = d.Find<QLineEdit>("txtProjName");
    name->setFocus();
    QTest::keyClick(name, Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    EXPECT_EQ(d.program.input.CurrentInputTab, 2);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 6); // round from the first page to the last

    // Of the tendon sizes only the chosen one is a tab stop; the arrows choose another.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(tabs->currentIndex(), 1);
    ASSERT_EQ(d.program.record.TendType, 2);
    for (int i = 0; i < 4; ++i) {
        auto* button = d.Find<QRadioButton>(("optTendType(" + std::to_string(i) + ")").c_str());
        EXPECT_EQ(button->focusPolicy() == Qt::StrongFocus, i == 2) << i;
    }
    auto* half = d.Find<QRadioButton>("optTendType(2)");
    half->setFocus(Qt::TabFocusReason);
    QTest::keyClick(half, Qt::Key_Down);
    EXPECT_TRUE(d.program.input.form["optTendType(3)"].checked);
    EXPECT_TRUE(d.Find<QLineEdit>("txtTendArea")->isEnabled());
    EXPECT_EQ(d.Find<QRadioButton>("optTendType(3)")->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(half->focusPolicy(), Qt::ClickFocus);
}

TEST(FoundInUse, EveryMenuItemHasAnAccessKeyOfItsOwn) {
    Desktop d("expansive_ribbed");
    std::vector<QMenu*> menus;
    for (QAction* top : d.window.menuBar()->actions()) {
        menus.push_back(top->menu());
    }
    for (std::size_t m = 0; m < menus.size(); ++m) {
        for (QAction* item : menus[m]->actions()) {
            if (item->menu() != nullptr) {
                menus.push_back(item->menu());
            }
        }
    }
    for (QMenu* menu : menus) {
        std::set<QChar> keys;
        for (QAction* item : menu->actions()) {
            if (item->isSeparator() || !item->isVisible()) {
                continue;
            }
            const QString text = item->text();
            const qsizetype amp = text.indexOf('&');
            ASSERT_GE(amp, 0) << text.toStdString();
            ASSERT_LT(amp + 1, text.size()) << text.toStdString();
            EXPECT_TRUE(keys.insert(text.at(amp + 1).toLower()).second)
                << menu->title().toStdString() << ": " << text.toStdString();
        }
    }
    EXPECT_EQ(d.window.Action("mnuOptions")->text(), "Op&tions ...");
}

TEST(FoundInUse, DisabledToolbarButtonsAreGreyedAndTheInputScreenFits) {
    Desktop d("expansive_ribbed");
    QToolButton* print = d.window.ToolbarButton("Print");
    ASSERT_FALSE(print->isEnabled());
    const QSize size = print->iconSize();
    const QImage normal = print->icon().pixmap(size, QIcon::Normal).toImage();
    const QImage disabled = print->icon().pixmap(size, QIcon::Disabled).toImage();
    ASSERT_EQ(normal.size(), disabled.size());
    int coloured = 0;
    int ink = 0;
    for (int y = 0; y < disabled.height(); ++y) {
        for (int x = 0; x < disabled.width(); ++x) {
            const QColor grey = disabled.pixelColor(x, y);
            const QColor colour = normal.pixelColor(x, y);
            coloured += colour.red() != colour.green() || colour.green() != colour.blue() ? 1 : 0;
            if (grey.alpha() > 0) {
                EXPECT_TRUE(grey.red() == grey.green() && grey.green() == grey.blue());
                EXPECT_LE(grey.alpha(), colour.alpha() / 2 + 1);
                EXPECT_GE(grey.red(), 150); // pale
                ++ink;
            }
        }
    }
    EXPECT_GT(ink, 0);
    EXPECT_GT(coloured, 0); // the enabled icon has its colours

    // The text boxes of names show 40 characters; the seven page captions stand in full.
    auto* name = d.Find<QLineEdit>("txtProjName");
    EXPECT_GE(name->width(), name->fontMetrics().averageCharWidth() * 40);
    EXPECT_GE(d.Find<QLineEdit>("txtProjEng")->width(), name->width());
    EXPECT_GE(d.Find<QLineEdit>("txtProjGeoRep")->width(), name->width());
    auto* tabs = d.Find<QTabWidget>("tabInput");
    EXPECT_LE(tabs->tabBar()->sizeHint().width(), tabs->width());
    EXPECT_LE(d.window.minimumSizeHint().width(), 1280);
    EXPECT_LE(d.window.minimumSizeHint().height(), 800);
}

TEST(FoundInUse, FileDialogsShowTheNameSizeAndDateColumnsInFull) {
    QFileDialog dialog(nullptr, "Open Project ...", QString(K3_SOURCE_DIR) + "/examples",
                       "Projects (*.kvt)");
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    PrepareFileDialog(dialog);
    dialog.show();
    auto* files = dialog.findChild<QTreeView*>("treeView");
    ASSERT_TRUE(files);
    // The folder is read in the background: wait until its three projects are listed.
    static_cast<void>(
        QTest::qWaitFor([&] { return files->model()->rowCount(files->rootIndex()) >= 3; }, 30000));
    ASSERT_EQ(files->model()->rowCount(files->rootIndex()), 3);
    QApplication::processEvents();
    EXPECT_GE(dialog.width(), 900);
    EXPECT_LE(dialog.width(), 1280);
    EXPECT_LE(dialog.height(), 800);
    QHeaderView* header = files->header();
    for (int column = 0; column < header->count(); ++column) {
        if (header->isSectionHidden(column)) {
            continue;
        }
        // Every entry of the column, and its heading, stands in full.
        const QAbstractItemModel* model = files->model();
        for (int row = 0; row < model->rowCount(files->rootIndex()); ++row) {
            const QString text = model->index(row, column, files->rootIndex()).data().toString();
            EXPECT_GE(header->sectionSize(column), files->fontMetrics().horizontalAdvance(text))
                << text.toStdString();
        }
    }
    dialog.close();
}

namespace {

// The tab stops of a window that are shown and enabled, by their class and name, whose focus the
// style does not draw and no style sheet marks.
std::vector<std::string> TabStopsWithoutVisibleFocus(QWidget* window) {
    const std::set<std::string> drawn = {"QLineEdit",   "QCheckBox", "QRadioButton",
                                         "QPushButton", "QComboBox", "QTabBar"};
    std::vector<std::string> hidden;
    QWidget* widget = window;
    do {
        widget = widget->nextInFocusChain();
        const bool stop = (widget->focusPolicy() & Qt::TabFocus) != 0 && widget->isVisible() &&
                          widget->isEnabled() && widget->focusProxy() == nullptr;
        const std::string kind = widget->metaObject()->className();
        if (stop && drawn.count(kind) == 0 && !widget->styleSheet().contains(":focus")) {
            hidden.push_back(kind + " " + widget->objectName().toStdString());
        }
    } while (widget != window);
    return hidden;
}

} // namespace

TEST(FoundInUse, EveryTabStopShowsWhereTheFocusIs) {
    Desktop d("compressible_edge_down");
    for (int page = 0; page < 7; ++page) {
        d.Find<QTabWidget>("tabInput")->setCurrentIndex(page);
        QApplication::processEvents();
        EXPECT_EQ(TabStopsWithoutVisibleFocus(&d.window), std::vector<std::string>{})
            << "input page " << page + 1;
    }
    d.window.Action("mnuAnalysis")->trigger();
    QApplication::processEvents();
    ASSERT_TRUE(d.program.output.visible);
    for (int step = 0; step < 9; ++step) {
        EXPECT_EQ(TabStopsWithoutVisibleFocus(&d.window), std::vector<std::string>{})
            << "results page " << step + 1;
        QTest::keyClick(d.window.resultsView(), Qt::Key_PageDown, Qt::ControlModifier);
    }
}
