#include "zrk/line_tokens.h"

#include <cstring>

namespace zrk {

char* LineTokens::next(const char* delimiters)
{
    char* const token = rest + std::strspn(rest, delimiters);
    rest = token + std::strcspn(token, delimiters);
    if (rest == token)
        return nullptr; // `rest` stays on the terminator: later calls find nothing either
    if (*rest != '\0')
        *rest++ = '\0';
    return token;
}

} // namespace zrk
