#pragma once

/// Has the dialog's own texts shown in the user's first preferred language that it is written in;
/// English is in the code. The toolkit's own texts follow where their tables are installed.
void installTranslations();
