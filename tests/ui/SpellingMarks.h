#pragma once

// The words of a box that carry the spelling mark, as the user sees them underlined.

#include <QPlainTextEdit>
#include <QStringList>
#include <QTextBlock>
#include <QTextLayout>

namespace veyrant {

inline QStringList MarkedWords(const QPlainTextEdit& box) {
    QStringList words;
    for (QTextBlock block = box.document()->begin(); block.isValid(); block = block.next()) {
        for (const QTextLayout::FormatRange& range : block.layout()->formats()) {
            if (range.format.underlineStyle() == QTextCharFormat::SpellCheckUnderline) {
                words << block.text().mid(range.start, range.length);
            }
        }
    }
    return words;
}

} // namespace veyrant
