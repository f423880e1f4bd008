#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QVariant>

#include <optional>

/// The Print Settings panel posts it when a medium or the colour mode decides something of the
/// Color Settings panel's; the object is the dialog's callback object, the user information a
/// PrintSettingChange. Without user information the ticket says what holds.
inline constexpr auto kPrintSettingNotification = QLatin1String("VKInkPrintSettingNotification");

/// What has been decided.
struct PrintSettingChange
{
    enum class Subject {
        MonoColor,       ///< on: mono
        HalfTonePattern, ///< on: diffusion
        ColorMatching,   ///< on: natural
    };
    Subject subject = Subject::MonoColor;
    bool on = false;

    bool operator==(const PrintSettingChange &) const = default;
};

/// The change as user information. Its entry "PointTo" names the subject.
QVariantMap userInfoOf(const PrintSettingChange &change);

/// The change that the user information tells; none of another subject. A value that is missing is
/// off.
std::optional<PrintSettingChange> printSettingChange(const QVariantMap &userInfo);

/// The PPD keyword that the change is about.
QString keywordOf(PrintSettingChange::Subject subject);
