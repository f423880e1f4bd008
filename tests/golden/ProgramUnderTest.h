#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDir>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QStringList>
#include <QtCore/QTemporaryDir>

/// A velkaro-print and the sample PPDs that it was built or installed with.
struct ProgramUnderTest
{
    QString path;

    /// Where it is installed: the folder that bin/ and share/ are in.
    QString root() const;
    QDir ppdFolder() const;
    QByteArray samplePPD(const QString &fileName) const;
};

/// An empty folder in which a case runs, with a home and an environment that are the same whoever
/// runs it. It goes with this object.
class Workplace
{
public:
    QString path(const QString &fileName) const;
    void write(const QString &fileName, const QByteArray &bytes) const;
    QByteArray read(const QString &fileName) const;

    /// The PPD of a recipe; without edits it is the sample itself.
    void writePPD(const QString &fileName, const QJsonObject &recipe,
                  const ProgramUnderTest &program) const;

    /// Lets the process start here; `language` is the user's.
    void prepare(QProcess &process, const QString &language) const;

    /// The same text whatever this folder is called and wherever the program is.
    QByteArray withoutPlaces(QByteArray text, const ProgramUnderTest &program) const;

private:
    QTemporaryDir m_folder;
};

/// What a run came to; a status below 0: it crashed or never ended.
struct ProgramResult
{
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

ProgramResult runToItsEnd(const ProgramUnderTest &program, const QStringList &arguments,
                          const Workplace &workplace, const QString &language);
