#include "tests/support/vertex_sink.h"

#include "zrk/gl.h"

#include <utility>

namespace {

std::vector<vertex_sink::Vertex> vertices;
vertex_sink::Vertex next;
bool keeping = false;

} // namespace

void vertex_sink::keep()
{
    next.leaf = 0;
    keeping = true;
}

std::vector<vertex_sink::Vertex> vertex_sink::take()
{
    keeping = false;
    return std::exchange(vertices, {});
}

extern "C" {

void glBegin(GLenum /*mode*/)
{
    ++next.leaf;
}

void glTexCoord2f(GLfloat s, GLfloat t)
{
    next.s = s;
    next.t = t;
}

void glVertex3f(GLfloat x, GLfloat y, GLfloat z)
{
    next.x = x;
    next.y = y;
    next.z = z;
    if (keeping)
        vertices.push_back(next);
}

void glEnd() {}

} // extern "C"
