#include "app/command_line.h"

Mode modeFor(const char* commandLine)
{
    if (*commandLine == '\0')
        return Mode::about;
    for (const char* letter = commandLine; *letter != '\0'; ++letter) {
        if (*letter == 's' || *letter == 'S')
            return Mode::run;
        if (*letter == 'c')
            return Mode::about;
    }
    return Mode::quit;
}
