#pragma once

#include <QtCore/QHash>
#include <QtCore/QLatin1String>
#include <QtCore/QString>

class QAbstractButton;
class QWidget;

/// What a dialog needs to know of a panel's controls to use them as a person would: for settings of
/// the command line (-o), for running and recording scripts.
///
/// A panel may implement it (PDEExtension.h). Without it the panel works in the window all the
/// same; its settings are then marked in the PPD by the dialog, and reported to the panel.
///
/// Nothing here changes the panel or loads its view. A control is a PopUpButton, a RadioMatrix, or
/// a button that can be checked; sliders are FractionSliders, found by what the view binds them to.
class PDEPanelControls
{
public:
    static constexpr auto kIdentifier = QLatin1String("com.velkaro.print.PDEPanelControls/1");

    virtual ~PDEPanelControls() = default;

    /// The short name of the panel on the command line and in scripts, such as "print": the same in
    /// every language, and another one for each panel of the plug-in.
    virtual QString shortName() const = 0;

    /// The view as it is now; null before it is loaded.
    virtual QWidget *loadedView() const = 0;

    /// The widgets of the view that have a name in scripts, by name; the panel may know others that
    /// are not in the view.
    virtual QHash<QString, QWidget *> outlets() const = 0;

    /// The control that picks a choice of the PPD keyword; null without one, or before the view is
    /// loaded. It is among the outlets.
    virtual QWidget *controlOf(const QString &keyword) const = 0;

    /// Whether the choice is the one that the keyword's ticked box stands for. Asked of keywords
    /// whose control is a button.
    virtual bool isTicked(const QString &keyword, const QString &choice) const = 0;

    /// The name of the button that folds and unfolds a section of the view; null without one. The
    /// button is checked while the section is unfolded.
    virtual QString disclosureName() const { return {}; }

    /// The button that takes values of the view back to what they were; null without one.
    virtual QAbstractButton *revertButton() const { return nullptr; }

    /// The button of the view that opens the panel's help; null without one.
    virtual QAbstractButton *helpButton() const { return nullptr; }
};
