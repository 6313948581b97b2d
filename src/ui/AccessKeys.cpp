#include "ui/AccessKeys.h"

#include <array>
#include <utility>

namespace veyrant {

namespace {

// The first letter where no other button has it. The Edit button keeps E as Remove and Keep, so
// the key stays while the caption changes with the step of the cycle.
constexpr std::array<std::pair<const char*, char>, 20> AccessLetters = {{
    {"Converse", 'C'}, {"Suppose", 'u'}, {"Comment", 'm'}, {"Know", 'K'},   {"Retrieve", 'R'},
    {"Help", 'H'},     {"Rewrite", 'w'}, {"Edit", 'E'},    {"Remove", 'e'}, {"Keep", 'e'},
    {"Continue", 'o'}, {"Display", 'D'}, {"Write", 't'},   {"File", 'i'},   {"Print", 'P'},
    {"Save", 'S'},     {"Finish", 'F'},  {"New", 'N'},     {"Cancel", 'a'}, {"Select", 'l'},
}};

} // namespace

QString WithAccessKey(const QString& caption, const QString& key) {
    QString shown = caption;
    shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
    const auto at = shown.indexOf(key);
    if (!key.isEmpty() && at >= 0) {
        shown.insert(at, QLatin1Char('&'));
    }
    return shown;
}

QString WithAccessKey(const QString& caption) {
    for (const auto& [text, letter] : AccessLetters) {
        if (caption == QLatin1String(text)) {
            return WithAccessKey(caption, QString(QLatin1Char(letter)));
        }
    }
    return WithAccessKey(caption, QString());
}

} // namespace veyrant
