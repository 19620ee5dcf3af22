#pragma once

// The names of X11 would get in the way of a test: it needs none of them.
struct _XDisplay;
struct __GLXcontextRec;

/// A current OpenGL context that draws into a picture of its own, on the display that `DISPLAY`
/// names. Throws `std::runtime_error` when there can be none.
class GlTestContext {
public:
    GlTestContext(int width, int height);
    GlTestContext(const GlTestContext&) = delete;
    GlTestContext& operator=(const GlTestContext&) = delete;
    ~GlTestContext();

private:
    _XDisplay* display;
    unsigned long picture = 0; // an X resource
    __GLXcontextRec* context = nullptr;
};
