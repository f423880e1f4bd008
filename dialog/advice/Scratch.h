#pragma once

#include "dialog/host/PPDMarks.h"
#include "dialog/printing/SettingState.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <functional>

/// A change that was tried out, on top of others, to see whether it leads to a wanted choice.
struct Trial
{
    /// What was changed, and from what.
    SettingChange change;
    /// Whether the wanted choice was had then: picked and saved it was the marked one, all changes
    /// stood, and nothing was in conflict that had not been before.
    bool isHad = false;
    /// Whether the wanted choice could at least be picked.
    bool isNearer = false;
    /// What had become otherwise besides in the end, where it was had.
    QList<SettingChange> beside;
    /// Equal for choices of one setting that make no difference to anything but that setting
    /// itself; empty where the change made none to anything else, and where nobody asked for it.
    QByteArray effect;
    /// Equal where the changes have led to the same in all; empty where nobody asked for it.
    QByteArray state;
};

/// What is to be found out of a trial.
enum class Look {
    ForChoice,  ///< whether the wanted choice is had
    ForEffects, ///< what difference the change makes, too
};

/// Settings that can be tried out without anybody seeing it, from one base that is never left.
class Scratch
{
public:
    virtual ~Scratch() = default;

    /// Whether the wanted choice is to be had without any change.
    virtual bool isHad() = 0;

    /// Makes the changes in order, and then, each by itself on top of them, every change of another
    /// setting that can be made there and that the filter lets through; `take` is told of each.
    /// False when not all could be tried: there was no time left.
    virtual bool tryEach(const QList<SettingChange> &made, Look look,
                         const std::function<bool(const SettingChange &)> &filter,
                         const std::function<void(const Trial &)> &take) = 0;
};
