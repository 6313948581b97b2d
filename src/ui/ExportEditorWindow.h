#pragma once

// The program's own small text editor for an exported Dialogue: plain text with word wrap, to
// be read, changed, printed and saved under a name of the user's choice. It writes no file of
// its own; only Save As writes, and then the whole file or nothing.

#include "core/WindowLayer.h"

#include <QString>
#include <QWidget>

class QPlainTextEdit;
class QCloseEvent;

namespace veyrant {

class ExportEditorWindow final : public QWidget {
    Q_OBJECT

public:
    ExportEditorWindow(WindowLayer& windows, const QString& text, const QString& proposedFileName);

    QPlainTextEdit& Editor() { return *editor_; }
    // Writes the text to the path as UTF-8; false, after the user was told, when it failed.
    bool SaveTo(const QString& path);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    bool SaveAs();
    void Print();

    WindowLayer& windows_;
    QString proposedFileName_;
    QPlainTextEdit* editor_;
};

} // namespace veyrant
