#include "app/multitexture.h"
#include "tests/app/fresh_shell.h"
#include "tests/support/gl_recorder.h"
#include "zrk/renderer.h"

#include <gtest/gtest.h>

#include <cstdint>

TEST(Multitexture, NeedsTheWholeNameAndTwoUnits)
{
    constexpr struct {
        const char* extensions;
        std::uint32_t units;
        bool available;
    } cases[] = {
        {"", 8, false},
        {"GL_EXT_blend GL_ARB_multitexture GL_EXT_fog", 2, true},
        {"GL_ARB_multitexture", 1, false},
        {"GL_ARB_multitexture_more GL_ARB_multi XGL_ARB_multitexture ", 8, false},
        {"GL_ARB_multitexture_more  GL_ARB_multitexture", 8, true},
    };
    for (const auto& [extensions, units, available] : cases) {
        const FreshShell shell;
        gl_recorder::setExtensions(extensions);
        gl_recorder::answer(GL_MAX_TEXTURE_UNITS, static_cast<GLint>(units));
        obtainMultitexture();
        EXPECT_EQ(zrk::renderer.multitextureAvailable, available) << extensions;
        EXPECT_EQ(zrk::renderer.glActiveTextureARB == gl_recorder::activeTexture, available);
        EXPECT_EQ(zrk::renderer.textureUnits, available ? units : 1u);
    }
}
