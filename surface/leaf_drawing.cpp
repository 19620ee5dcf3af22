#include "surface/leaf_drawing.h"

#include "surface/marching_cubes_tables.h"
#include "zrk/gl.h"

// Immediate mode, a vertex once for each of its triangles: the saver's stream of OpenGL calls. A
// vertex takes the texture coordinate that is current, so that one is sent first.
void drawLeaf(std::span<const EdgeVertex> vertices,
              const std::array<std::uint8_t, edgeCount>& vertexOfEdge, std::uint8_t caseIndex)
{
    glBegin(GL_TRIANGLES);
    for (const std::int32_t* edge = triTable[caseIndex].data(); *edge >= 0; ++edge) {
        const auto& [position, s, t] = vertices[vertexOfEdge[static_cast<std::size_t>(*edge)]];
        glTexCoord2f(s, t);
        glVertex3f(position[0], position[1], position[2]);
    }
    glEnd();
}
