#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QObject>
#include <QtCore/QStringList>

/// A plug-in's look at a PPD, for people who write one.
///
/// A plug-in may implement it beside PDEPlugIn, and names both to Q_INTERFACES; the dialog asks for
/// it by qobject_cast, so that another version is not found.
class PDEPPDCheck
{
public:
    virtual ~PDEPPDCheck() = default;

    /// What the plug-in's panels will not understand in the PPD, each one sentence in the user's
    /// language that names keyword and choice; none when all is well. Called after
    /// PDEPlugIn::initWithBundle(); the PPD is only read.
    virtual QStringList findingsInPPD(ppd_file_t *ppd) = 0;
};

#define PDEPPDCheck_iid "com.velkaro.print.PDEPPDCheck/1"
Q_DECLARE_INTERFACE(PDEPPDCheck, PDEPPDCheck_iid)
