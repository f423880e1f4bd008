#pragma once

#include "tests/golden/PPDFacts.h"
#include "tests/golden/ProgramUnderTest.h"
#include "tests/golden/Random.h"

#include <QtCore/QJsonObject>

/// A PPD that a case uses: the recipe, and what is in it.
struct PreparedPPD
{
    QString fileName;
    QJsonObject recipe;
    PPDFacts facts;
};

/// One of the samples, as it is or changed in one to five places.
PreparedPPD randomPPD(Random &random, const ProgramUnderTest &program, const QString &fileName);
