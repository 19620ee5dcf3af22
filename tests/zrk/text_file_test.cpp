#include "zrk/text_file.h"

#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using namespace std::string_literals;

TEST(TextFile, GivesLinesOfATextModeStream)
{
    // What is in the file, and its lines of at most four characters, each between bars.
    const std::pair<std::string, std::string> cases[] = {
        {"", "|"},
        {"ab\r\n\r\ncd\r\ne", "|ab\n|\n|cd\n|e|"},
        {"\ra\rb\n", "|\ra\rb|\n|"},
        {"a\r\r\nb\r", "|a\r\n|b\r|"},
        {"abc\nde", "|abc\n|de|"},
        {"abcd\r\nde", "|abcd|\n|de|"},
        {"abcde\nf", "|abcd|e\n|f|"},
        {"a\0b\nc"s, "|a|c|"},
    };
    const TemporaryDirectory directory;
    for (const auto& [contents, expected] : cases) {
        directory.write("text", contents);
        std::FILE* const file = zrk::openTextFile("text");
        ASSERT_NE(file, nullptr);
        std::string lines = "|";
        for (std::array<char, 5> line; zrk::readLine(file, line);)
            lines += line.data() + "|"s;
        EXPECT_EQ(lines, expected);
        std::fclose(file);
    }
    for (const char* name : {".", "missing", static_cast<const char*>(nullptr)})
        EXPECT_EQ(zrk::openTextFile(name), nullptr);
}

} // namespace
