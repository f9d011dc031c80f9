#pragma once

#include "reports/package_document.h"

#include <filesystem>
#include <vector>

// Writes a calculation package into a PDF file: Letter sheets at 1440 dots to the inch, the
// fonts embedded, the title, subject and creator set. The file is drawn beside its target and
// put in its place only once it is whole, so that a failure leaves an existing file as it was.
// Needs a Qt GUI application for its fonts. A file that cannot be written throws FileError.
// Gives the number of sheets written.
int WritePackagePdf(const std::filesystem::path& path, const PackageContent& content,
                    const std::vector<PackagePage>& pages);

// The subject the package's PDF carries.
inline constexpr const char* PackageSubject =
    "Calculation package: post-tensioned slab-on-ground foundation";
