#pragma once

// The red wavy underline under the misspelt words of a text box. It changes only how the text is
// drawn, never the text itself. The word the caret touches is still being typed and stays
// unmarked until the caret leaves it.

#include "shell/SpellChecker.h"

#include <QSyntaxHighlighter>
#include <QTextCursor>
#include <optional>

class QPlainTextEdit;

namespace veyrant {

// A box's text as the checker reads it: one byte for each UTF-16 unit, so that offsets agree on
// both sides; a character the code page lacks is UncodedLetter.
std::string CheckedText(const QString& text);

class SpellingHighlighter final : public QSyntaxHighlighter {
public:
    SpellingHighlighter(QPlainTextEdit& box, SpellChecker& checker);

    // The marked word at a place in the box, selected, or nothing where no word is marked.
    std::optional<QTextCursor> MarkedWordAt(const QTextCursor& place) const;

protected:
    void highlightBlock(const QString& text) override;

private:
    std::vector<WordSpan> MarksOf(const QTextBlock& block, const QString& text) const;
    void CaretMoved();

    QPlainTextEdit& box_;
    SpellChecker& checker_;
    int caretBlock_ = -1;
};

} // namespace veyrant
