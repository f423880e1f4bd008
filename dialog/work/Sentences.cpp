#include "dialog/work/Sentences.h"

namespace {

constexpr QStringView kFullWidthEnds = u"。！？";
constexpr QStringView kEnds = u".!?…。！？";

} // namespace

QString endedLikeASentence(const QString &text)
{
    return kEnds.contains(text.back()) ? text : text + u'.';
}

QString joinedSentences(const QStringList &sentences)
{
    QString text;
    for (const QString &sentence : sentences) {
        if (!text.isEmpty() && !kFullWidthEnds.contains(text.back()))
            text += u' ';
        text += sentence;
    }
    return text;
}
