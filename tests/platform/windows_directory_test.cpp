#include "platform/win32_names.h"
#include "platform/windows_directory.h"
#include "tests/support/temporary_directory.h"

#include <array>
#include <gtest/gtest.h>

TEST(WindowsDirectory, IsTheFirstPlaceThatIsThere)
{
    const TemporaryDirectory directory;
    const auto& root = directory.path;
    const auto found = [&](const char* requested) {
        return platform::windowsDirectory(requested, root / "a/b/quazo", "/installed");
    };
    EXPECT_EQ(found(nullptr), "/installed");
    // In reverse order of preference.
    for (const char* place : {"a/share/quazo", "share/quazo", "a/b/windows"}) {
        std::filesystem::create_directories(root / place);
        EXPECT_EQ(found(""), root / place);
    }
    EXPECT_EQ(found("/wished"), "/wished");
}

TEST(WindowsDirectory, TellsTheSizeThatItNeeds)
{
    setenv("QUAZO_WINDOWS_DIRECTORY", "/wished", 1);
    std::array<char, 8> buffer{};
    EXPECT_EQ(GetWindowsDirectoryA(buffer.data(), 7), 8U);
    EXPECT_STREQ(buffer.data(), "");
    EXPECT_EQ(GetWindowsDirectoryA(buffer.data(), 8), 7U);
    EXPECT_STREQ(buffer.data(), "/wished");
}

TEST(WindowsDirectory, MayHaveAPathOfAnyLength)
{
    const TemporaryDirectory directory;
    const auto longPath = directory.path / std::string(200, 'a') / std::string(200, 'b');
    std::filesystem::create_directories(longPath);
    setenv("QUAZO_WINDOWS_DIRECTORY", longPath.c_str(), 1);
    std::array<char, MAX_PATH> buffer{};
    EXPECT_LT(GetWindowsDirectoryA(buffer.data(), MAX_PATH), UINT{MAX_PATH});
    EXPECT_TRUE(SetCurrentDirectoryA(buffer.data()));
    EXPECT_EQ(std::filesystem::current_path(), longPath);
}
