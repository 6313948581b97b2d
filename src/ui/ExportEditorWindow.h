#pragma once

// The program's own small text editor for an exported Dialogue: plain text with word wrap, to
// be read, changed, printed and saved under a name of the user's choice. It writes no file of
// its own; only Save As writes, and then the whole file or nothing. Misspelt words are marked, and
// a right-click on one offers corrections and "Add to Dictionary".

#include "core/WindowLayer.h"
#include "printing/SaveFolder.h"
#include "shell/SpellChecker.h"

#include <QString>
#include <QWidget>

class QPlainTextEdit;
class QCloseEvent;
class QMenu;

namespace veyrant {

class SpellingHighlighter;

class ExportEditorWindow final : public QWidget {
    Q_OBJECT

public:
    ExportEditorWindow(WindowLayer& windows, SaveFolder& folder, SpellChecker& spelling,
                       const QString& text, const QString& proposedFileName);

    QPlainTextEdit& Editor() { return *editor_; }
    // Writes the text to the path as UTF-8, which from then on is the text's file; false, after
    // the user was told, when it failed.
    bool SaveTo(const QString& path);
    // The right-click menu for a point of the editor, owned by the caller: on a marked word, the
    // corrections and "Add to Dictionary" come first.
    QMenu* ContextMenu(const QPoint& point);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    // To the text's file once it has one; until then, as Save As.
    bool Save();
    bool SaveAs();
    void Print();
    void AddToDictionary(const QString& word);

    WindowLayer& windows_;
    SaveFolder& folder_;
    QString proposedFileName_;
    QString savedPath_;
    QPlainTextEdit* editor_;
    SpellChecker& spelling_;
    SpellingHighlighter* marks_;
};

// The path Save As proposes for a file name: in the folder the SaveFolder proposes.
QString ProposedSavePath(const SaveFolder& folder, const QString& fileName);

} // namespace veyrant
