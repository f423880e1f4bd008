#pragma once

#include "dialog/printing/PrintWishes.h"
#include "dialog/printing/SettingState.h"

struct Advice;
class PrintJob;

/// Tells on standard error what each setting of the command line has changed besides, and what to
/// type for one that was lost (--explain).
class Explanation
{
public:
    /// `isWanted`: whether the user has asked for it; nothing is told otherwise.
    Explanation(const PrintJob &job, bool isWanted) : m_job(job), m_isWanted(isWanted) {}

    /// Before the first setting is made.
    void begin();

    /// After each one.
    void tellMade(const RequestedChoice &setting);

    /// How the settings that were lost are to be had.
    void tellLost(const QList<RequestedChoice> &lost) const;

private:
    const PrintJob &m_job;
    const bool m_isWanted;
    SettingState m_former;
};

/// The options to type for what the advice comes to: "-o KEY=VALUE -o KEY=VALUE". Null where it
/// comes to nothing.
QString optionsToType(const Advice &advice);
