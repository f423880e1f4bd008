#pragma once

/// Whether the user wants to see what becomes of a job after Print; yes, until told otherwise. Kept
/// in the program's own configuration.
bool followsJobs();
void setFollowsJobs(bool follows);
