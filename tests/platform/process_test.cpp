#include "platform/win32_names.h"
#include "platform/windows_directory.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

namespace fs = std::filesystem;

namespace {

class WindowsDirectory : public testing::Test {
protected:
    WindowsDirectory()
    {
        std::string name = testing::TempDir() + "quazo_XXXXXX";
        root = mkdtemp(name.data());
    }
    ~WindowsDirectory() override { fs::remove_all(root); }

    [[nodiscard]] fs::path found(const char* wished) const
    {
        return platform::windowsDirectory(wished, root / "a/b/quazo", "/installed");
    }

    fs::path root;
};

} // namespace

TEST_F(WindowsDirectory, IsTheFirstPlaceThatIsThere)
{
    EXPECT_EQ(found(nullptr), "/installed");
    // From the last to the first to be looked at; a file is no directory.
    for (const char* place : {"a/share/quazo", "share/quazo", "a/b/windows"}) {
        fs::create_directories(root / place);
        EXPECT_EQ(found(""), root / place);
    }
    EXPECT_EQ(found("/wished"), "/wished");
}

TEST(Process, TellsTheSizeThatItsWindowsDirectoryNeeds)
{
    setenv("QUAZO_WINDOWS_DIRECTORY", "/wished", 1);
    std::array<char, 8> buffer{};
    EXPECT_EQ(GetWindowsDirectoryA(nullptr, 0), 8U);
    EXPECT_EQ(GetWindowsDirectoryA(buffer.data(), 7), 8U);
    EXPECT_STREQ(buffer.data(), "");
    EXPECT_EQ(GetWindowsDirectoryA(buffer.data(), 8), 7U);
    EXPECT_STREQ(buffer.data(), "/wished");
    unsetenv("QUAZO_WINDOWS_DIRECTORY");
    EXPECT_FALSE(SetCurrentDirectoryA("/nowhere at all"));
}
