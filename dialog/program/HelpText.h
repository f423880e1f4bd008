#pragma once

// Without Qt: the launcher prints these texts before it loads anything.

/// What --help prints, with the line break at its end.
const char *helpText();

/// What --version prints, with the line break at its end.
const char *versionText();
