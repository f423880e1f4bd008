#pragma once

/// Has the dialog's own texts shown in the user's first preferred language that it is written in;
/// English is in the code. The toolkit's own texts follow where their tables are installed; so do
/// the texts of a PPD, and a print server is asked to answer in that language.
void installTranslations();
