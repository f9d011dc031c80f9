#include "app/package_export_view.h"

#include "lifecycle/package_content.h"
#include "lifecycle/package_export.h"
#include "lifecycle/package_study.h"
#include "reports/qt/package_pdf.h"
#include "storage/file_error.h"

#include <QCheckBox>
#include <QCryptographicHash>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <thread>

namespace {

std::string Sha256Of(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        return "none: the project file cannot be read";
    }
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(&file);
    return hash.result().toHex().toStdString();
}

// The dialog for the firm and the license; gives false on Cancel.
bool AskFirmAndLicense(QWidget* parent, PackageExportDialog& model) {
    QDialog dialog(parent);
    dialog.setObjectName("frmPackage");
    dialog.setWindowTitle("Export Calculation Package");
    auto* firm = new QLineEdit(QString::fromStdString(model.firm), &dialog);
    firm->setObjectName("txtFirm");
    firm->setMaxLength(254);
    auto* license = new QLineEdit(QString::fromStdString(model.license), &dialog);
    license->setObjectName("txtLicense");
    license->setMaxLength(254);
    auto* form = new QFormLayout;
    form->addRow("Firm :", firm);
    form->addRow("License Number :", license);
    auto* sensitivity = new QCheckBox("Soil sensitivity page", &dialog);
    sensitivity->setObjectName("chkSensitivity");
    sensitivity->setEnabled(!model.sensitivityRanges.empty());
    sensitivity->setChecked(model.sensitivityPage);
    std::string ranges;
    for (const std::string& range : model.sensitivityRanges) {
        ranges += (ranges.empty() ? "" : ", ") + range;
    }
    sensitivity->setToolTip(ranges.empty() ? QString("Run Data Screen > Soil Sensitivity first")
                                           : QString::fromStdString("Over " + ranges));
    form->addRow("", sensitivity);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmbOK");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmbCancel");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addLayout(form);
    layout->addWidget(buttons);
    dialog.resize(460, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    model.firm = firm->text().toStdString();
    model.license = license->text().toStdString();
    model.sensitivityPage = sensitivity->isChecked();
    return true;
}

} // namespace

void ExportCalculationPackage(QWidget* parent, Program& program, ShellServices& services) {
    if (!PackageExportAvailable(program)) {
        return;
    }
    PackageExportDialog model = OpenPackageExportDialog(services);
    OfferSensitivityPage(model, program);
    if (!AskFirmAndLicense(parent, model)) {
        return;
    }
    model = AcceptPackageExportDialog(services, model);
    const QString chosen = QFileDialog::getSaveFileName(
        parent, "Export Calculation Package",
        QString::fromStdString(SuggestedPackagePath(program.project)), "PDF files (*.pdf)");
    if (chosen.isEmpty()) {
        return; // the cancel of a file dialog stays silent
    }
    const std::string sha256 = ProjectFileTracesInput(program.project)
                                   ? Sha256Of(program.project.ProjFilePath)
                                   : std::string();
    std::optional<RunFault> fault;
    const std::vector<DesignCheck> checks = PackageChecks(program.record, program.results, fault);
    const PackageContent content =
        MakePackageContent(program.record, program.results, checks, fault,
                           PackageInfoOf(program, model, sha256, services.clock));
    std::vector<PackagePage> pages = PackagePages(content);
    if (model.sensitivityPage && !model.sensitivityRanges.empty() && !fault) {
        // The study of the last run is worked anew over the analysis on screen; it takes a few
        // milliseconds.
        const SensitivityRun study = RunSensitivityRanges(
            program.record, program.settings.options.engineSettings(), model.sensitivityRanges,
            static_cast<int>(std::max(1u, std::thread::hardware_concurrency())));
        pages.insert(pages.begin() + static_cast<std::ptrdiff_t>(StudyPagePlace(pages)),
                     SoilStudyPage(SoilStudyChartOf(study.request, study.outcome)));
    }
    try {
        WritePackagePdf(chosen.toStdString(), content, pages);
    } catch (const FileError& error) {
        QMessageBox::critical(parent,
                              QString("Error Writing Calculation Package - %1").arg(error.number()),
                              QString::fromStdString(error.description()));
    }
}
