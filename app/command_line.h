#pragma once

/// What a screen saver host asks for.
enum class Mode { quit, about, run };

/// The mode that the first deciding letter of `commandLine` selects: 's' and 'S' run the saver, 'c'
/// shows the about box. All other characters, 'C' among them, are skipped. An empty line shows the
/// about box; a line without a deciding letter quits.
[[nodiscard]] Mode modeFor(const char* commandLine);
