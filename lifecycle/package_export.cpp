#include "lifecycle/package_export.h"

#include "shell/settings_store.h"

#include <filesystem>

namespace {

constexpr std::size_t LongestStoredText = 254;

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string::npos) {
        return {};
    }
    const std::size_t last = text.find_last_not_of(" \t");
    std::string kept = text.substr(first, last - first + 1);
    if (kept.size() > LongestStoredText) {
        kept.resize(LongestStoredText);
        // Never keep half of a character of several bytes.
        while (!kept.empty() && (static_cast<unsigned char>(kept.back()) & 0xC0) == 0x80) {
            kept.pop_back();
        }
        if (!kept.empty() && (static_cast<unsigned char>(kept.back()) & 0x80) != 0) {
            kept.pop_back();
        }
    }
    return kept;
}

} // namespace

bool PackageExportAvailable(const Program& program) {
    return program.project.printEnabled;
}

PackageExportDialog OpenPackageExportDialog(ShellServices& services) {
    PackageExportDialog dialog;
    SettingsKey key;
    if (!OpenSection(services.store, services.dialogs, "Software",
                     SettingsSectionPath(PackageSettingsSection), key)) {
        return dialog;
    }
    QueryValue(services.store, key, "Firm", dialog.firm, "");
    QueryValue(services.store, key, "License", dialog.license, "");
    CloseKey(services.store, key);
    return dialog;
}

PackageExportDialog AcceptPackageExportDialog(ShellServices& services,
                                              const PackageExportDialog& dialog) {
    PackageExportDialog accepted = dialog;
    accepted.firm = Trimmed(dialog.firm);
    accepted.license = Trimmed(dialog.license);
    SettingsKey key;
    if (OpenSection(services.store, services.dialogs, "Software",
                    SettingsSectionPath(PackageSettingsSection), key)) {
        SetValue(services.store, key, "Firm", accepted.firm);
        SetValue(services.store, key, "License", accepted.license);
        CloseKey(services.store, key);
    }
    return accepted;
}

std::string SuggestedPackagePath(const ProjectState& project) {
    if (project.ProjFilePath.empty()) {
        return "Calculation Package.pdf";
    }
    std::filesystem::path path(project.ProjFilePath);
    const std::string stem = path.stem().string();
    return (path.parent_path() / (stem + " - Calculation Package.pdf")).string();
}

bool ProjectFileTracesInput(const ProjectState& project) {
    return !project.ProjFilePath.empty() && project.ProjectChanged == 0;
}

PackageInfo PackageInfoOf(const Program& program, const PackageExportDialog& dialog,
                          const std::string& sha256, const Clock& clock) {
    PackageInfo info;
    info.firm = dialog.firm;
    info.license = dialog.license;
    info.settings = program.settings.options.engineSettings();
    info.trace = {program.project.ProjFileTitle.empty() ? std::string("(not saved)")
                                                        : program.project.ProjFileTitle,
                  ProjectFileTracesInput(program.project)
                      ? sha256
                      : std::string("none: the input on screen is not saved in the project file"),
                  clock.TodayLongDate(), clock.TimeOfDay()};
    return info;
}

void OfferSensitivityPage(PackageExportDialog& dialog, const Program& program) {
    dialog.sensitivityRanges = program.sensitivityRanges;
    dialog.sensitivityPage = !dialog.sensitivityRanges.empty();
}
