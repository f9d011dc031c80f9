#include "shell/qt/ini_settings_store.h"

#include <QSettings>
#include <QString>
#include <QStringList>
#include <cstdlib>

namespace {

// The group of a key: the section's name, the last part of its path.
QString GroupOf(const std::string& path) {
    const std::size_t separator = path.rfind('\\');
    return QString::fromStdString(separator == std::string::npos ? path
                                                                 : path.substr(separator + 1));
}

QString ValueKey(const std::string& path, const std::string& name) {
    return GroupOf(path) + "/" + QString::fromStdString(name);
}

} // namespace

IniSettingsStore::IniSettingsStore(const std::filesystem::path& file)
    : m_settings(std::make_unique<QSettings>(QString::fromStdString(file.string()),
                                             QSettings::IniFormat)) {}

IniSettingsStore::~IniSettingsStore() = default;

void IniSettingsStore::CreateKey(const std::string&) {
    // A group comes into being with its first value; an INI file has no empty keys to create.
}

std::optional<std::string> IniSettingsStore::LookUp(const std::string& path,
                                                    const std::string& name) {
    const QVariant value = m_settings->value(ValueKey(path, name));
    if (!value.isValid()) {
        return std::nullopt;
    }
    // A text with commas written by hand without quotation marks reads as a list.
    if (value.userType() == QMetaType::QStringList) {
        return value.toStringList().join(", ").toStdString();
    }
    return value.toString().toStdString();
}

bool IniSettingsStore::Write(const std::string& path, const std::string& name,
                             const std::string& text) {
    m_settings->setValue(ValueKey(path, name), QString::fromStdString(text));
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

bool IniSettingsStore::Close(const std::string&) {
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

std::filesystem::path SettingsFilePath() {
    if (const char* file = std::getenv("KORVATH3_SETTINGS"); file && *file) {
        return file;
    }
    std::filesystem::path config;
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg) {
        config = xdg;
    } else if (const char* home = std::getenv("HOME"); home && *home) {
        config = std::filesystem::path(home) / ".config";
    } else {
        config = ".";
    }
    return config / "Brellin Works" / "Korvath3.conf";
}
