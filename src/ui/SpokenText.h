#pragma once

// A label whose words a screen reader must hear, not only its name: the instruction line says
// what to do next, and it changes with every step.

#include <QString>

class QLabel;

namespace veyrant {

// Shows the text and gives it as the label's accessible description, which tells a screen
// reader of the change.
void ShowSpokenText(QLabel& label, const QString& text);

} // namespace veyrant
