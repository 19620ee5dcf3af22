#pragma once

/// The saver's name and version: the window's title, and the beginning of the about text.
inline constexpr const char* saverTitle = "quazo! screen saver v1e-32 beta";

/// Shows name, makers and where to read more in a message box. Returns once it is closed.
void showAboutBox();
