#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The association of project files (.kvt) with the desktop program, written on request: a
// shared-mime-info type "application/x-korvath3-project" ("Korvath3 Document", pattern *.kvt)
// and a desktop entry "korvath3.desktop" that opens such a file with the program.
struct FileAssociation {
    std::filesystem::path mimePackage;  // <data>/mime/packages/korvath3.xml
    std::filesystem::path desktopEntry; // <data>/applications/korvath3.desktop
};

// The user's data folder: $XDG_DATA_HOME, or ~/.local/share.
std::filesystem::path UserDataFolder();

// Writes the two files under `dataFolder` for the program at `program`, each replacing the old
// one whole, then runs "update-mime-database" and "update-desktop-database" on their folders
// when those commands are present. A file that cannot be written throws FileError.
FileAssociation AssociateFileType(const std::filesystem::path& dataFolder,
                                  const std::filesystem::path& program);

// The text of the desktop entry for the program at `program`.
std::string DesktopEntryText(const std::filesystem::path& program);
// The text of the shared-mime-info package of the project type.
std::string MimePackageText();
