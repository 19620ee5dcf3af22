#pragma once

namespace zrk {

/// Splits a line into tokens as `strtok` does, with its state in an object. Each call has its own
/// delimiters: a layer line has one set for its keyword, one for words, one for numbers.
class LineTokens {
public:
    /// `line` is borrowed, and changed: every token is terminated in place.
    explicit LineTokens(char* line) : rest(line) {}

    /// Skips leading `delimiters` and returns the text before the next one, which is consumed as
    /// well. Returns null at the end of the line.
    char* next(const char* delimiters);

private:
    char* rest;
};

} // namespace zrk
