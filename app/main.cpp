// korvath3: the desktop program.

#include "app/main_window.h"
#include "app/qt_user_dialogs.h"
#include "app/splash_screen.h"
#include "common/run_time_error.h"
#include "shell/file_association.h"
#include "shell/lifecycle/project_lifecycle.h"
#include "shell/load_settings.h"
#include "shell/program_folder.h"
#include "shell/qt/ini_settings_store.h"

#include <QApplication>
#include <QMessageBox>
#include <QStringList>
#include <iostream>
#include <memory>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName("Korvath 3.0");
    QApplication::setApplicationVersion("3.0");
    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();
    if (arguments.size() == 1 && arguments.front() == "--version") {
        std::cout << "Korvath 3.0 (Build 100712)\n";
        return 0;
    }

    IniSettingsStore store(SettingsFilePath());
    QtUserDialogs dialogs;
    SystemClock clock;
    ShellServices services{store, dialogs, clock, ProgramFolder().string()};
    Program program;
    std::int16_t showSplash = 1;
    try {
        showSplash = LoadSettings(services, program.settings);
    } catch (const RunTimeError& error) {
        QMessageBox::critical(nullptr, "Korvath Critical Error" + QString::number(error.number()),
                              "A critical error occurred initializing Korvath");
        return 1;
    }

    MainWindow window(program, services,
                      {UserDataFolder(), std::filesystem::path(ProgramFolder()) / "korvath3"});
    dialogs.SetParent(&window);
    const std::string commandLine = arguments.join(' ').toStdString();
    const auto start = [&window, &program, commandLine] {
        window.Place();
        window.Refresh();
        window.show();
        OpenAssociatedProject(program, window.services(), commandLine);
        window.Refresh();
    };
    std::unique_ptr<SplashScreen> splash;
    if (showSplash == 9999) {
        start();
    } else {
        splash = std::make_unique<SplashScreen>(start);
        splash->show();
    }
    return QApplication::exec();
}
