#pragma once

#include "platform/ppd/CupsPPD.h"

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

/// An option of a PPD that the dialog itself offers, because nobody else does.
struct PrinterFeature
{
    enum class Kind {
        Switch, ///< on or off: its choices are True and False
        One,    ///< one of its choices
        Many,   ///< any of its choices at once
    };

    QString keyword;
    QString text;
    Kind kind = Kind::One;

    bool operator==(const PrinterFeature &) const = default;
};

/// Options that stand together in the PPD.
struct FeatureGroup
{
    QString text;
    bool isInstalled = false; ///< what is built into the printer: set up with the queue, for all
    QList<PrinterFeature> features;

    bool operator==(const FeatureGroup &) const = default;
};

/// The options of the PPD (null: none) by its groups, those of what is built in last, without the
/// keywords that are left out, without the paper's, and without those that leave nothing to choose
/// or cannot be sent. A group without any is not there; subgroups stand as groups.
QList<FeatureGroup> printerFeatures(ppd_file_t *ppd, const QStringList &leftOut);

/// The choice that a switch has when it is on, or off, as the PPD spells it.
QString switchChoice(ppd_file_t *ppd, const PrinterFeature &feature, bool isOn);

/// The choices of the feature that are marked, by their names. A value of the user's own counts as
/// the choice that stands for all of them ("Custom").
QStringList markedChoices(ppd_file_t *ppd, const PrinterFeature &feature);

/// What is marked of a feature of many choices when one of them is ticked, or no longer: None (or
/// Off, or False) goes with no other choice, and stands for no choice where the feature has it.
QStringList choicesAfter(ppd_file_t *ppd, const PrinterFeature &feature, const QString &choice,
                         bool isTicked);
