#include "platform/x11/message_dialog.h"

#include "platform/x11/deferred_events.h"
#include "platform/x11/display.h"
#include "platform/x11/pointer.h"
#include "platform/x11/window_manager.h"
#include "platform/x11/window_table.h"

#include <FL/Fl.H>
#include <FL/Fl_Box.H>
#include <FL/fl_draw.H>
#include <FL/Fl_Return_Button.H>
#include <FL/Fl_Window.H>
#include <FL/x.H>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace platform::x11 {

namespace {

struct Icon {
    UINT style;
    const char* sign;
    uchar red, green, blue;
};

constexpr UINT iconBits = 0xF0;
constexpr std::array<Icon, 2> icons = {{
    {MB_ICONEXCLAMATION, "!", 201, 122, 12},
    {MB_ICONINFORMATION, "i", 41, 98, 181},
}};

// A window of ours that is on the screen; 0 when there is none.
::Window shownWindow()
{
    const auto records = windowRecords();
    const auto found = std::find_if(records.begin(), records.end(),
                                    [](const WindowRecord& record) { return record.shown; });
    return found == records.end() ? 0 : found->id;
}

// A window that stays above the saver's own topmost window and has the keyboard focus.
class TopmostWindow : public Fl_Window {
public:
    using Fl_Window::Fl_Window;

    // A window that is not viewable yet cannot have the focus.
    void takeKeyboard()
    {
        if (!seen)
            return;
        giveKeyboard(fl_display, fl_xid(this));
        XFlush(fl_display);
    }

private:
    int handle(int event) override
    {
        // The window exists and is not mapped yet: a manager reads these properties when it is.
        if (event == FL_SHOW) {
            const Atom above = atom(AtomName::netWmStateAbove);
            XChangeProperty(fl_display, fl_xid(this), atom(AtomName::netWmState), XA_ATOM, 32,
                            PropModeReplace, reinterpret_cast<const uchar*>(&above), 1);
            keepOpaque(fl_display, fl_xid(this));
            if (const ::Window saver = shownWindow();
                saver != 0) // stays above it when a click raises it
                XSetTransientForHint(fl_display, fl_xid(this), saver);
        }
        return Fl_Window::handle(event);
    }

    void draw() override
    {
        Fl_Window::draw();
        if (!std::exchange(seen, true))
            takeKeyboard();
    }

    bool seen = false;
};

// A plain text; FLTK's labels take an '@' for the start of a symbol's name.
class PlainText : public Fl_Widget {
public:
    PlainText(int x, int y, int width, int height, const char* text)
        : Fl_Widget(x, y, width, height, text)
    {
    }

private:
    void draw() override
    {
        fl_color(labelcolor());
        fl_font(labelfont(), labelsize());
        fl_draw(label(), x(), y(), w(), h(), FL_ALIGN_LEFT | FL_ALIGN_WRAP, nullptr, 0);
    }
};

// Sizes and positions in pixels. Except for the text they are multiples of the font size.
struct Layout {
    int letter = 0;
    int textWidth = 0, textHeight = 0, bodyHeight = 0;
    int x = 0, y = 0, width = 0, height = 0;
};

// The font grows with the monitor, 64 lines to its height, so that a box can be read on any of
// them; the text is wrapped at half the monitor's width. The box is centred.
Layout layoutOf(const char* text)
{
    constexpr int smallestLetter = 14, linesOnMonitor = 64;
    constexpr int firstMonitor = 0; // FLTK counts the primary one first
    int left = 0, top = 0, width = 0, height = 0;
    Fl::screen_xywh(left, top, width, height, firstMonitor);
    Layout made;
    made.letter = std::max(smallestLetter, height / linesOnMonitor);
    fl_font(FL_HELVETICA, made.letter);
    made.textWidth = width / 2;
    fl_measure(text, made.textWidth, made.textHeight, 0);
    made.bodyHeight = std::max(made.textHeight, 3 * made.letter);
    made.width = made.textWidth + 7 * made.letter;
    made.height = made.bodyHeight + 6 * made.letter;
    made.x = left + (width - made.width) / 2;
    made.y = top + (height - made.height) / 2;
    return made;
}

// The widgets of a box; the texts must outlive it.
class MessageDialog {
public:
    MessageDialog(const Layout& layout, const char* text, const char* caption, UINT type)
        : window(layout.x, layout.y, layout.width, layout.height,
                 *caption == '\0' ? "quazo!" : caption), // taskbars list it by its name
          sign(layout.letter, layout.letter, 3 * layout.letter, 3 * layout.letter),
          message(5 * layout.letter, layout.letter + (layout.bodyHeight - layout.textHeight) / 2,
                  layout.textWidth + layout.letter, layout.textHeight, text),
          button((layout.width - 7 * layout.letter) / 2, layout.bodyHeight + 3 * layout.letter,
                 7 * layout.letter, 2 * layout.letter, "OK")
    {
        window.end();
        window.xclass("Quazo");
        window.box(FL_BORDER_BOX); // without a manager nobody else draws a border
        window.color(FL_WHITE);
        message.labelsize(layout.letter);
        button.box(FL_GTK_UP_BOX);
        button.down_box(FL_GTK_DOWN_BOX);
        button.labelsize(layout.letter);
        button.callback([](Fl_Widget* pressed) { pressed->window()->hide(); });
        showIcon(type & iconBits, 2 * layout.letter);
    }

    // Returns when the box is closed, by the user or by `endDescriptor`.
    void run(int endDescriptor)
    {
        // FLTK sleeps in poll() on its own connection; with ours and the signals' pipe added,
        // whatever needs an answer wakes it.
        const VisiblePointer pointer(connection());
        const int saversDescriptor = ConnectionNumber(connection());
        watch(saversDescriptor, [](int, void* box) { static_cast<MessageDialog*>(box)->attend(); });
        if (endDescriptor >= 0)
            watch(endDescriptor,
                  [](int, void* box) { static_cast<MessageDialog*>(box)->window.hide(); });
        window.show();
        window.cursor(FL_CURSOR_ARROW);
        button.take_focus();
        attend(); // to events that Xlib has read already: the descriptor is not readable for them
        while (window.shown() != 0)
            Fl::wait();
        Fl::remove_fd(saversDescriptor);
        if (endDescriptor >= 0)
            Fl::remove_fd(endDescriptor);
    }

private:
    void watch(int descriptor, Fl_FD_Handler handler)
    {
        Fl::add_fd(descriptor, FL_READ, handler, this);
    }

    // A click beside the box gives the focus to the saver's window, and some managers leave it
    // there: the box answers to the same keys in both.
    void attend()
    {
        const DeferredEvents::Noticed noticed = saversEvents.take();
        if (noticed.closing)
            window.hide();
        else if (noticed.focused)
            window.takeKeyboard();
    }

    void showIcon(UINT style, int letter)
    {
        const auto icon = std::find_if(icons.begin(), icons.end(),
                                       [=](const Icon& known) { return known.style == style; });
        if (icon == icons.end())
            return;
        sign.box(FL_FLAT_BOX);
        sign.color(fl_rgb_color(icon->red, icon->green, icon->blue));
        sign.label(icon->sign);
        sign.labelfont(FL_HELVETICA_BOLD);
        sign.labelcolor(FL_WHITE);
        sign.labelsize(letter);
    }

    DeferredEvents saversEvents{connection()};
    TopmostWindow window;
    Fl_Box sign;
    PlainText message;
    Fl_Return_Button button;
};

// Gives FLTK a connection of its own, so that it does not take the events of our windows. With a
// connection that is given, FLTK leaves the X error handlers alone, which are ours. It stays open
// for the next box: FLTK keeps fonts and other resources of its first connection and crashes on a
// second.
bool openToolkit()
{
    if (fl_display != nullptr)
        return true;
    Display* const display = XOpenDisplay(nullptr);
    if (display == nullptr)
        return false;
#if FL_API_VERSION >= 10400
    setenv("FLTK_BACKEND", "x11", 1); // it would prefer Wayland, where the box has no X window
    fl_x11_use_display(display);
#else
    fl_open_display(display);
#endif
    return true;
}

} // namespace

bool runMessageDialog(const char* text, const char* caption, UINT type, int endDescriptor)
{
    if (!openToolkit())
        return false;
    MessageDialog(layoutOf(text), text, caption, type).run(endDescriptor);
    XFlush(fl_display);
    return true;
}

} // namespace platform::x11
