#include "ui/SpellingHighlighter.h"

#include "core/Cp1252.h"

#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>

namespace veyrant {

std::string CheckedText(const QString& text) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar unit : text) {
        bytes += CodePointToCp1252(unit.unicode()).value_or(UncodedLetter);
    }
    return bytes;
}

namespace {

QTextCharFormat MarkFormat() {
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::SpellCheckUnderline);
    format.setUnderlineColor(Qt::red);
    return format;
}

} // namespace

SpellingHighlighter::SpellingHighlighter(QPlainTextEdit& box, SpellChecker& checker)
    : QSyntaxHighlighter(box.document()), box_(box), checker_(checker) {
    QObject::connect(&box_, &QPlainTextEdit::cursorPositionChanged, this, [this] { CaretMoved(); });
    checker_.Watch([alive = QPointer<SpellingHighlighter>(this)] {
        if (alive) {
            alive->rehighlight();
        }
        return !alive.isNull();
    });
}

std::vector<WordSpan> SpellingHighlighter::MarksOf(const QTextBlock& block,
                                                   const QString& text) const {
    if (!checker_.Active()) {
        return {};
    }
    const QTextCursor caret = box_.textCursor();
    const std::size_t caretInBlock =
        caret.block() == block ? static_cast<std::size_t>(caret.positionInBlock()) : NoCaret;
    return checker_.Misspelt(CheckedText(text), caretInBlock);
}

void SpellingHighlighter::highlightBlock(const QString& text) {
    static const QTextCharFormat mark = MarkFormat();
    for (const WordSpan& word : MarksOf(currentBlock(), text)) {
        setFormat(static_cast<int>(word.Start), static_cast<int>(word.Length), mark);
    }
}

// The word left behind by the caret is finished now, and the one it reaches is being typed.
void SpellingHighlighter::CaretMoved() {
    const QTextBlock now = box_.textCursor().block();
    if (caretBlock_ != now.blockNumber()) {
        const QTextBlock left = document()->findBlockByNumber(caretBlock_);
        caretBlock_ = now.blockNumber();
        if (left.isValid()) {
            rehighlightBlock(left);
        }
    }
    rehighlightBlock(now);
}

std::optional<QTextCursor> SpellingHighlighter::MarkedWordAt(const QTextCursor& place) const {
    const QTextBlock block = place.block();
    const auto offset = static_cast<std::size_t>(place.positionInBlock());
    for (const WordSpan& word : MarksOf(block, block.text())) {
        if (offset >= word.Start && offset <= word.Start + word.Length) {
            QTextCursor selected(block);
            selected.setPosition(block.position() + static_cast<int>(word.Start));
            selected.setPosition(block.position() + static_cast<int>(word.Start + word.Length),
                                 QTextCursor::KeepAnchor);
            return selected;
        }
    }
    return std::nullopt;
}

} // namespace veyrant
