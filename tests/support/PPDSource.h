#pragma once

#include "dialog/host/PPDFile.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayList>

/// A small PPD as text, opened by the real parser.
///
///   PPDSource().option("VKBiDir/Both Ways", {"OFF/Off", "ON/On"}).open()
///
/// Keywords and choices are written "NAME/Text", or "NAME" where the text is the name. Texts are
/// UTF-8. Each operation adds its lines behind those before.
class PPDSource
{
public:
    PPDSource &modelName(const QByteArray &name);
    PPDSource &modelNumber(int number);
    PPDSource &attribute(const QByteArray &keyword, const QByteArray &value);

    /// An option whose default is its first choice.
    PPDSource &option(const QByteArray &option, const QByteArrayList &choices);
    /// One with another default, which need not be a choice, and one that says nothing of it.
    PPDSource &optionWithDefault(const QByteArray &option, const QByteArrayList &choices,
                                 const QByteArray &defaultChoice);
    PPDSource &optionWithoutDefault(const QByteArray &option, const QByteArrayList &choices);

    /// Sizes in points with margins of ten; the first paper is the default.
    struct Paper
    {
        QByteArray name;
        int width;
        int height;
    };
    PPDSource &papers(const QList<Paper> &papers);

    /// The two cannot be marked together; each is "KEYWORD CHOICE".
    PPDSource &constraint(const QByteArray &one, const QByteArray &other);

    QByteArray text() const;

    /// See openText().
    PPDHandle open() const;

private:
    QByteArray m_modelName = "Velkaro Test";
    QByteArray m_body;
};

/// A sample printer's PPD by its name, such as "velkaro-px-t900", with its defaults marked.
PPDHandle openSample(const QString &name);

/// The text of a sample printer's PPD, and the same without the lines that tell the defaults of
/// these keywords.
QByteArray sampleText(const QString &name);
QByteArray sampleWithoutDefaults(const QString &name, const QByteArrayList &keywords);

/// Opens a PPD from its text, with its defaults marked. Fails the test when the parser does not
/// take it.
PPDHandle openText(const QByteArray &text);

/// Takes the mark from the option's choice, so that nothing is marked. Fails the test when there is
/// no mark.
void unmark(ppd_file_t *ppd, const char *keyword);
