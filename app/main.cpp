// korvath3: the desktop program.

#include "app/main_window.h"
#include "app/qt_user_dialogs.h"
#include "app/splash_screen.h"
#include "lifecycle/project_lifecycle.h"
#include "shell/file_association.h"
#include "shell/program_folder.h"
#include "shell/qt/settings_file_start.h"

#include <QApplication>
#include <QIcon>
#include <QStringList>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

int main(int argc, char** argv) {
    // The version needs no window, nor a display to put one on.
    if (argc == 2 && std::string(argv[1]) == "--version") {
        std::cout << "Korvath 3.0 (Build 100712)\n";
        return 0;
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName("Korvath 3.0");
    QApplication::setApplicationVersion("3.0");
    // The installed desktop entry and icon, where the desktop knows them.
    QGuiApplication::setDesktopFileName("korvath3");
    QApplication::setWindowIcon(QIcon::fromTheme("korvath3"));
    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();

    QtUserDialogs dialogs;
    SystemClock clock;
    Program program;
    SettingsFileStart settings(dialogs, clock, ProgramFolder().string(), program.settings);
    ShellServices services{settings.store(), dialogs, clock, ProgramFolder().string()};
    const std::int16_t showSplash = settings.showSplash();

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
