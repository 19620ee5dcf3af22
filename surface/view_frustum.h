#pragma once

class Frustum;

/// The view that surfaces are culled against: the camera's own frustum. The program that links the
/// surface says which one it is, and keeps it current between frames.
extern Frustum& viewFrustum;
