#pragma once

namespace zrk {

/// Cuts a line into tokens. Each scan says what separates its token: a shader's line is cut at
/// other characters after its keyword, and at others again within angle brackets.
class LineTokens {
public:
    /// `line` is borrowed; every token found is terminated in place.
    explicit LineTokens(char* line) : rest(line) {}

    /// Skips leading `delimiters` and takes what stands before the next one, which is consumed
    /// with it. Null when nothing is left.
    char* next(const char* delimiters);

private:
    char* rest;
};

} // namespace zrk
