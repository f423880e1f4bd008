#pragma once

#include "dialog/cups/JobStatus.h"

#include <QtCore/QString>

/// A job as people name it.
struct JobName
{
    QString queue;
    int id = 0;
    int pages = 0; ///< of all its documents and copies; 0: not known
};

/// Where the job stands, one sentence.
QString sentenceOf(const JobName &job, const JobStatus &status);
