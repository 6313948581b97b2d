#pragma once

// Buttons answer to Alt and one letter of their caption, shown underlined.

#include <QString>

namespace veyrant {

// The caption as its button shows it: any '&' shown as itself, and the keyboard mark before the
// first `key` in it. A caption without `key` shows as it is.
QString WithAccessKey(const QString& caption, const QString& key);

// A Write window button's caption with its letter marked. The letters differ between any two
// buttons whatever captions they show at the time, so one press is never ambiguous; a caption
// with no letter of its own shows as it is.
QString WithAccessKey(const QString& caption);

} // namespace veyrant
