#include "tests/support/temporary_directory.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

namespace {

/// Runs the program below a shell in the current directory; true if it succeeds.
bool run(const std::string& arguments, const std::string& shellWords = "")
{
    setenv("PROGRAM", QUAZO_MAKE_CAUSTICS, 1); // its path may hold what a shell would take apart
    const std::string program = shellWords + " \"$PROGRAM\" ";
    return std::system((program + arguments + " >output.txt 2>&1").c_str()) == 0;
}

std::string textOf(const std::filesystem::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

/// All that is in the current directory but what the program said.
std::map<std::string, std::string> contents()
{
    std::map<std::string, std::string> found;
    for (const auto& entry : std::filesystem::recursive_directory_iterator("."))
        found[entry.path().filename()] = entry.is_regular_file() ? textOf(entry) : "";
    found.erase("output.txt");
    return found;
}

TEST(MakeCaustics, BytesDependOnTheSeedAndNotOnTheThreads)
{
    const TemporaryDirectory directory;
    ASSERT_TRUE(run("--size 32 --threads 1 ."));
    const auto first = contents();
    EXPECT_EQ(first.size(), 36U); // the folder, 32 images, three text files
    ASSERT_TRUE(run("--size 32 --threads 3 ."));
    EXPECT_EQ(contents(), first);
    ASSERT_TRUE(run("--size 32 --seed 14 ."));
    EXPECT_NE(contents(), first);
}

TEST(MakeCaustics, WrongCallsAreRefusedInOneLine)
{
    const TemporaryDirectory directory;
    for (const char* const arguments : {"", ". .", "--bogus .", "--size 15 .", ". --seed", "no"}) {
        EXPECT_FALSE(run(arguments)) << arguments;
        const std::string text = textOf("output.txt");
        EXPECT_EQ(std::ranges::count(text, '\n'), 1) << text;
        EXPECT_TRUE(contents().empty());
    }
}

TEST(MakeCaustics, FailureLeavesNothingOrTheFormerSet)
{
    const TemporaryDirectory directory;
    const auto fail = [] {
        EXPECT_FALSE(run("--size 32 .", "ulimit -f 1;")); // no file may grow beyond a block
        EXPECT_FALSE(run("--size 512 .", "timeout -s TERM 0.5"));
    };
    fail();
    EXPECT_TRUE(contents().empty());
    ASSERT_TRUE(run("--size 16 ."));
    const auto former = contents();
    fail();
    EXPECT_EQ(contents(), former);
}

} // namespace
