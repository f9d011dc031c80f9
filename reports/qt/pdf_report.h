#pragma once

#include "reports/report_run.h"

#include <filesystem>

// Writes a print run into a PDF file: Letter sheets at 1440 dots to the inch, drawn into a file
// beside the target and put in its place only once it is whole, so that a failure leaves an
// existing file as it was. Needs a Qt GUI application for its fonts. A file that cannot be
// written throws FileError.
void WritePdfReport(const std::filesystem::path& path, const PrintJob& job,
                    const DesignRecord& record, const ResultsRecord& results,
                    const ReportSettings& settings);
