#pragma once

#include "dialog/host/SessionObserver.h"
#include "dialog/host/SessionOptions.h"

#include <QtCore/QDir>
#include <QtCore/QJsonObject>
#include <QtCore/QList>

#include <optional>
#include <variant>

// The events of a replay script, checked: what is in them has the type that the event wants, but
// need not exist (a panel, a control, a keyword).

struct ReplayOpen
{
    SessionOptions options;
    /// The dialog window's height in points; none: there is no key window.
    std::optional<double> windowHeight;
};

struct ReplayShow
{
    QString panel;
};

struct ReplayPanelCall
{
    SessionObserver::PanelOperation operation = SessionObserver::PanelOperation::Hide;
    QString panel;
};

/// One of `choice` and `checked` is there.
struct ReplayPick
{
    QString panel;
    QString control;
    std::optional<QString> choice;
    std::optional<bool> checked;
};

struct ReplaySlide
{
    QString keyword;
    double value = 0;
};

struct ReplayRevert
{};

struct ReplayFold
{
    QString panel;
    bool open = false;
};

struct ReplayPaper
{
    PMPaper paper;
    /// None: the paper that the document is scaled to stays; a null name: there is none any more.
    std::optional<QString> mapped;
};

struct ReplayMark
{
    QString keyword;
    QString choice;
};

/// An invalid value removes the key.
struct ReplayTicket
{
    QString key;
    QVariant value;
};

struct ReplayWindow
{
    std::optional<double> height;
};

struct ReplayWatch
{};

struct ReplayPicture
{
    QDir folder;
    QString file; ///< as the script names it
};

struct ReplayPost
{
    QString name;
    std::optional<QVariantMap> userInfo;
};

/// A question: why the choice is not to be had, and how it is.
struct ReplayWhy
{
    QString keyword;
    QString choice;
};

struct ReplayPrint
{};

struct ReplayState
{};

struct ReplayClose
{};

using ReplayAction =
    std::variant<ReplayOpen, ReplayShow, ReplayPanelCall, ReplayPick, ReplaySlide, ReplayRevert,
                 ReplayFold, ReplayPaper, ReplayMark, ReplayTicket, ReplayWindow, ReplayWatch,
                 ReplayPicture, ReplayPost, ReplayWhy, ReplayPrint, ReplayState, ReplayClose>;

/// How an alert is answered. None of a value: the first button, the box as it is.
struct ReplayAnswer
{
    std::optional<int> button;
    std::optional<bool> suppress;
};

struct ReplayEvent
{
    QString kind; ///< as the script names it
    ReplayAction action;
    QList<ReplayAnswer> answers; ///< for the alerts that the event raises, in order
};
