#pragma once

/// Where the windows of the program are shown.
class Display
{
public:
    /// Somebody can see the windows and answer them. The platforms "offscreen" and "minimal" have no display: whatever
    /// waits for its user there waits for ever. Tests run there.
    static bool isThere();
};
