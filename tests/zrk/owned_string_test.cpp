#include "zrk/owned_string.h"

#include "tests/support/allocations.h"
#include "zrk/allocation.h"

#include <gtest/gtest.h>

namespace {

void expectText(const zrk::String& string, const std::string& text)
{
    EXPECT_EQ(string.cString(), text);
    EXPECT_EQ(string.bytes(), text.size() + 1);
}

TEST(String, HoldsItsTextAndTheTerminator)
{
    zrk::String string;
    expectText(string, "");
    string = "caustic";
    expectText(string += " frame", "caustic frame");
    expectText(string += string.cString() + 12, "caustic framee");
    expectText(string = string.cString() + 8, "framee");
    expectText(string += nullptr, "");
    expectText(string += "x", "x");
    expectText(string = static_cast<const char*>(nullptr), "");
}

TEST(String, KeepsItsTextWhenThereIsNoMemory)
{
    zrk::String string;
    string = "kept";
    const auto fails = [&](auto change) {
        const allocations::Failure failure(1);
        EXPECT_THROW(change(), zrk::Cexception);
        expectText(string, "kept");
    };
    fails([&] { string = "a longer text"; });
    fails([&] { string += "more"; });
    fails([&] { string.clear(); });
}

} // namespace
