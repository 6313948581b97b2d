#pragma once

// The name of a saved Dialogue is its date and time, and it is the only date that counts: the
// same name stands in dlg/ and isp/. Twelve characters, "yymmddhh.nnT": the year less 1950
// without padding, month, day, hour, a point, minute and the file tag. Seconds are not kept: the
// tag, 0 to 9, tells apart the Dialogues saved within one minute.

#include "core/DateTime.h"

#include <string>
#include <string_view>

namespace veyrant {

inline constexpr int FileTags = 10;

// The name for a date, with the file tag. From 2050 on the year takes three digits and the
// name thirteen characters, which the reading side cannot follow: the form ends in 2049.
std::string MakeFileName(const DateTime& when, int fileTag = 0);

struct ParsedFileName {
    // Month first, as the date conversion reads it: "m/d/yyyy h:n" from the characters at the
    // fixed places, whatever they are.
    std::string FileDateText;
    int FileTag = 0;
};

// Reads the fields at their fixed places; never fails, however odd the name.
ParsedFileName ParseFileName(std::string_view name);

// The date of a FileDateText. Raises ProgramError 13 when the fields do not make a date, as
// with a name put into the Library by hand or one from 2050 on.
DateTime FileDateValue(std::string_view fileDateText);

// The name less its last character read as a number: the order of the Library. A name that
// does not begin with a number reads as 0.
double SortKey(std::string_view name);

} // namespace veyrant
