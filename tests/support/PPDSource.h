#pragma once

#include "dialog/host/PPDFile.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

/// A small PPD as text, opened by the real parser. Choices are written "NAME" or "NAME/Text"; the
/// first one is the default.
class PPDSource
{
public:
    PPDSource();

    PPDSource &modelName(const QString &name);
    PPDSource &modelNumber(int number);
    PPDSource &attribute(const QString &keyword, const QString &value);
    /// `option` is "KEYWORD" or "KEYWORD/Text".
    PPDSource &option(const QString &option, const QStringList &choices);

    /// The opened PPD with its defaults marked. Fails the test when the parser does not take it.
    PPDHandle open() const;

private:
    QString m_modelName;
    QString m_body;
};
