#pragma once

// libcups' PPD interface, and the only place that includes it. libcups marks every function of it
// as deprecated; PPDs are what this program is about, so the mark is taken off while the header is
// read. What else is deprecated, in libcups or in the toolkit, is still warned of.

#include <cups/cups.h>
#include <cups/versioning.h>

#pragma push_macro("_CUPS_DEPRECATED_1_6_MSG")
#undef _CUPS_DEPRECATED_1_6_MSG
// NOLINTNEXTLINE(bugprone-reserved-identifier): the name is theirs.
#define _CUPS_DEPRECATED_1_6_MSG(message) _CUPS_PUBLIC
#include <cups/ppd.h>
#pragma pop_macro("_CUPS_DEPRECATED_1_6_MSG")
