#pragma once

// The shape of the message language as qdr41.sys describes it: the components, the stock rows
// behind each, the sizes of the plans, and the two lists that steer case and spacing.

#include <cstdint>
#include <filesystem>
#include <vector>

namespace veyrant {

// The number of stock slots the composer knows.
inline constexpr std::int16_t MaxDataBlocks = 14;
// Raised when a number read from a data file points outside the table it indexes.
inline constexpr int SubscriptOutOfRange = 9;

// Stock row by stock number, component and component row, held in one block so that a lookup
// is plain arithmetic. Each component takes room only for the rows it has, in every plane, so
// the block grows with the pairs the file holds and not with the product of its largest counts.
class RowMap {
public:
    // Planes 0 to blocks; component c has rows 0 to componentRows[c], each at least 0.
    void Allocate(int blocks, const std::vector<std::int16_t>& componentRows);
    std::int16_t& At(int block, int component, int row);
    std::int16_t At(int block, int component, int row) const;

private:
    std::size_t Index(int block, int component, int row) const;

    std::vector<std::int16_t> cells_;
    std::vector<std::size_t> first_; // first cell of each component, and the end after the last
    int planes_ = 0;
};

// Lists counting from 1 keep an idle entry 0; component lists count from 0.
struct EngineTables {
    std::int16_t ComponentCount = 0;
    std::int16_t RowCap = 0;
    std::int16_t MessageCount = 0;
    std::int16_t SectionCount = 0;
    std::int16_t MaxSections = 0;
    std::int16_t MaxComponents = 0;
    std::int16_t SysBlockCount = 0;
    std::vector<std::int16_t> MessageId;
    std::vector<std::int32_t> MessageCombos;
    std::vector<std::int16_t> SectionId;
    std::vector<std::int32_t> SectionCombos;
    std::vector<std::int16_t> CaseKeepers;
    std::vector<std::int16_t> TightJoiners;
    std::vector<std::int16_t> ComponentId;
    std::vector<std::int16_t> ComponentRows;
    std::vector<std::int16_t> BlockRows;
    std::vector<std::int16_t> ComponentBlock;
    RowMap Map;
};

// Reads the file whole into tables and returns SystemError: 0 when all is well, 1001 when the
// closing mark is not "Parity", otherwise the number of the error met. Nothing is raised.
std::int16_t ReadEngineTables(const std::filesystem::path& systemFile, EngineTables& tables);

} // namespace veyrant
