#include "zrk/text_file.h"

#include "tests/support/temporary_directory.h"

#include <gtest/gtest.h>

#include <array>

TEST(TextFile, GivesLinesOfATextModeStream)
{
    // What is in the file, and its lines of at most four characters, each between bars.
    const std::pair<std::string, std::string> cases[] = {
        {"", "|"},
        {"ab\r\n\r\ncd\r\ne", "|ab\n|\n|cd\n|e|"},
        {"\ra\r\r\nb\r", "|\ra\r\n|b\r|"},
        {"abcd\r\nde", "|abcd|\n|de|"},
        {"abcde\nf", "|abcd|e\n|f|"},
        {{"a\0b\nc", 5}, "|a|c|"},
    };
    const TemporaryDirectory directory;
    for (const auto& [contents, expected] : cases) {
        directory.write("text", contents);
        const zrk::OwnedFile file = zrk::openTextFile("text");
        std::string lines = "|";
        for (std::array<char, 5> line; zrk::readLine(file.get(), line);)
            lines += line.data() + std::string("|");
        EXPECT_EQ(lines, expected);
    }
}

TEST(TextFile, IsARegularFileOfAtMostFourMebibytes)
{
    const TemporaryDirectory directory;
    directory.write("large", std::string(1 << 22, ' '));
    EXPECT_NE(zrk::openTextFile("large"), nullptr);
    directory.write("larger", std::string((1 << 22) + 1, ' '));
    ASSERT_TRUE(directory.makeFifo("fifo")); // nobody waits for its writer
    for (const char* name : {"larger", "fifo", "missing", ".", "/dev/zero", ""})
        EXPECT_EQ(zrk::openTextFile(name), nullptr) << name;
    EXPECT_EQ(zrk::openTextFile(nullptr), nullptr);
}
