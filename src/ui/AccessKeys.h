#pragma once

// The Write window's buttons answer to Alt and one letter of their caption, shown underlined.

#include <QString>

namespace veyrant {

// The caption as its button shows it, with its access letter marked for Qt. The letters differ
// between any two buttons whatever captions they show at the time, so one press is never
// ambiguous; a caption with no letter of its own shows as it is.
QString WithAccessKey(const QString& caption);

} // namespace veyrant
