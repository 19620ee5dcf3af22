#include "app/out_of_memory.h"

#include "zrk/cexception.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>

namespace {

bool isLackOfMemory(const std::exception_ptr& thrown)
{
    try {
        if (thrown)
            std::rethrow_exception(thrown);
    } catch (const zrk::Cexception&) {
        return true;
    } catch (const std::bad_alloc&) { // of the standard library's own containers
        return true;
    } catch (...) {
        return false;
    }
    return false; // nothing was thrown
}

[[noreturn]] void endProcess()
{
    if (!isLackOfMemory(std::current_exception()))
        std::abort();
    std::fputs("quazo: out of memory\n", stderr);
    std::_Exit(outOfMemoryStatus);
}

} // namespace

bool handleOutOfMemory()
{
    std::set_terminate(endProcess);
    return true;
}
