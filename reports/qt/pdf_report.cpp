#include "reports/qt/pdf_report.h"

#include "reports/qt/painter_surface.h"
#include "storage/file_error.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <cerrno>
#include <system_error>

void WritePdfReport(const std::filesystem::path& path, const PrintJob& job,
                    const DesignRecord& record, const ResultsRecord& results,
                    const ReportSettings& settings) {
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, error)) {
        throw FileError(76); // path not found
    }
    std::filesystem::path partial = path;
    partial += ".partial";
    {
        QPdfWriter writer(QString::fromStdString(partial.string()));
        writer.setResolution(1440);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                         QMarginsF(0, 0, 0, 0)));
        writer.setTitle(QString::fromStdString(record.ProjName));
        writer.setCreator(QStringLiteral("Korvath 3.0"));
        PainterSurface surface(writer, "PDF");
        PrintReport(surface, job, record, results, settings);
    }
    if (!std::filesystem::exists(partial, error) ||
        std::filesystem::file_size(partial, error) == 0) {
        std::filesystem::remove(partial, error);
        throw FileError(75); // path/file access error: the writer could not make the file
    }
    std::filesystem::rename(partial, path, error);
    if (error) {
        std::filesystem::remove(partial, error);
        throw FileError(75);
    }
}
