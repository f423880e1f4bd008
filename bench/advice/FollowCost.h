#pragma once

/// Rows on what an adviser costs that follows a session of which nobody asks anything: a pick, and
/// memory, against a session without one. Each is measured in a copy of this process, which has no
/// session.
void printFollowCost();
