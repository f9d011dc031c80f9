#include "cli/file_digest.h"

#include <QCryptographicHash>
#include <QFile>

std::optional<std::string> FileSha256(const std::filesystem::path& path) {
    QFile file(QString::fromStdString(path.string()));
    if (!file.open(QIODevice::ReadOnly)) {
        return std::nullopt;
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    if (!hash.addData(&file)) {
        return std::nullopt;
    }
    return hash.result().toHex().toStdString();
}
