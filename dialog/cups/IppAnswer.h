#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <cups/ipp.h>

#include <memory>
#include <vector>

struct IppDeleter
{
    void operator()(ipp_t *ipp) const { ippDelete(ipp); }
};
using IppHandle = std::unique_ptr<ipp_t, IppDeleter>;

/// What a server answered in IPP.
struct IppAnswer
{
    IppHandle ipp;  ///< null: the bytes are no whole message
    int status = 0; ///< not libcups' enumeration: a server may say any number
    QString text;   ///< the server's own words, as they came; empty where it says nothing
};

/// Whether the bytes begin with a whole IPP message of a version that there is, within the limits
/// (ServerLimits.h). Looks at its structure in one pass without recursion, and not at its meaning.
bool isWholeMessage(const QByteArray &bytes);

/// Reads the message. libcups gets to see nothing that is not one: it reads collections by
/// recursion, and 9,000 of them within each other are more than its stack.
IppAnswer readIppAnswer(const QByteArray &bytes);

/// The message's groups of that kind, each as a message of its own: a list of jobs has one for
/// each.
std::vector<IppHandle> groupsOf(ipp_t *message, ipp_tag_t kind);

/// Whether the status says that the server did as it was asked.
bool isSuccess(int status);
