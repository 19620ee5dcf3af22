#pragma once

#include <sstream>
#include <string>
#include <utility>

/// A call as the recorders write it down: "name(first, second)", numbers as streams print them.
template <typename... Parameters>
std::string callText(const std::string& name, const Parameters&... parameters)
{
    std::ostringstream line;
    line << name << '(';
    [[maybe_unused]] const char* separator = "";
    ((line << std::exchange(separator, ", ") << parameters), ...);
    line << ')';
    return line.str();
}
