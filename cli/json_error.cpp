#include "cli/json_error.h"

#include <nlohmann/json.hpp>
#include <ostream>

void PrintJsonError(const CliError& error, std::ostream& out) {
    nlohmann::ordered_json document;
    document["error"] = {
        {"number", error.number}, {"message", error.message}, {"path", error.path}};
    out << document.dump(2) << '\n';
}
