#include "cli/input_check.h"

#include "cli/exit_status.h"
#include "cli/project_loading.h"

#include "input/input_form.h"
#include "input/record_values.h"

#include <nlohmann/json.hpp>

std::optional<InputFault> FindProjectInputFault(const DesignRecord& record) {
    DesignRecord ready = record;
    return FindReadyRecordValueFault(ready);
}

void PrintInputFault(const std::filesystem::path& project, int version, const InputFault& fault,
                     bool json, std::ostream& out, std::ostream& err) {
    // The page's caption as the engineer reads it on the tab, with one ampersand.
    std::string page = PageCaption(fault.tab);
    for (std::size_t at = page.find("&&"); at != std::string::npos; at = page.find("&&", at + 1)) {
        page.erase(at, 1);
    }
    if (json) {
        nlohmann::ordered_json document;
        document["version"] = version;
        document["inputError"] = {{"tab", fault.tab},
                                  {"page", page},
                                  {"control", fault.control},
                                  {"message", fault.message}};
        out << document.dump(2) << '\n';
        return;
    }
    err << "korvath3-cli: " << project.string() << " is not analysed: " << fault.message << " (tab "
        << fault.tab << " \"" << page << "\", " << fault.control << ")\n";
}

std::optional<LoadedProject> LoadCheckedProject(const std::filesystem::path& project,
                                                const DesignRecord& defaults, bool check, bool json,
                                                std::ostream& out, std::ostream& err,
                                                int& failureStatus) {
    CliError failure;
    std::optional<LoadedProject> loaded = LoadProject(project, defaults, err, &failure);
    if (!loaded) {
        if (json) {
            PrintJsonError(failure, out);
        }
        failureStatus = ExitFileError;
        return std::nullopt;
    }
    if (check) {
        if (const std::optional<InputFault> fault = FindProjectInputFault(loaded->record)) {
            PrintInputFault(project, loaded->version, *fault, json, out, err);
            failureStatus = ExitInputError;
            return std::nullopt;
        }
    }
    return loaded;
}
