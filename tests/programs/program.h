#pragma once

#include "tests/support/child_process.h"

#include <cstdlib>
#include <string>
#include <vector>

/// The saver as a user or a host starts it.
inline ChildProcess quazo(const std::vector<std::string>& arguments,
                          const ChildProcess::Environment& changes = {})
{
    std::vector<std::string> words{QUAZO_PROGRAM};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return ChildProcess(words, changes);
}

inline const std::string saverTitle = "quazo! screen saver v1e-32 beta";
