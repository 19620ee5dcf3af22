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
