#include "engine/EngineTables.h"

#include "core/FieldReader.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <algorithm>
#include <initializer_list>
#include <new>
#include <stdexcept>

namespace veyrant {

void RowMap::Allocate(int blocks, const std::vector<std::int16_t>& componentRows) {
    if (blocks < 0) {
        throw ProgramError(SubscriptOutOfRange);
    }
    planes_ = blocks + 1;
    first_.assign(1, 0);
    for (const std::int16_t rows : componentRows) {
        if (rows < 0) {
            throw ProgramError(SubscriptOutOfRange);
        }
        first_.push_back(first_.back() +
                         static_cast<std::size_t>(planes_) * (static_cast<std::size_t>(rows) + 1));
    }
    cells_.assign(first_.back(), 0);
}

std::size_t RowMap::Index(int block, int component, int row) const {
    if (block < 0 || block >= planes_ || component < 0 ||
        static_cast<std::size_t>(component) + 1 >= first_.size()) {
        throw ProgramError(SubscriptOutOfRange);
    }
    const auto c = static_cast<std::size_t>(component);
    const std::size_t rows = (first_[c + 1] - first_[c]) / static_cast<std::size_t>(planes_);
    if (row < 0 || static_cast<std::size_t>(row) >= rows) {
        throw ProgramError(SubscriptOutOfRange);
    }
    return first_[c] + static_cast<std::size_t>(block) * rows + static_cast<std::size_t>(row);
}

std::int16_t& RowMap::At(int block, int component, int row) {
    return cells_[Index(block, component, row)];
}

std::int16_t RowMap::At(int block, int component, int row) const {
    return cells_[Index(block, component, row)];
}

namespace {

template <typename Value>
std::vector<Value> Allocated(int lastIndex) {
    if (lastIndex < 0) {
        throw ProgramError(SubscriptOutOfRange);
    }
    return std::vector<Value>(static_cast<std::size_t>(lastIndex) + 1);
}

// Entries 1 to count; entry 0 idle.
std::vector<std::int16_t> ReadList(FieldReader& reader, int count) {
    reader.RequireRoomFor(count);
    auto list = Allocated<std::int16_t>(count);
    for (std::size_t i = 1; i < list.size(); ++i) {
        list[i] = reader.ReadInt16();
    }
    return list;
}

// Pairs from first to last, each an identifying number and its value.
template <typename Value>
void ReadPairs(FieldReader& reader, int first, int last, std::vector<std::int16_t>& ids,
               std::vector<Value>& values) {
    ids = Allocated<std::int16_t>(last);
    values = Allocated<Value>(last);
    for (auto i = static_cast<std::size_t>(first); i < ids.size(); ++i) {
        ids[i] = reader.ReadInt16();
        if constexpr (sizeof(Value) == 4) {
            values[i] = reader.ReadInt32();
        } else {
            values[i] = reader.ReadInt16();
        }
    }
}

// A count or bound below zero sizes nothing and bounds nothing: the file is damaged.
void RequireNotNegative(std::initializer_list<std::int16_t> values) {
    for (const std::int16_t value : values) {
        if (value < 0) {
            throw ProgramError(SubscriptOutOfRange);
        }
    }
}

// Every component's highest row within RowCap, and room in the file for a pair per row.
void RequireComponentRows(const FieldReader& reader, const EngineTables& t) {
    std::int64_t pairs = 0;
    for (const std::int16_t rows : t.ComponentRows) {
        if (rows < 0 || rows > t.RowCap) {
            throw ProgramError(SubscriptOutOfRange);
        }
        pairs += rows + 1;
    }
    reader.RequireRoomFor(2 * pairs);
}

// The order of the fields is the whole format: a slip in any count shifts every later value,
// and the closing mark then reads as something else.
void ReadTables(FieldReader& reader, EngineTables& t) {
    t.ComponentCount = reader.ReadInt16();
    t.RowCap = reader.ReadInt16();
    t.MessageCount = reader.ReadInt16();
    t.SectionCount = reader.ReadInt16();
    reader.ReadInt32();
    reader.ReadInt32();
    t.MaxComponents = reader.ReadInt16();
    t.MaxSections = reader.ReadInt16();
    reader.ReadInt16();
    const std::int16_t caseKeeperCount = reader.ReadInt16();
    const std::int16_t tightJoinerCount = reader.ReadInt16();
    t.SysBlockCount = reader.ReadInt16();
    RequireNotNegative({t.ComponentCount, t.RowCap, t.MessageCount, t.SectionCount, t.MaxComponents,
                        t.MaxSections, caseKeeperCount, tightJoinerCount, t.SysBlockCount});

    ReadPairs(reader, 1, t.MessageCount, t.MessageId, t.MessageCombos);
    ReadPairs(reader, 1, t.SectionCount, t.SectionId, t.SectionCombos);
    t.CaseKeepers = ReadList(reader, caseKeeperCount);
    t.TightJoiners = ReadList(reader, tightJoinerCount);
    ReadPairs(reader, 0, t.ComponentCount, t.ComponentId, t.ComponentRows);
    t.BlockRows = ReadList(reader, t.SysBlockCount);
    RequireComponentRows(reader, t);
    t.ComponentBlock = Allocated<std::int16_t>(t.ComponentCount);
    // A count of stocks above what the program knows is refused once the file is read; until
    // then the rows can only land in the planes of the stocks there are.
    t.Map.Allocate(std::min(t.SysBlockCount, MaxDataBlocks), t.ComponentRows);
    for (int c = 0; c <= t.ComponentCount; ++c) {
        auto& block = t.ComponentBlock[static_cast<std::size_t>(c)];
        for (int r = 0; r <= t.ComponentRows[static_cast<std::size_t>(c)]; ++r) {
            // The row lands in the plane of the stock read with the pair before, so row 0
            // lands in the idle plane 0.
            const int plane = block;
            block = reader.ReadInt16();
            const std::int16_t stockRow = reader.ReadInt16();
            t.Map.At(plane, c, r) = stockRow;
        }
    }
    if (reader.ReadString() != "Parity") {
        throw ProgramError(ErrorNumber::ProgramState);
    }
}

} // namespace

std::int16_t ReadEngineTables(const std::filesystem::path& systemFile, EngineTables& tables) {
    try {
        const std::string text = ReadWholeFile(systemFile);
        FieldReader reader(text);
        ReadTables(reader, tables);
        return 0;
    } catch (const ProgramError& error) {
        return static_cast<std::int16_t>(error.Number());
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    } catch (const std::length_error&) {
        return ErrorNumber::OutOfMemory;
    }
}

} // namespace veyrant
