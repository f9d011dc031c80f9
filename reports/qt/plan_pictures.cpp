#include "reports/qt/plan_pictures.h"

#include "reports/plan_drawing.h"
#include "reports/qt/painter_surface.h"
#include "storage/file_error.h"

#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <system_error>

namespace {

// Half an inch of margin all round.
constexpr double Margin = 720;
// The picture's resolution: 150 dots to the inch, a sheet of 1650 by 1275 dots.
constexpr int PictureDotsPerInch = 150;
// An SVG drawing in the CSS pixels of a browser, 96 to the inch.
constexpr int SvgDotsPerInch = 96;

void DrawSheet(DrawingSurface& surface, const FoundationPlan& plan,
               const std::vector<std::string>& titleLines) {
    surface.BeginDocument();
    DrawPlanSheet(surface, plan, titleLines,
                  {Margin, Margin, PlanSheetWidth - 2 * Margin, PlanSheetHeight - 2 * Margin});
    surface.EndDocument();
}

int Dots(double twips, int dotsPerInch) {
    return static_cast<int>(twips * dotsPerInch / 1440);
}

// Draws the file at `partial`; false when it could not be written.
bool DrawFile(const QString& partial, PictureFormat format, const FoundationPlan& plan,
              const std::vector<std::string>& titleLines) {
    switch (format) {
    case PictureFormat::Svg: {
        QSvgGenerator svg;
        svg.setFileName(partial);
        svg.setResolution(SvgDotsPerInch);
        const QSize size(Dots(PlanSheetWidth, SvgDotsPerInch),
                         Dots(PlanSheetHeight, SvgDotsPerInch));
        svg.setSize(size);
        svg.setViewBox(QRect(QPoint(0, 0), size));
        svg.setTitle(QStringLiteral("Foundation plan"));
        PainterSurface surface(svg);
        DrawSheet(surface, plan, titleLines);
        return true;
    }
    case PictureFormat::Png: {
        QImage image(Dots(PlanSheetWidth, PictureDotsPerInch),
                     Dots(PlanSheetHeight, PictureDotsPerInch), QImage::Format_RGB32);
        const int dotsPerMetre = static_cast<int>(PictureDotsPerInch / 0.0254 + 0.5);
        image.setDotsPerMeterX(dotsPerMetre);
        image.setDotsPerMeterY(dotsPerMetre);
        image.fill(Qt::white);
        {
            PainterSurface surface(image);
            DrawSheet(surface, plan, titleLines);
        }
        return image.save(partial, "PNG");
    }
    case PictureFormat::Pdf: {
        QPdfWriter writer(partial);
        writer.setResolution(1440);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Landscape,
                                         QMarginsF(0, 0, 0, 0)));
        writer.setCreator(QStringLiteral("Korvath 3.0"));
        PainterSurface surface(writer, "PDF");
        DrawSheet(surface, plan, titleLines);
        return true;
    }
    }
    return false;
}

} // namespace

void WritePlanPicture(const std::filesystem::path& path, PictureFormat format,
                      const FoundationPlan& plan, const std::vector<std::string>& titleLines) {
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, error)) {
        throw FileError(76); // path not found
    }
    std::filesystem::path partial = path;
    partial += ".partial";
    const bool drawn = DrawFile(QString::fromStdString(partial.string()), format, plan, titleLines);
    if (!drawn || !std::filesystem::exists(partial, error) ||
        std::filesystem::file_size(partial, error) == 0) {
        std::filesystem::remove(partial, error);
        throw FileError(75); // path/file access error: the file could not be made
    }
    std::filesystem::rename(partial, path, error);
    if (error) {
        std::filesystem::remove(partial, error);
        throw FileError(75);
    }
}
