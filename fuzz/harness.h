#pragma once

#include "tests/support/gl_recorder.h"
#include "zrk/shaders/layer_registry.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

/// What every fuzzer defines: tries one input, and crashes where something is wrong.
void tryInput(std::span<const std::uint8_t> input);

/// The name of a file of these bytes, until the next call.
inline const char* fileOf(std::span<const std::uint8_t> bytes)
{
    static const int descriptor = memfd_create("input", 0);
    static const std::string name = "/proc/self/fd/" + std::to_string(descriptor);
    if (ftruncate(descriptor, 0) != 0 || pwrite(descriptor, bytes.data(), bytes.size(), 0) < 0)
        std::abort();
    return name.c_str();
}

// Defined here, once per program, since libFuzzer looks for it by name.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    tryInput({data, size});
    // What outlives a pool: its layers, and the calls that its end has made.
    std::destroy_at(&zrk::layerRegistry);
    std::construct_at(&zrk::layerRegistry);
    gl_recorder::reset();
    return 0;
}
