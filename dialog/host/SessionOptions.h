#pragma once

#include "dialog/host/HostCallback.h"
#include "dialog/host/PPDFile.h"
#include "platform/foundation/Bundle.h"
#include "platform/pde/PDEPlugIn.h"
#include "platform/printmanager/PMPageFormat.h"

#include <QtCore/QMap>
#include <QtCore/QStringList>
#include <QtCore/QVariant>

#include <optional>
#include <set>

/// What a dialog session starts from. The defaults are those of a real dialog.
struct SessionOptions
{
    QString ppdPath;
    QString bundlePath; ///< null: the installed one that is for the printer, if any is
    QString dialogType = QLatin1String(kPDEPrintDialogType);

    /// Keyword to choice, marked after the PPD's own defaults, whatever they conflict with. What
    /// the PPD does not have is passed over.
    QMap<QString, QString> marks;
    /// The ticket to begin with; values keep their kind.
    QVariantMap ticket;
    /// None: the paper of the marked `PageSize`.
    std::optional<PMPaper> paper;

    /// The preferred languages of the process from then on; none: they are left alone.
    std::optional<QStringList> languages;
    Bundle::Strings strings = Bundle::Strings::Tables;
    /// Whether the bundle's tables are those of its kPDEReplayLanguagesKey alone.
    bool replayLanguagesOnly = false;
    PPDTexts ppdTexts = PPDTexts::InUserLanguage;
    /// Replaces the stored alert memory of the plug-in; none: it is left alone.
    std::optional<QVariantMap> alertMemory;

    QStringList refused;             ///< HostCallback::setRefused()
    std::set<HostOperation> lacking; ///< HostCallback::setLacking()
    QVariantMap info;                ///< entries over those of the bundle's information dictionary
    bool restore = true;             ///< whether new panels are told to restore their values
};
