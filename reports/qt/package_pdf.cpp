#include "reports/qt/package_pdf.h"

#include "reports/qt/painter_surface.h"
#include "storage/file_error.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <system_error>

namespace {

QString Escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

// The document's title, subject and creator as XMP metadata, where PDF readers look for the
// subject (the writer sets only the title and the creator in the document's information).
QByteArray Metadata(const std::string& title, const std::string& creator) {
    const QString xmp =
        QStringLiteral(
            "<?xpacket begin=\"\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
            "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
            "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
            "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\" "
            "xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\">"
            "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>"
            "<dc:description><rdf:Alt><rdf:li xml:lang=\"x-default\">%2</rdf:li></rdf:Alt>"
            "</dc:description>"
            "<xmp:CreatorTool>%3</xmp:CreatorTool>"
            "<pdf:Producer>%3</pdf:Producer>"
            "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end=\"w\"?>")
            .arg(Escaped(title), Escaped(PackageSubject), Escaped(creator));
    return xmp.toUtf8();
}

} // namespace

int WritePackagePdf(const std::filesystem::path& path, const PackageContent& content,
                    const std::vector<PackagePage>& pages) {
    std::error_code error;
    const std::filesystem::path folder = path.parent_path();
    if (!folder.empty() && !std::filesystem::is_directory(folder, error)) {
        throw FileError(76); // path not found
    }
    std::filesystem::path partial = path;
    partial += ".partial";
    int sheets = 0;
    {
        QPdfWriter writer(QString::fromStdString(partial.string()));
        writer.setResolution(1440);
        writer.setPageLayout(QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait,
                                         QMarginsF(0, 0, 0, 0)));
        const std::string title = "Calculation package - " + content.record.ProjName;
        const std::string creator = content.info.product + " (" + content.info.build + ")";
        writer.setTitle(QString::fromStdString(title));
        writer.setCreator(QString::fromStdString(creator));
        writer.setDocumentXmpMetadata(Metadata(title, creator));
        PainterSurface surface(writer, "PDF");
        sheets = DrawPackage(surface, content, pages);
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
    return sheets;
}
