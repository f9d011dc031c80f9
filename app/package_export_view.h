#pragma once

#include "lifecycle/program.h"
#include "shell/shell_services.h"

class QWidget;

// File > "Export Calculation Package...": the small dialog (`frmPackage`, with `txtFirm`,
// `txtLicense`) over the toolkit-free model of lifecycle/package_export.h, the file dialog, and
// the package of the analysis on screen written as a PDF. The SHA-256 of the project file is
// worked out here, at the toolkit's edge.
void ExportCalculationPackage(QWidget* parent, Program& program, ShellServices& services);
