#include "app/scene.h"
#include "app/shell_state.h"
#include "platform/win32.h"
#include "tests/app/fresh_shell.h"
#include "tests/support/headless_desktop.h"
#include "zrk/library_data.h"
#include "zrk/shaders/shader_layer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>

namespace {

constexpr const char* oneShader = "only\n{\nblend: one, one\n}\n";

int runWith(std::string commandLine)
{
    return WinMain(nullptr, nullptr, commandLine.data(), SW_SHOW);
}

// The last of the program's objects to go tells what happened before it.
struct LastLayer : zrk::ShaderLayer {
    ~LastLayer() override { std::fprintf(stderr, "%slayer deleted", glCalls().c_str()); }
    void apply() override {}
    void reapply() override {}
    void readBack() override {}
    void toText(zrk::String& /*out*/) const override {}
    void write(std::FILE* /*out*/) const override {}
    void resolve(const zrk::TexturePool& /*pool*/) override {}
};

[[noreturn]] void runAndEnd()
{
    const int status = runWith("/s");
    zrk::libraryData.shaders[0].addLayer(std::make_unique<LastLayer>());
    glCalls();
    std::exit(status);
}

} // namespace

TEST(WinMain, ShowsTheAboutBoxOrQuitsSilentlyOrCannotOpenTheWindow)
{
    const FreshShell shell;
    EXPECT_EQ(runWith("/c:1234"), 0);
    EXPECT_THAT(requests(),
                testing::MatchesRegex("messageBox.\"quazo! screen saver v1e-32 beta by the quazo! "
                                      "makers\n[^\n]*README[^\n]*\", \"\", 48.; "));
    EXPECT_EQ(runWith("/p 1234"), 0);
    EXPECT_EQ(requests(), "");
    headless_desktop::fail("createWindow");
    EXPECT_EQ(runWith("/s"), 0);
    EXPECT_THAT(requests(), testing::EndsWith("\"Window Creation Error.\", \"ERROR\", 48); "));
}

TEST(WinMain, DrawsUntilEscapeAndMindsTabAndMinimising)
{
    FreshShell shell;
    shell.makeData(oneShader);
    shell.onSwap = [](int swaps) {
        constexpr float clocks[] = {0.01f, 0.02f, 0.01f, 0.0f};
        constexpr std::uint32_t frames[] = {1, 2, 3, 3};
        ASSERT_LE(swaps, 4);
        EXPECT_EQ(animationTime, clocks[swaps - 1]) << swaps;
        EXPECT_EQ(frameCounter, frames[swaps - 1]) << swaps;
        if (swaps == 1)
            headless_desktop::play(WM_KEYDOWN, VK_TAB); // held to the end
        if (swaps == 3)
            headless_desktop::play(WM_ACTIVATE, 0x10000);
        if (swaps == 4)
            headless_desktop::play(WM_KEYDOWN, VK_ESCAPE);
    };
    EXPECT_EQ(runWith("/s"), 0);
    EXPECT_EQ(frameCounter, 3u);
    EXPECT_EQ(headless_desktop::thingsLeft(), 0u);
}

TEST(WinMain, HandlesAllThatWaitsBeforeItQuits)
{
    FreshShell shell;
    shell.makeData(oneShader);
    shell.onSwap = [](int) {
        headless_desktop::play(WM_CLOSE);
        headless_desktop::play(WM_KEYDOWN, 'A');
    };
    EXPECT_EQ(runWith("/s"), 0);
    EXPECT_TRUE(keyDown['A']);
    EXPECT_EQ(frameCounter, 1u);
    EXPECT_THAT(requests(), testing::EndsWith("setScreenSaverRunning(false); "));
}

TEST(WinMain, ObjectsGoSdlFirstThenTexturesThenLayers)
{
    FreshShell shell;
    shell.makeData(oneShader);
    shell.onSwap = [](int) { headless_desktop::play(WM_KEYDOWN, VK_ESCAPE); };
    EXPECT_EXIT(runAndEnd(), testing::ExitedWithCode(0),
                testing::EndsWith("SDL_Quit; glDeleteTextures(1, 3); glDeleteTextures(1, 2); "
                                  "glDeleteTextures(1, 1); layer deleted"));
}
