#include "ui/SpokenText.h"

#include <QLabel>

namespace veyrant {

// A changed description is sent to the accessibility bus by Qt itself.
void ShowSpokenText(QLabel& label, const QString& text) {
    label.setText(text);
    label.setAccessibleDescription(text);
}

} // namespace veyrant
