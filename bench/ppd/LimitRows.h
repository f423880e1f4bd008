#pragma once

/// Prints what opening a PPD at each limit costs, with the session on it, against half a second of
/// processor time.
void printLimitRows();
