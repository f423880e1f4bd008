#include "dialog/host/PPDCompleteness.h"

namespace {

// What is open while the text is read from its beginning.
struct OpenParts
{
    bool quote = false;
    bool option = false;
    int groups = 0;
};

void readKeyword(QByteArrayView line, OpenParts &open)
{
    // Hardly a line opens or closes anything, and a PPD may have thousands of others.
    const char first = line.size() > 1 ? line[1] : '\0';
    if (first != 'O' && first != 'C' && first != 'J')
        return;
    if (line.startsWith("*OpenUI") || line.startsWith("*JCLOpenUI"))
        open.option = true;
    else if (line.startsWith("*CloseUI") || line.startsWith("*JCLCloseUI"))
        open.option = false;
    else if (line.startsWith("*OpenGroup") || line.startsWith("*OpenSubGroup"))
        ++open.groups;
    else if (line.startsWith("*CloseGroup") || line.startsWith("*CloseSubGroup"))
        --open.groups;
}

bool opensQuote(QByteArrayView line)
{
    const qsizetype colon = line.indexOf(':');
    const QByteArrayView value = colon < 0 ? QByteArrayView() : line.sliced(colon + 1).trimmed();
    return value.startsWith('"') && value.indexOf('"', 1) < 0;
}

void readLine(QByteArrayView line, OpenParts &open)
{
    if (open.quote) {
        open.quote = line.indexOf('"') < 0;
    } else if (line.startsWith('*') && !line.startsWith("*%")) {
        readKeyword(line, open);
        open.quote = opensQuote(line);
    }
}

// The last line, when the text ends within it.
bool isCutKeyword(QByteArrayView line)
{
    return line.startsWith('*') && !line.startsWith("*%") && !line.startsWith("*End") &&
           line.indexOf(':') < 0;
}

} // namespace

bool isCutOff(QByteArrayView text)
{
    OpenParts open;
    qsizetype start = 0;
    for (qsizetype end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n', start)) {
        readLine(text.sliced(start, end - start), open);
        start = end + 1;
    }
    const QByteArrayView last = text.sliced(start);
    readLine(last, open);
    return open.quote || open.option || open.groups > 0 || isCutKeyword(last);
}
