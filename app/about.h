#pragma once

/// The name of the saver and its version: the window's title and the head of the about text.
inline constexpr const char* saverTitle = "quazo! screen saver v1e-32 beta";

/// Shows what this is, who made it and where to find us, until the box is closed.
void showAboutBox();
