#include "engine/EngineTables.h"

#include "core/FieldReader.h"
#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <new>
#include <stdexcept>

namespace veyrant {

void RowMap::Allocate(int blocks, int components, int rows) {
    if (blocks < 0 || components < 0 || rows < 0) {
        throw ProgramError(SubscriptOutOfRange);
    }
    blocks_ = blocks + 1;
    components_ = components + 1;
    rows_ = rows + 1;
    cells_.assign(static_cast<std::size_t>(blocks_) * static_cast<std::size_t>(components_) *
                      static_cast<std::size_t>(rows_),
                  0);
}

std::size_t RowMap::Index(int block, int component, int row) const {
    if (block < 0 || block >= blocks_ || component < 0 || component >= components_ || row < 0 ||
        row >= rows_) {
        throw ProgramError(SubscriptOutOfRange);
    }
    return (static_cast<std::size_t>(block) * static_cast<std::size_t>(components_) +
            static_cast<std::size_t>(component)) *
               static_cast<std::size_t>(rows_) +
           static_cast<std::size_t>(row);
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

    ReadPairs(reader, 1, t.MessageCount, t.MessageId, t.MessageCombos);
    ReadPairs(reader, 1, t.SectionCount, t.SectionId, t.SectionCombos);
    t.CaseKeepers = ReadList(reader, caseKeeperCount);
    t.TightJoiners = ReadList(reader, tightJoinerCount);
    ReadPairs(reader, 0, t.ComponentCount, t.ComponentId, t.ComponentRows);
    t.BlockRows = ReadList(reader, t.SysBlockCount);
    t.ComponentBlock = Allocated<std::int16_t>(t.ComponentCount);
    t.Map.Allocate(t.SysBlockCount, t.ComponentCount, t.RowCap);
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
