#pragma once

class MetaballSurface;

/// Draws what `MetaballSurface::polygonizeAndDraw` draws, bit for bit, in the plainest way: every
/// sample sums every ball in array order, and every corner of every triangle is interpolated and
/// given its texture coordinate afresh. Takes the settings and the balls from `surface`, but not
/// the bounds of the balls, and shares no more than the case table with it. Applies no shader.
void drawLiterally(const MetaballSurface& surface);
