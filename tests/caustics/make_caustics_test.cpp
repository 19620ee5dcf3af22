#include "tests/support/temporary_directory.h"
#include "tools/caustics/data_files.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <sys/wait.h>

namespace {

namespace fs = std::filesystem;

using Contents = std::map<std::string, std::string>;

/// Runs the program below a shell in the current directory, and yields its exit status.
int run(const std::string& arguments, const std::string& shellWords = "")
{
    const std::string command =
        shellWords + " '" QUAZO_MAKE_CAUSTICS "' " + arguments + " >output.txt 2>&1";
    const int status = std::system(command.c_str());
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

std::string textOf(const fs::path& file)
{
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
}

Contents contentsOf(const fs::path& folder)
{
    Contents contents;
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        contents[entry.path().filename()] = entry.is_regular_file() ? textOf(entry) : "";
    return contents;
}

TEST(MakeCaustics, BytesDependOnTheSeedAndNotOnTheThreads)
{
    const TemporaryDirectory directory;
    for (const char* name : {"one", "three", "other"})
        fs::create_directory(name);
    ASSERT_EQ(run("--size 32 --threads 1 one"), 0);
    ASSERT_EQ(run("--size 32 --threads 3 three"), 0);
    ASSERT_EQ(run("--size 32 --seed 14 other"), 0);
    EXPECT_EQ(contentsOf("one").size(), 36U); // the folder, 32 images, three text files
    EXPECT_EQ(contentsOf("one"), contentsOf("three"));
    EXPECT_NE(contentsOf("one"), contentsOf("other"));
}

TEST(MakeCaustics, WrongCallsAreRefusedInOneLine)
{
    const struct {
        const char* arguments;
        int status;
        const char* says;
    } calls[] = {{"", 2, "no directory"},
                 {". .", 2, "more than one directory: '.'"},
                 {"--bogus .", 2, "unknown option '--bogus'"},
                 {"--size 15 .", 2, "from 16 to 1024, not '15'"},
                 {"--size 64x .", 2, "not '64x'"},
                 {". --seed", 2, "--seed wants a number"},
                 {"missing", 1, "no directory missing"}};
    const TemporaryDirectory directory;
    for (const auto& call : calls) {
        EXPECT_EQ(run(call.arguments), call.status) << call.arguments;
        const std::string text = textOf("output.txt");
        EXPECT_NE(text.find(call.says), std::string::npos) << text;
        EXPECT_EQ(text.find('\n'), text.size() - 1) << text;
        EXPECT_FALSE(fs::exists(caustics::dataFolder));
    }
}

TEST(MakeCaustics, FullDiskLeavesNothingOrTheFormerSet)
{
    const TemporaryDirectory directory;
    const char* const fullDisk = "ulimit -f 1;"; // no file may grow beyond 1024 bytes
    EXPECT_EQ(run("--size 16 .", fullDisk), 1);
    EXPECT_NE(textOf("output.txt").find("cannot write"), std::string::npos);
    EXPECT_FALSE(fs::exists(caustics::dataFolder));

    ASSERT_EQ(run("--size 16 ."), 0);
    const Contents former = contentsOf(caustics::dataFolder);
    EXPECT_EQ(run("--size 32 .", fullDisk), 1);
    EXPECT_EQ(contentsOf(caustics::dataFolder), former);
}

TEST(MakeCaustics, WhatIsInTheWayStaysAlone)
{
    const TemporaryDirectory directory;
    directory.write(caustics::dataFolder, "a file in the folder's place");
    EXPECT_EQ(run("--size 16 ."), 1);
    EXPECT_EQ(textOf(caustics::dataFolder), "a file in the folder's place");

    fs::remove(caustics::dataFolder);
    fs::create_directories(fs::path(caustics::dataFolder) / "caustics.qvd");
    EXPECT_EQ(run("--size 16 ."), 1);
    EXPECT_NE(textOf("output.txt").find("cannot replace"), std::string::npos);
    EXPECT_EQ(contentsOf(caustics::dataFolder).size(), 1U);
}

TEST(MakeCaustics, KilledRunLeavesNothingBehind)
{
    const TemporaryDirectory directory;
    EXPECT_NE(run("--size 1024 .", "timeout -s TERM 0.5"), 0);
    EXPECT_EQ(contentsOf(".").size(), 1U); // what it said
}

} // namespace
