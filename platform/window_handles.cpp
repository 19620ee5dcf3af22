#include "platform/window_handles.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

namespace platform {

namespace {

// Behind pointers, so that a record does not move when a window procedure makes or destroys others.
constinit std::vector<std::unique_ptr<HandleRecord>> records;

// Handles are numbers that are never reused, so a stale one finds nothing.
constinit std::uintptr_t lastNumber = 0;

constinit bool pointerShown = true;

template <typename Predicate>
HandleRecord* findWhere(Predicate predicate)
{
    const auto found = std::find_if(records.begin(), records.end(),
                                    [&](const auto& record) { return predicate(*record); });
    return found == records.end() ? nullptr : found->get();
}

} // namespace

HWND addHandle(const HandleRecord& record)
{
    records.push_back(std::make_unique<HandleRecord>(record));
    records.back()->handle = reinterpret_cast<HWND>(++lastNumber);
    if (!pointerShown)
        desktop::showPointer(record.native, false);
    return records.back()->handle;
}

void removeHandle(HWND handle)
{
    std::erase_if(records, [handle](const auto& record) { return record->handle == handle; });
}

HandleRecord* recordOf(HWND handle)
{
    return findWhere([handle](const HandleRecord& record) { return record.handle == handle; });
}

HWND handleOf(desktop::NativeWindow native)
{
    const HandleRecord* const record =
        findWhere([native](const HandleRecord& each) { return each.native == native; });
    return record == nullptr ? nullptr : record->handle;
}

desktop::NativeWindow nativeOf(HWND handle)
{
    const HandleRecord* const record = recordOf(handle);
    return record == nullptr ? 0 : record->native;
}

HWND newestHandle()
{
    return records.empty() ? nullptr : records.back()->handle;
}

bool anyHandleOf(ATOM windowClass)
{
    return findWhere([windowClass](const HandleRecord& record) {
               return record.windowClass == windowClass;
           }) != nullptr;
}

void showPointerOverWindows(bool visible)
{
    if (visible == pointerShown)
        return;
    pointerShown = visible;
    for (const auto& record : records)
        desktop::showPointer(record->native, visible);
}

LRESULT sendMessage(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HandleRecord* const record = recordOf(handle);
    return record == nullptr ? 0 : record->procedure(handle, message, wParam, lParam);
}

} // namespace platform
