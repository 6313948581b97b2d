#pragma once

// The seam between the spelling marks and whatever dictionary the machine has. Words cross it in
// the program's code page; an implementation converts them to its own.

#include <string>
#include <string_view>
#include <vector>

namespace veyrant {

class Dictionary {
public:
    virtual ~Dictionary() = default;

    virtual bool Knows(std::string_view word) const = 0;
    // The dictionary's corrections, best first.
    virtual std::vector<std::string> Suggest(std::string_view word) const = 0;
    // Known from now on, for this run.
    virtual void Add(std::string_view word) = 0;
};

} // namespace veyrant
