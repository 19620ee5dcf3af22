#include "tests/support/literal_surface.h"

#include "surface/cell.h"
#include "surface/frustum.h"
#include "surface/marching_cubes_tables.h"
#include "surface/metaball_surface.h"
#include "surface/view_frustum.h"
#include "zrk/gl.h"

#include <algorithm>
#include <span>

namespace {

class LiteralPolygonizer {
public:
    explicit LiteralPolygonizer(const MetaballSurface& surface)
        : balls(surface.balls.get(), surface.ballCount),
          threshold(surface.threshold),
          maxDepth(surface.depthSetting)
    {
    }

    void draw(const BoundingBox& region)
    {
        testedBox.copyExtent(region);
        const std::uint8_t visibility = viewFrustum.classifyBox(testedBox, 0);
        if (visibility == 0)
            return;
        CornerValues values;
        for (std::size_t corner = 0; corner < cornerCount; ++corner)
            values[corner] = fieldAt(cornerPosition(region, corner));
        subdivide(region, values, 0, visibility);
    }

private:
    std::span<const Metaball> balls;
    float threshold;
    std::uint32_t maxDepth;
    BoundingBox testedBox;

    float fieldAt(const Vec3& p) const
    {
        float sum = 0.0f;
        for (const Metaball& ball : balls)
            sum += ball.fieldAt(p);
        return sum;
    }

    void subdivide(const BoundingBox& box, const CornerValues& values, std::uint32_t depth,
                   std::uint8_t visibility)
    {
        if (depth == maxDepth) {
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
        for (std::size_t corner = 0; corner < cornerCount; ++corner) {
            const auto& [x, y, z] = cornerOffset[corner];
            grid[2 * x][2 * y][2 * z] = values[corner];
        }
        for (const auto& [x, y, z] : cornerOffset) {
            CornerValues childValues;
            for (std::size_t corner = 0; corner < cornerCount; ++corner) {
                const auto& [dx, dy, dz] = cornerOffset[corner];
                childValues[corner] = grid[x + dx][y + dy][z + dz];
            }
            visitChild({{lines[x].x, lines[y].y, lines[z].z},
                        {lines[x + 1].x, lines[y + 1].y, lines[z + 1].z}},
                       childValues, depth + 1, visibility);
        }
    }

    void visitChild(const BoundingBox& box, const CornerValues& values, std::uint32_t depth,
                    std::uint8_t inherited)
    {
        if (caseIndexOf(values, threshold) == 0)
            return;
        testedBox.copyExtent(box);
        const std::uint8_t visibility = viewFrustum.classifyBox(testedBox, inherited);
        if (visibility == 0)
            return;
        if (std::ranges::any_of(balls, [&](const Metaball& b) { return box.intersects(b.bounds); }))
            subdivide(box, values, depth, visibility);
    }

    void polygonizeLeaf(const BoundingBox& box, const CornerValues& values) const
    {
        const std::uint8_t caseIndex = caseIndexOf(values, threshold);
        if (edgeTable[caseIndex] == 0)
            return;
        glBegin(GL_TRIANGLES);
        for (const std::int32_t edge : triTable[caseIndex]) {
            if (edge < 0)
                break;
            const auto& [from, to] = edgeCorners[static_cast<std::size_t>(edge)];
            const float mu = (threshold - values[from]) / (values[to] - values[from]);
            const Vec3 pa = cornerPosition(box, from);
            sendVertex(pa + (cornerPosition(box, to) - pa) * mu);
        }
        glEnd();
    }

    void sendVertex(const Vec3& p) const
    {
        constexpr float step = 0.1f;
        Vec3 outward;
        for (const Metaball& ball : balls)
            outward += Vec3(ball.fieldAt(p.x - step, p.y, p.z), ball.fieldAt(p.x, p.y - step, p.z),
                            ball.fieldAt(p.x, p.y, p.z - step));
        outward -= Vec3(fieldAt(p));
        outward.normalize();
        glTexCoord2f(0.5f * outward.x + 0.5f, 0.5f * outward.y + 0.5f);
        glVertex3f(p.x, p.y, p.z);
    }
};

} // namespace

void drawLiterally(const MetaballSurface& surface)
{
    LiteralPolygonizer(surface).draw(surface.region);
}
