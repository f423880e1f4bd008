#pragma once

#include <chrono>

/// From the opening of the window until what nobody needs at once is asked for and counted: the
/// window and its panels are to be seen before all else.
inline constexpr std::chrono::milliseconds kFirstSight{200};
