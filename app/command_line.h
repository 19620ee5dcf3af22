#pragma once

/// What a screen saver can be asked for.
enum class Mode { quit, about, run };

/// The mode that the first deciding letter of `commandLine` names: 's' or 'S' runs, 'c' shows the
/// about box, and so does an empty line. A line without such a letter quits; all other characters,
/// 'C' among them, decide nothing.
[[nodiscard]] Mode modeFor(const char* commandLine);
