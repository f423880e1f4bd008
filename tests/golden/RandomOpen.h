#pragma once

#include "tests/golden/RandomPPD.h"

/// A random `open` of the PPD.
QJsonObject randomOpen(Random &random, const PreparedPPD &ppd);

/// Papers of all kinds: the PPD's, such as no PPD has, and sizes of the user's own. Its members are
/// those of a script's paper.
QJsonObject randomPaper(Random &random, const PPDFacts &facts);

/// A ticket entry: those that the panels read and others; values of every kind, in range or not.
struct TicketEntry
{
    QString key;
    QJsonValue value;
};
TicketEntry randomTicketEntry(Random &random);

/// A choice of the PPD.
struct RandomChoice
{
    QString keyword;
    QString choice;
};
RandomChoice randomChoice(Random &random, const PPDFacts &facts);
