#pragma once

#include <vector>

/// Stands in for the calls that send triangles: link it before the real GL, which without a
/// context does nothing in the other calls.
namespace vertex_sink {

/// One call pair, bit for bit; `leaf` counts the primitives begun.
struct Vertex {
    unsigned leaf;
    float s, t, x, y, z;
};

/// Keeps what is sent from now on; otherwise it is dropped.
void keep();

/// What was sent since `keep`; ends the keeping.
std::vector<Vertex> take();

} // namespace vertex_sink
