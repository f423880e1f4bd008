#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// What a PPD's text offers, read without its parser.
struct PPDFacts
{
    struct Paper
    {
        QString name;
        int width;  ///< points
        int height; ///< points
    };

    QMap<QString, QStringList> options; ///< keyword to choices
    QList<Paper> papers;
};

PPDFacts factsOf(const QByteArray &ppd);
