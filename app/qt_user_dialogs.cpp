#include "app/qt_user_dialogs.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QTreeView>

namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::None:
        return QMessageBox::NoIcon;
    case MessageIcon::Information:
        break;
    }
    return QMessageBox::Information;
}

QString StartPath(const FileDialogRequest& request) {
    QString path = QString::fromStdString(request.folder);
    if (!request.fileName.empty() && request.fileName.find('*') == std::string::npos) {
        path = path.isEmpty() ? QString::fromStdString(request.fileName)
                              : path + "/" + QString::fromStdString(request.fileName);
    }
    return path;
}

std::string Trimmed(std::string text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The file dialogs open large enough to show each file's name, size, kind and date in full
// columns, which tell a project from its backup at a glance.
constexpr int FileDialogWidth = 900;
constexpr int FileDialogHeight = 560;

std::optional<std::string> RunFileDialog(QFileDialog& dialog) {
    PrepareFileDialog(dialog);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return dialog.selectedFiles().front().toStdString();
}

} // namespace

void PrepareFileDialog(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::Detail);
    dialog.resize(FileDialogWidth, FileDialogHeight);
    // Qt's own dialog (the platform's may stand in for it) gives the size, kind and date columns
    // the width of what they hold; the name takes the rest.
    if (auto* files = dialog.findChild<QTreeView*>("treeView")) {
        QHeaderView* header = files->header();
        header->setStretchLastSection(false);
        header->setSectionResizeMode(0, QHeaderView::Stretch);
        for (int column = 1; column < header->count(); ++column) {
            header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        }
    }
}

std::string QtNameFilters(const std::string& filter) {
    std::string filters;
    std::size_t start = 0;
    while (start < filter.size()) {
        const std::size_t bar = filter.find('|', start);
        const std::string description = Trimmed(filter.substr(start, bar - start));
        if (!description.empty()) {
            filters += (filters.empty() ? "" : ";;") + description;
        }
        if (bar == std::string::npos) {
            break;
        }
        const std::size_t next = filter.find('|', bar + 1);
        start = next == std::string::npos ? filter.size() : next + 1;
    }
    return filters;
}

void QtUserDialogs::ShowMessage(const MessageRequest& message) {
    QMessageBox box(IconOf(message.icon), QString::fromStdString(message.title),
                    QString::fromStdString(message.text), QMessageBox::Ok, m_parent);
    box.exec();
}

Answer QtUserDialogs::AskYesNoCancel(const MessageRequest& question) {
    QMessageBox box(IconOf(question.icon), QString::fromStdString(question.title),
                    QString::fromStdString(question.text),
                    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, m_parent);
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::Cancel);
    switch (box.exec()) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}

std::optional<std::string> QtUserDialogs::ShowOpenDialog(const FileDialogRequest& request) {
    QFileDialog dialog(m_parent, QString::fromStdString(request.title), StartPath(request),
                       QString::fromStdString(QtNameFilters(request.filter)));
    dialog.setFileMode(QFileDialog::ExistingFile);
    return RunFileDialog(dialog);
}

std::optional<std::string> QtUserDialogs::ShowSaveDialog(const FileDialogRequest& request) {
    QFileDialog dialog(m_parent, QString::fromStdString(request.title), StartPath(request),
                       QString::fromStdString(QtNameFilters(request.filter)));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QString::fromStdString(request.defaultExtension));
    return RunFileDialog(dialog);
}
