#include "tools/caustics/parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace caustics {

void inParallel(int count, int threads, const std::function<void(int)>& work)
{
    std::atomic<int> next = 0;
    std::exception_ptr failure;
    std::mutex failureMutex;
    const auto workOn = [&] {
        try {
            for (int i = next++; i < count; i = next++)
                work(i);
        } catch (...) {
            const std::lock_guard lock(failureMutex);
            failure = std::current_exception();
            next = count;
        }
    };
    {
        std::vector<std::jthread> others;
        try {
            for (int i = 1; i < std::min(threads, count); ++i)
                others.emplace_back(workOn);
        } catch (const std::system_error&) { // those that were started do all the work
        }
        workOn();
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace caustics
