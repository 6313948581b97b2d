#include "core/ProgramError.h"
#include "core/Text.h"
#include "engine/Engine.h"
#include "engine/EngineFiles.h"

#include <array>
#include <new>

namespace veyrant {

namespace {

constexpr int SystemFileFailed = 1010;
constexpr int TooManyBlocks = 1001;
constexpr int MissingStock = 1002;

const std::string Paragraph = std::string(CrLf) + std::string(CrLf);

std::string LoadSystemText(int number, std::int16_t systemError, std::int16_t sysBlockCount,
                           std::int16_t lastLoaded) {
    const std::string blocks = std::to_string(sysBlockCount);
    switch (number) {
    case SystemFileFailed:
        if (systemError == ErrorNumber::ProgramState) {
            return "Parity error loading the configuration system file. Data structure is "
                   "incorrect.";
        }
        return "The system cannot load the Veyrant Sagrel because it has insufficient available "
               "memory." +
               Paragraph +
               "The immediate solution is to close one or more open programs. However, we "
               "recommend that you clear your computer's memory by closing all open programs, "
               "then logging out and in again.";
    case TooManyBlocks:
        return "DESIGN ERROR: Sysblocks too large for current system design. Sysblocks=" + blocks +
               " exceeds MaxDataBlocks=" + std::to_string(MaxDataBlocks);
    case MissingStock:
        return "Incorrect number=" + std::to_string(lastLoaded) +
               " of LCMs in LoadSystem. Probable missing BAS file(s) in system MAK. Required "
               "SysBlocks=" +
               blocks + Paragraph +
               "The missing cmp.BAS files must be added to the MAK file, sub LoadSystem "
               "reconfigured, and the EXE re-compiled.";
    default:
        return "Unknown error " + std::to_string(number) +
               " loading the system. Check conformity to SysBlocks=" + blocks;
    }
}

using StockFiller = void (*)(PhraseStocks&);
constexpr std::array<StockFiller, MaxDataBlocks> StockFillers = {
    FillStock1, FillStock2, FillStock3,  FillStock4,  FillStock5,  FillStock6,  FillStock7,
    FillStock8, FillStock9, FillStock10, FillStock11, FillStock12, FillStock13, FillStock14};

} // namespace

bool Engine::LoadSystem(const AppFolder& folder) {
    planFile_ = folder.Exe() / PlanFileName;
    plans_.reset();
    int number = 0;
    try {
        SystemError = ReadEngineTables(folder.Exe() / SystemFileName, tables_);
        if (SystemError != 0) {
            throw ProgramError(SystemFileFailed);
        }
        if (tables_.SysBlockCount > MaxDataBlocks) {
            throw ProgramError(TooManyBlocks);
        }
        for (const StockFiller fill : StockFillers) {
            fill(stocks_);
        }
        if (stocks_.LastLoaded != tables_.SysBlockCount) {
            throw ProgramError(MissingStock);
        }
        composer_.MarkJoiners();
        return true;
    } catch (const ProgramError& error) {
        number = error.Number();
    } catch (const std::bad_alloc&) {
        number = ErrorNumber::OutOfMemory;
    }
    windows_.ShowMessage(
        {"Error LoadSystem",
         LoadSystemText(number, SystemError, tables_.SysBlockCount, stocks_.LastLoaded),
         MessageIcon::Warning, MessageButtons::Ok, 1});
    SystemError = 1;
    return false;
}

} // namespace veyrant
