#pragma once

// The libraries the Reader shows, and a value kept for each of them. Adding a library is a new
// name here and a new row in the tables indexed by it; a library that a table does not hold is an
// error, never another library.

#include <array>
#include <cstdint>
#include <stdexcept>

namespace veyrant {

// The numbers give the order of the window modes in Tolmira.ini.
enum class LibraryId : std::int16_t {
    None = 0, // no library is on show
    Dialogue = 1,
    Information = 2,
    Knowledge = 3,
    Advanced = 4,
};

// Every library, in the order a waiting mark or request is looked for.
inline constexpr std::array<LibraryId, 4> AllLibraries{LibraryId::Dialogue, LibraryId::Information,
                                                       LibraryId::Knowledge, LibraryId::Advanced};

// The libraries of fixed reading matter compiled into the program.
inline constexpr std::array<LibraryId, 3> FixedLibraryIds{
    LibraryId::Information, LibraryId::Knowledge, LibraryId::Advanced};

constexpr std::int16_t LibraryNumber(LibraryId library) {
    return static_cast<std::int16_t>(library);
}

// One value for each library of a run of consecutive ids from First; asking for any other
// library throws std::out_of_range.
template <typename T, LibraryId First, std::size_t Count>
class LibraryTable {
public:
    constexpr LibraryTable() = default;
    // The values in the order of the ids.
    constexpr explicit LibraryTable(const std::array<T, Count>& values) : values_(values) {}

    static LibraryTable Filled(const T& value) {
        LibraryTable table;
        table.values_.fill(value);
        return table;
    }

    T& operator[](LibraryId library) { return values_[Slot(library)]; }
    const T& operator[](LibraryId library) const { return values_[Slot(library)]; }

    auto begin() { return values_.begin(); }
    auto end() { return values_.end(); }
    auto begin() const { return values_.begin(); }
    auto end() const { return values_.end(); }

private:
    static std::size_t Slot(LibraryId library) {
        const int slot = LibraryNumber(library) - LibraryNumber(First);
        if (slot < 0 || slot >= static_cast<int>(Count)) {
            throw std::out_of_range("no such library in this table");
        }
        return static_cast<std::size_t>(slot);
    }

    std::array<T, Count> values_{};
};

// A value for each of the four libraries.
template <typename T>
using PerLibrary = LibraryTable<T, LibraryId::Dialogue, AllLibraries.size()>;
// A value for each fixed library; the Dialogue Library has none.
template <typename T>
using PerFixedLibrary = LibraryTable<T, LibraryId::Information, FixedLibraryIds.size()>;

} // namespace veyrant
