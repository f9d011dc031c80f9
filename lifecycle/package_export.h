#pragma once

#include "lifecycle/program.h"
#include "reports/package_document.h"
#include "shell/shell_services.h"

#include <string>
#include <vector>

// File > "Export Calculation Package...": the small dialog for the firm and the license number,
// remembered in a settings group of their own, and the package of the analysis on screen. The
// file dialog, the fonts and the PDF belong to the caller.

// The settings group of the dialog: "Calculation Package", values "Firm" and "License".
inline constexpr const char* PackageSettingsSection = "Calculation Package";

// The dialog's model: what the engineer typed in `txtFirm` and `txtLicense`.
struct PackageExportDialog {
    std::string firm;
    std::string license;
    // The "Soil sensitivity" page (`chkSensitivity`): offered with the ranges of the last soil
    // sensitivity run over the analysis on screen, and then ticked.
    std::vector<std::string> sensitivityRanges;
    bool sensitivityPage = false;
};

// The menu item is there only while an analysis is on screen, as printing is.
bool PackageExportAvailable(const Program& program);

// The dialog as it opens: the firm and the license of the last export, empty the first time.
PackageExportDialog OpenPackageExportDialog(ShellServices& services);

// Offers the soil sensitivity page when a run has been made over the analysis on screen, ticked;
// otherwise the page is neither offered nor ticked.
void OfferSensitivityPage(PackageExportDialog& dialog, const Program& program);

// OK: the texts without the blanks around them, each kept to the 254 characters the settings
// store holds, written back to the settings group for the next export. Gives the dialog as
// accepted.
PackageExportDialog AcceptPackageExportDialog(ShellServices& services,
                                              const PackageExportDialog& dialog);

// The PDF's name the file dialog offers: the project's name with " - Calculation Package.pdf",
// beside the project; "Calculation Package.pdf" for a project never saved.
std::string SuggestedPackagePath(const ProjectState& project);

// Whether the project file on disk holds the input on screen, so that its SHA-256 traces the
// package: it has been saved and not changed since.
bool ProjectFileTracesInput(const ProjectState& project);

// What the package says of the program and the run, over the analysis on screen: the options it
// ran with, the firm and license of the dialog, the project's file name, its SHA-256 (worked out
// by the caller, when the file traces the input) and the date and time of the export. Without a
// file that traces the input the SHA-256 line says so instead.
PackageInfo PackageInfoOf(const Program& program, const PackageExportDialog& dialog,
                          const std::string& sha256, const Clock& clock);
