#include "core/Clock.h"

#include <chrono>
#include <ctime>
#include <sys/stat.h>

namespace veyrant {

namespace {

DateTime LocalDateTime(std::time_t seconds) {
    std::tm parts{};
    localtime_r(&seconds, &parts);
    return {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday,
            parts.tm_hour,        parts.tm_min,     parts.tm_sec};
}

} // namespace

std::optional<DateTime> Clock::FileDate(const std::filesystem::path& path) const {
    struct stat info {};
    if (::stat(path.c_str(), &info) != 0) {
        return std::nullopt;
    }
    return LocalDateTime(info.st_mtim.tv_sec);
}

float SystemClock::Timer() const {
    const auto now = std::chrono::system_clock::now();
    const auto seconds = std::chrono::system_clock::to_time_t(now);
    std::tm parts{};
    localtime_r(&seconds, &parts);
    const auto fraction = std::chrono::duration<double>(now.time_since_epoch()).count() -
                          static_cast<double>(seconds);
    return static_cast<float>(parts.tm_hour * 3600 + parts.tm_min * 60 + parts.tm_sec + fraction);
}

DateTime SystemClock::Now() const {
    return LocalDateTime(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()));
}

} // namespace veyrant
