#include "app/about.h"

#include "platform/win32.h"
#include "zrk/owned_string.h"

namespace {

constexpr const char* credit = " by the quazo! makers\n"
                               "Where to find us: see the README that comes with the saver.";

} // namespace

void showAboutBox()
{
    zrk::String text;
    text = saverTitle;
    text += credit;
    MessageBoxA(nullptr, text.cString(), "", MB_OK | MB_ICONEXCLAMATION);
}
