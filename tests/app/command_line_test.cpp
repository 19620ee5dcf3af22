#include "app/command_line.h"

#include <gtest/gtest.h>

TEST(CommandLine, FirstDecidingLetterDecides)
{
    for (const char* line : {"", "/c", "/c:1234", "cs"})
        EXPECT_EQ(modeFor(line), Mode::about) << line;
    for (const char* line : {"/s", "/S", "sc", "xys", "/C -s"})
        EXPECT_EQ(modeFor(line), Mode::run) << line;
    for (const char* line : {"/C", "/p 1234", "/a", " "})
        EXPECT_EQ(modeFor(line), Mode::quit) << line;
}
