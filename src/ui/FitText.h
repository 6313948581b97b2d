#pragma once

// This machine's faces run wider than the ones the windows were drawn for: a text the program
// puts in a fixed box takes a slightly smaller type rather than run out of it.

#include <QFont>

class QLabel;
class QLineEdit;

namespace veyrant {

// A wrapped label: smaller until its lines fit the box's height.
void FitWrappedText(QLabel& label, QFont font);
// A one-line box: smaller until its text fits the box's width.
void FitLineText(QLineEdit& line, QFont font);

} // namespace veyrant
