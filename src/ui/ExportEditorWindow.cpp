#include "ui/ExportEditorWindow.h"

#include "core/Cp1252.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"
#include "printing/ExportText.h"
#include "printing/PrintDialogue.h"
#include "ui/PrintFlow.h"
#include "ui/QtText.h"
#include "ui/SpellingHighlighter.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeySequence>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QShortcut>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace veyrant {

QString ProposedSavePath(const SaveFolder& folder, const QString& fileName) {
    const auto path = [](QStandardPaths::StandardLocation location) {
        return std::filesystem::path(
            QFile::encodeName(QStandardPaths::writableLocation(location)).toStdString());
    };
    const auto proposed = folder.Proposed(path(QStandardPaths::DocumentsLocation),
                                          path(QStandardPaths::HomeLocation));
    return QDir(QFile::decodeName(proposed.c_str())).filePath(fileName);
}

ExportEditorWindow::ExportEditorWindow(WindowLayer& windows, SaveFolder& folder,
                                       SpellChecker& spelling, const QString& text,
                                       const QString& proposedFileName)
    : windows_(windows), folder_(folder), proposedFileName_(proposedFileName),
      editor_(new QPlainTextEdit(this)), spelling_(spelling),
      marks_(new SpellingHighlighter(*editor_, spelling)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(proposedFileName + QStringLiteral(" - Veyrant Sagrel"));
    editor_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    editor_->setAccessibleName(QStringLiteral("Dialogue"));
    editor_->setPlainText(text);
    editor_->document()->setModified(false);
    editor_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(editor_, &QWidget::customContextMenuRequested, this, [this](const QPoint& point) {
        QMenu* menu = ContextMenu(point);
        menu->exec(editor_->viewport()->mapToGlobal(point));
        delete menu;
    });

    auto* saveAs = new QPushButton(QStringLiteral("Save As..."), this);
    auto* print = new QPushButton(QStringLiteral("Print..."), this);
    auto* close = new QPushButton(QStringLiteral("Close"), this);
    connect(saveAs, &QPushButton::clicked, this, [this] { SaveAs(); });
    connect(print, &QPushButton::clicked, this, [this] { Print(); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this,
            [this] { Save(); });
    connect(new QShortcut(QKeySequence::SaveAs, this), &QShortcut::activated, this,
            [this] { SaveAs(); });
    connect(new QShortcut(QKeySequence::Print, this), &QShortcut::activated, this,
            [this] { Print(); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(saveAs);
    buttons->addWidget(print);
    buttons->addStretch();
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(editor_);
    layout->addLayout(buttons);
    resize(720, 640);
}

bool ExportEditorWindow::SaveTo(const QString& path) {
    try {
        WriteUserFile(QFile::encodeName(path).toStdString(),
                      editor_->toPlainText().toUtf8().toStdString());
    } catch (const ProgramError& error) {
        // The box speaks the program's code page; a name beyond it is shown by its folder only.
        const auto shown = Utf16ToCp1252(path.toStdU16String());
        windows_.ShowMessage(SaveFileErrorBox(
            error.Number(),
            shown.value_or(QFile::encodeName(QFileInfo(path).path()).toStdString())));
        return false;
    }
    editor_->document()->setModified(false);
    setWindowTitle(QFileInfo(path).fileName() + QStringLiteral(" - Veyrant Sagrel"));
    savedPath_ = path;
    folder_.Saved(QFile::encodeName(path).toStdString());
    return true;
}

bool ExportEditorWindow::Save() {
    return savedPath_.isEmpty() ? SaveAs() : SaveTo(savedPath_);
}

bool ExportEditorWindow::SaveAs() {
    QFileDialog dialog(this, QStringLiteral("Save As"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters({QStringLiteral("Text files (*.txt)"), QStringLiteral("All files (*)")});
    dialog.setDefaultSuffix(QStringLiteral("txt"));
    dialog.selectFile(ProposedSavePath(folder_, proposedFileName_));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return false;
    }
    return SaveTo(dialog.selectedFiles().constFirst());
}

void ExportEditorWindow::Print() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(proposedFileName_);
    const auto outcome = PreviewAndPrint(printer, [this](QPrinter& target) {
        editor_->print(&target);
        return target.printerState() != QPrinter::Error;
    });
    if (outcome == PrintOutcome::Failed) {
        windows_.ShowMessage(PrintErrorBox());
    }
}

QMenu* ExportEditorWindow::ContextMenu(const QPoint& point) {
    QMenu* menu = editor_->createStandardContextMenu(point);
    const auto word = marks_->MarkedWordAt(editor_->cursorForPosition(point));
    if (!word) {
        return menu;
    }
    QAction* first = menu->actions().value(0);
    const QString misspelt = word->selectedText();
    for (const std::string& correction : spelling_.Suggestions(CheckedText(misspelt))) {
        auto* replace = new QAction(ToQt(correction), menu);
        connect(replace, &QAction::triggered, this,
                [word = *word, correction]() mutable { word.insertText(ToQt(correction)); });
        menu->insertAction(first, replace);
    }
    auto* add = new QAction(QStringLiteral("Add to Dictionary"), menu);
    connect(add, &QAction::triggered, this, [this, misspelt] { AddToDictionary(misspelt); });
    menu->insertAction(first, add);
    menu->insertSeparator(first);
    return menu;
}

void ExportEditorWindow::AddToDictionary(const QString& word) {
    try {
        spelling_.Add(CheckedText(word));
    } catch (const ProgramError& error) {
        windows_.ShowMessage({"Veyrant Sagrel",
                              "Error " + std::to_string(error.Number()) +
                                  " saving the list of your added words. The word is known "
                                  "until the program ends.",
                              MessageIcon::Warning});
    }
}

void ExportEditorWindow::closeEvent(QCloseEvent* event) {
    if (!editor_->document()->isModified()) {
        event->accept();
        return;
    }
    const auto answer = QMessageBox::question(
        this, QStringLiteral("Veyrant Sagrel"),
        QStringLiteral("The text has changed. Do you want to save it before closing?"),
        QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, QMessageBox::Save);
    if (answer == QMessageBox::Discard || (answer == QMessageBox::Save && Save())) {
        event->accept();
    } else {
        event->ignore();
    }
}

} // namespace veyrant
