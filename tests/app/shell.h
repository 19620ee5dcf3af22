#pragma once

#include "app/scene.h"
#include "app/shell_state.h"
#include "app/window_procedure.h"
#include "tests/support/gl_recorder.h"
#include "tests/support/headless_desktop.h"
#include "tests/support/temporary_directory.h"
#include "zrk/library_data.h"
#include "zrk/shaders/texture_units.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

using headless_desktop::play;

inline std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "; ";
    return text;
}

/// The program on a headless desktop, with recorded OpenGL and three shaders, each of one texture.
class Shell : public testing::Test {
protected:
    Shell()
    {
        const std::string rest = ", linear, linear, clamp, clamp, modulate, <0, 0, 0, 0>\n}\n";
        std::string here; // a name may be longer than most buffers
        while (here.size() < 2000)
            here += "./";
        windows.write("###quazo!_data###/caustics.qvd", here + "textures\nshaders\n");
        windows.write("textures", "3\ndot.ppm\ndot.ppm\ndot.ppm\n");
        windows.write("dot.ppm", "P6 1 1 255\nabc");
        windows.write("shaders", "a\n{\ntexture: 0" + rest + "b\n{\ntexture: 1" + rest +
                                     "c\n{\ntexture: 2" + rest);
        setenv("QUAZO_WINDOWS_DIRECTORY", windows.path.c_str(), 1);
        restart();
    }

    static void restart()
    {
        std::destroy_at(&zrk::libraryData);
        std::construct_at(&zrk::libraryData);
        headless_desktop::reset();
        gl_recorder::reset();
        zrk::beginContext(); // as OpenGL has started anew
        cursorTravel = {};
        keyDown = {};
        windowActive = true;
        animationTime = 0.0f;
        frameCounter = 0;
        windowWidth = 800;
        windowHeight = 600;
    }

    /// Ends by Escape, a frame after what was played; how many frames were drawn in all.
    static std::uint32_t run(std::string commandLine = "/s")
    {
        play(0);
        play(WM_KEYDOWN, VK_ESCAPE);
        EXPECT_EQ(WinMain(nullptr, nullptr, commandLine.data(), SW_SHOW), 0);
        return frameCounter;
    }

    const TemporaryDirectory windows;
};
