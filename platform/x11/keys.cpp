#include "platform/x11/keys.h"

#include "platform/win32_names.h"

#include <X11/keysym.h>
#include <X11/XKBlib.h>

#include <algorithm>
#include <array>
#include <iterator>

namespace platform::x11 {

namespace {

// The keysyms from `first` to `last` have consecutive codes that begin with `code`, or all have
// that one code. Letters, digits, function keys and arrows are in the same order as keysyms and as
// codes.
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
    {XK_space, XK_space, VK_SPACE},
    // editing
    {XK_BackSpace, XK_Tab, VK_BACK}, // then Tab
    {XK_ISO_Left_Tab, XK_ISO_Left_Tab, VK_TAB},
    {XK_Clear, XK_Clear, VK_CLEAR},
    {XK_Return, XK_Return, VK_RETURN},
    {XK_Pause, XK_Pause, VK_PAUSE},
    {XK_Escape, XK_Escape, VK_ESCAPE},
    {XK_Print, XK_Print, VK_SNAPSHOT},
    {XK_Insert, XK_Insert, VK_INSERT},
    {XK_Delete, XK_Delete, VK_DELETE},
    {XK_Menu, XK_Menu, VK_APPS},
    // movement
    {XK_Prior, XK_Next, VK_PRIOR},
    {XK_End, XK_End, VK_END},
    {XK_Home, XK_Home, VK_HOME},
    {XK_Left, XK_Down, VK_LEFT}, // left, up, right, down
    // keypad
    {XK_KP_Enter, XK_KP_Enter, VK_RETURN},
    {XK_KP_Prior, XK_KP_Next, VK_PRIOR},
    {XK_KP_End, XK_KP_End, VK_END},
    {XK_KP_Home, XK_KP_Home, VK_HOME},
    {XK_KP_Left, XK_KP_Down, VK_LEFT}, // left, up, right, down
    {XK_KP_Begin, XK_KP_Begin, VK_CLEAR},
    {XK_KP_Insert, XK_KP_Delete, VK_INSERT},
    {XK_KP_0, XK_KP_9, VK_NUMPAD0},
    {XK_KP_Multiply, XK_KP_Divide, VK_MULTIPLY}, // * + separator - decimal point /
    // functions
    {XK_F1, XK_F24, VK_F1},
    // modifiers: left and right are one key
    {XK_Shift_L, XK_Shift_R, VK_SHIFT, true},
    {XK_Control_L, XK_Control_R, VK_CONTROL, true},
    {XK_Meta_L, XK_Alt_R, VK_MENU, true},
    {XK_ISO_Level3_Shift, XK_ISO_Level3_Shift, VK_MENU}, // AltGr
    {XK_Caps_Lock, XK_Caps_Lock, VK_CAPITAL},
    {XK_Super_L, XK_Super_R, VK_LWIN},
    {XK_Num_Lock, XK_Num_Lock, VK_NUMLOCK},
    {XK_Scroll_Lock, XK_Scroll_Lock, VK_SCROLL},
};

// The code of a key in one keyboard layout (a group, in X terms): of its unshifted keysym, or else
// of its shifted one, which is where a French keyboard has its digits.
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
    const int layout = static_cast<int>(XkbGroupForCoreState(event.state));
    // With Num Lock (the modifier Mod2) the keypad's keys are digits, which are their second
    // keysyms: XKB says KP_End first and KP_1 second. Only there the modifier selects the keysym.
    const KeySym second = XkbKeycodeToKeysym(display, key, layout, 1);
    if ((event.state & Mod2Mask) != 0 && XK_KP_Multiply <= second && second <= XK_KP_9)
        return virtualKeyOf(second);
    // Where the active layout has no Latin letter on the key, another layout of the keyboard has.
    for (const int group : {layout, 0, 1, 2, 3})
        if (const int code = codeInGroup(display, key, group); code != 0)
            return code;
    return 0;
}

} // namespace platform::x11
