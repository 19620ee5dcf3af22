#include "tests/support/literal_surface.h"

#include "surface/frustum.h"
#include "surface/marching_cubes_tables.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "zrk/gl.h"

#include <algorithm>
#include <array>
#include <span>

namespace {

using Values = std::array<float, 8>;

// The definition once more, independent of the product's but for the case table, which has a test
// of its own. Corners: whether each lies at the maximum of x, y and z. Edges: from, to.
constexpr std::size_t corners[8][3] = {{0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1},
                                       {0, 1, 0}, {1, 1, 0}, {1, 1, 1}, {0, 1, 1}};
constexpr std::size_t edges[12][2] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
                                      {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};

Vec3 cornerOf(const BoundingBox& box, const std::size_t (&at)[3])
{
    return {box.corners[at[0]].x, box.corners[at[1]].y, box.corners[at[2]].z};
}

// Inline, since benchmarks measure against this version.
inline float shareOf(const Metaball& ball, const Vec3& p)
{
    const Vec3 d = p - ball.centre;
    const float s = ball.falloff * (d.x * d.x + d.y * d.y + d.z * d.z);
    return s >= 0.5f ? 0.0f : 4.0f * (s * s - s + 0.25f);
}

bool meets(const BoundingBox& box, const Metaball& ball)
{
    const Vec3& c = ball.centre;
    const Vec3 d(c.x - std::clamp(c.x, box.min().x, box.max().x),
                 c.y - std::clamp(c.y, box.min().y, box.max().y),
                 c.z - std::clamp(c.z, box.min().z, box.max().z));
    return d.x * d.x + d.y * d.y + d.z * d.z <= ball.radius * ball.radius;
}

struct LiteralPolygonizer {
    const MetaballSurface& surface;
    const std::span<const Metaball> balls{surface.balls.get(), surface.ballCount};
    const float threshold = surface.threshold;
    std::size_t lastPlane = 0; // that rejected a box

    float fieldAt(const Vec3& p) const
    {
        float sum = 0.0f;
        for (const Metaball& ball : balls)
            sum += shareOf(ball, p);
        return sum;
    }

    unsigned caseOf(const Values& values) const
    {
        unsigned outside = 0;
        for (std::size_t corner = 0; corner < 8; ++corner)
            outside += values[corner] >= threshold ? 0 : 1u << corner;
        return outside;
    }

    unsigned classify(const BoundingBox& box, unsigned contained)
    {
        for (std::size_t step = 0; step < 6; ++step) {
            const std::size_t i = (lastPlane + step) % 6;
            const Plane& plane = viewFrustum.testedPlanes[i];
            if ((contained >> i & 1) != 0)
                continue;
            const std::size_t high[3]{plane.n.x > 0, plane.n.y > 0, plane.n.z > 0};
            if (plane.distance(cornerOf(box, {1 - high[0], 1 - high[1], 1 - high[2]})) > 0) {
                lastPlane = i;
                return 0;
            }
            contained |= plane.distance(cornerOf(box, high)) <= 0 ? 1u << i : 0;
        }
        return contained;
    }

    void subdivide(const BoundingBox& box, const Values& values, std::uint32_t depth,
                   unsigned visibility)
    {
        if (depth == surface.depthSetting) {
            polygonizeLeaf(box, values);
            return;
        }
        const Vec3 middle = box.min() + (box.max() - box.min()) * 0.5f;
        const std::array<Vec3, 3> lines{box.min(), middle, box.max()};
        float grid[3][3][3];
        for (std::size_t a = 0; a < 3; ++a)
            for (std::size_t b = 0; b < 3; ++b)
                for (std::size_t e = 0; e < 3; ++e)
                    if (a == 1 || b == 1 || e == 1)
                        grid[a][b][e] = fieldAt({lines[a].x, lines[b].y, lines[e].z});
        for (std::size_t corner = 0; corner < 8; ++corner) {
            const auto& [x, y, z] = corners[corner];
            grid[2 * x][2 * y][2 * z] = values[corner];
        }
        for (const auto& [x, y, z] : corners) {
            Values childValues;
            for (std::size_t corner = 0; corner < 8; ++corner) {
                const auto& [dx, dy, dz] = corners[corner];
                childValues[corner] = grid[x + dx][y + dy][z + dz];
            }
            const BoundingBox child({lines[x].x, lines[y].y, lines[z].z},
                                    {lines[x + 1].x, lines[y + 1].y, lines[z + 1].z});
            if (caseOf(childValues) == 0)
                continue;
            const unsigned seen = classify(child, visibility);
            if (seen != 0 && std::ranges::any_of(
                                 balls, [&](const Metaball& ball) { return meets(child, ball); }))
                subdivide(child, childValues, depth + 1, seen);
        }
    }

    void polygonizeLeaf(const BoundingBox& box, const Values& values) const
    {
        const unsigned caseIndex = caseOf(values);
        if (caseIndex == 0 || caseIndex == 255)
            return;
        glBegin(GL_TRIANGLES);
        for (const std::int32_t* edge = triTable[caseIndex].data(); *edge >= 0; ++edge) {
            const auto& [from, to] = edges[*edge];
            const float mu = (threshold - values[from]) / (values[to] - values[from]);
            const Vec3 pa = cornerOf(box, corners[from]);
            sendVertex(pa + (cornerOf(box, corners[to]) - pa) * mu);
        }
        glEnd();
    }

    void sendVertex(const Vec3& p) const
    {
        constexpr float step = 0.1f;
        Vec3 outward;
        for (const Metaball& ball : balls)
            outward +=
                Vec3(shareOf(ball, p - Vec3(step, 0, 0)), shareOf(ball, p - Vec3(0, step, 0)),
                     shareOf(ball, p - Vec3(0, 0, step)));
        outward -= Vec3(fieldAt(p));
        outward.normalize();
        glTexCoord2f(0.5f * outward.x + 0.5f, 0.5f * outward.y + 0.5f);
        glVertex3f(p.x, p.y, p.z);
    }
};

} // namespace

void drawLiterally(const MetaballSurface& surface)
{
    LiteralPolygonizer literal{surface};
    Values values;
    for (std::size_t corner = 0; corner < 8; ++corner)
        values[corner] = literal.fieldAt(cornerOf(surface.region, corners[corner]));
    if (const unsigned visibility = literal.classify(surface.region, 0); visibility != 0)
        literal.subdivide(surface.region, values, 0, visibility);
}
