#include "storage/LibraryStatus.h"

#include "core/DateFormat.h"
#include "core/ProgramError.h"
#include "core/Text.h"
#include "storage/LibraryFileName.h"

namespace veyrant {

namespace {

// The latest Dialogue's date as the status tells it. A name that makes no date (the scan has
// already said so in its box) shows as it stands rather than silence the whole status.
std::string LatestDate(const LibraryListing& listing) {
    const auto index = static_cast<std::size_t>(listing.LibraryCount);
    const std::string name = index < listing.LibraryFiles.size() ? listing.LibraryFiles[index] : "";
    try {
        return FormatDate(FileDateValue(ParseFileName(name).FileDateText),
                          "dddd, h:mm am/pm, mmmm d, yyyy");
    } catch (const ProgramError&) {
        return name;
    }
}

std::string Limits(const Settings& settings) {
    return "The Library is set to save " + std::to_string(settings.MaxLibraryFiles) +
           " Dialogues and delete those older than " + std::to_string(settings.MaxLibraryDays) +
           " days.";
}

} // namespace

std::string GenLibStatus(const LibraryListing& listing, const Settings& settings) {
    const std::string heading = std::string(LibraryStatusHeading) + std::string(CrLf) + Tab;
    if (settings.GuestMode == 1) {
        return heading + "The Library is in the Guest Mode. No Dialogues are saved or retrieved.";
    }
    if (listing.LibraryCount < 1) {
        return heading + "There are currently no Dialogues saved in the Library. " +
               Limits(settings);
    }
    const std::string date = LatestDate(listing);
    if (listing.LibraryCount == 1) {
        return heading + "You have 1 Dialogue saved in the Library. You created it on " + date +
               ".  " + Limits(settings);
    }
    const int daysLeft = settings.MaxLibraryDays - listing.OldestAge;
    return heading + "You have " + std::to_string(listing.LibraryCount) +
           " Dialogues saved in the Library. You created the latest one on " + date + "." +
           (daysLeft == 1 ? " Your earliest Dialogue will be automatically deleted in 1 day."
                          : " Your earliest Dialogue will be automatically deleted in " +
                                std::to_string(daysLeft) + " days.") +
           " " + Limits(settings);
}

} // namespace veyrant
