#include "platform/x11/keys.h"

#include <X11/keysym.h>
#include <X11/XKBlib.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace platform::x11 {

namespace {

// The keysyms from `first` to `last` have the codes from `code` on, or all that one code.
struct KeyRange {
    KeySym first, last;
    int code;
    bool oneCode = false;
};

constexpr KeyRange keyRanges[] = {
    // letters and digits
    {XK_0, XK_9, '0'},
    {XK_A, XK_Z, 'A'},
    {XK_a, XK_z, 'A'},
    {XK_space, XK_space, 0x20},
    // editing
    {XK_BackSpace, XK_Tab, 0x08},
    {XK_ISO_Left_Tab, XK_ISO_Left_Tab, 0x09},
    {XK_Clear, XK_Clear, 0x0C},
    {XK_Return, XK_Return, 0x0D},
    {XK_Pause, XK_Pause, 0x13},
    {XK_Escape, XK_Escape, 0x1B},
    {XK_Print, XK_Print, 0x2C},
    {XK_Insert, XK_Insert, 0x2D},
    {XK_Delete, XK_Delete, 0x2E},
    {XK_Menu, XK_Menu, 0x5D},
    // movement
    {XK_Prior, XK_Next, 0x21},
    {XK_End, XK_End, 0x23},
    {XK_Home, XK_Home, 0x24},
    {XK_Left, XK_Down, 0x25}, // left, up, right, down
    // keypad
    {XK_KP_Enter, XK_KP_Enter, 0x0D},
    {XK_KP_Prior, XK_KP_Next, 0x21},
    {XK_KP_End, XK_KP_End, 0x23},
    {XK_KP_Home, XK_KP_Home, 0x24},
    {XK_KP_Left, XK_KP_Down, 0x25}, // left, up, right, down
    {XK_KP_Begin, XK_KP_Begin, 0x0C},
    {XK_KP_Insert, XK_KP_Delete, 0x2D},
    {XK_KP_0, XK_KP_9, 0x60},
    {XK_KP_Multiply, XK_KP_Divide, 0x6A}, // multiply, add, separator, subtract, decimal, divide
    // functions
    {XK_F1, XK_F24, 0x70},
    // modifiers: left and right are one key
    {XK_Shift_L, XK_Shift_R, 0x10, true},
    {XK_Control_L, XK_Control_R, 0x11, true},
    {XK_Meta_L, XK_Alt_R, 0x12, true},
    {XK_ISO_Level3_Shift, XK_ISO_Level3_Shift, 0x12},
    {XK_Caps_Lock, XK_Caps_Lock, 0x14},
    {XK_Super_L, XK_Super_R, 0x5B},
    {XK_Num_Lock, XK_Num_Lock, 0x90},
    {XK_Scroll_Lock, XK_Scroll_Lock, 0x91},
};

// The code of what a key gives in one language, `group`: unshifted, or else shifted, as a French
// keyboard has its digits.
int codeInGroup(Display* display, KeyCode key, int group)
{
    const int code = virtualKeyOf(XkbKeycodeToKeysym(display, key, group, 0));
    return code != 0 ? code : virtualKeyOf(XkbKeycodeToKeysym(display, key, group, 1));
}

} // namespace

int virtualKeyOf(KeySym keysym)
{
    const auto range =
        std::find_if(std::begin(keyRanges), std::end(keyRanges), [keysym](const KeyRange& keys) {
            return keys.first <= keysym && keysym <= keys.last;
        });
    if (range == std::end(keyRanges))
        return 0;
    return range->oneCode ? range->code : range->code + static_cast<int>(keysym - range->first);
}

int virtualKey(const XKeyEvent& event)
{
    Display* const display = event.display;
    const auto key = static_cast<KeyCode>(event.keycode);
    const int language = static_cast<int>(XkbGroupForCoreState(event.state));
    // Num Lock turns the keypad's keys into digits.
    const KeySym second = XkbKeycodeToKeysym(display, key, language, 1);
    if ((event.state & Mod2Mask) != 0 && XK_KP_Multiply <= second && second <= XK_KP_9)
        return virtualKeyOf(second);
    // A language without Latin letters leaves the key to one that has them.
    for (const int group : {language, 0, 1, 2, 3})
        if (const int code = codeInGroup(display, key, group); code != 0)
            return code;
    return 0;
}

} // namespace platform::x11
