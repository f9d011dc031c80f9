#pragma once

#include "plan/foundation_plan.h"

#include <filesystem>
#include <string>
#include <vector>

// The plan sheet (the plan and its typical sections) as a file: an SVG drawing, a PNG picture or
// a one-page PDF, all on a Letter sheet lying on its long side. The file is drawn beside its
// place and put there only once it is whole, so that a failure leaves an existing file as it
// was. Needs a Qt GUI application for its fonts. A file that cannot be written throws FileError.

enum class PictureFormat { Svg, Png, Pdf };

void WritePlanPicture(const std::filesystem::path& path, PictureFormat format,
                      const FoundationPlan& plan, const std::vector<std::string>& titleLines);

// The Letter sheet on its long side, in twips, and the box of its drawing within the margins.
inline constexpr double PlanSheetWidth = 15840;
inline constexpr double PlanSheetHeight = 12240;
