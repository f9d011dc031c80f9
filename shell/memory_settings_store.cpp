#include "shell/memory_settings_store.h"

#include "common/run_time_error.h"

void MemorySettingsStore::CreateKey(const std::string& path) {
    if (createKeyError != 0) {
        throw RunTimeError(createKeyError);
    }
    keys[path];
}

std::optional<std::string> MemorySettingsStore::LookUp(const std::string& path,
                                                       const std::string& name) {
    const auto key = keys.find(path);
    if (key == keys.end()) {
        return std::nullopt;
    }
    const auto value = key->second.find(name);
    if (value == key->second.end()) {
        return std::nullopt;
    }
    return value->second;
}

bool MemorySettingsStore::Write(const std::string& path, const std::string& name,
                                const std::string& text) {
    if (refuseWrites) {
        return false;
    }
    keys[path][name] = text;
    return true;
}

bool MemorySettingsStore::Close(const std::string&) {
    return true;
}
