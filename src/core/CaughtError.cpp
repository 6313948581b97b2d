#include "core/CaughtError.h"

#include "core/ProgramError.h"
#include "core/WholeFile.h"

#include <exception>
#include <new>
#include <system_error>

namespace veyrant {

int CaughtErrorNumber() {
    try {
        throw;
    } catch (const ProgramError& error) {
        return error.Number();
    } catch (const std::bad_alloc&) {
        return ErrorNumber::OutOfMemory;
    } catch (const std::system_error& error) {
        return ErrorNumberFor(error.code());
    } catch (...) {
        return ErrorNumber::ProgramState;
    }
}

} // namespace veyrant
