#pragma once

#include <QtCore/QHash>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <cstdint>
#include <optional>
#include <vector>

class ImageView;
class ObservableDictionary;
class QWidget;

/// A look into a panel for record, replay and bug reports. Reading changes nothing.
///
/// A panel may implement it beside PDEPanel; a dialog that finds it (dynamic_cast) can report the
/// panel's whole state without knowing which panel it is.
class PDEPanelInspection
{
public:
    virtual ~PDEPanelInspection() = default;

    /// One row of a panel's list of advanced options.
    struct Row
    {
        QString label; ///< what people read
        QString id;    ///< what the row stands for, the same in every language
    };

    /// The list of advanced options.
    struct Rows
    {
        std::vector<Row> rows; ///< in the order in which they are shown
        QString selectedRow;   ///< the id of the selected one; null: none
    };

    /// The panel's class name, such as "VKInkPrintSetting14PDE".
    virtual QString inspectedClassName() const = 0;

    /// The short name of the panel in scripts, such as "print".
    virtual QString inspectedName() const = 0;

    /// What the panel has found out about the printer, one bit each as the panel numbers them.
    virtual std::int32_t inspectedFlags() const = 0;

    /// The current paper name; null before one is known.
    virtual QString inspectedPaperName() const = 0;

    /// The pending values.
    virtual QVariantMap inspectedOutputBin() const = 0;

    /// The view's dictionary; null before the view is loaded.
    virtual const ObservableDictionary *inspectedEffectContent() const = 0;

    /// The view as it is now; null before it is loaded. Never loads it.
    virtual QWidget *inspectedView() const = 0;

    /// The outlets of the panel by name: the widgets of the view that the panel knows. Outlets that
    /// are not connected are absent.
    virtual QHash<QString, QWidget *> inspectedOutlets() const = 0;

    /// The control that picks a choice of the PPD keyword; null without one, or before the view is
    /// loaded.
    virtual QWidget *inspectedControl(const QString &) const { return nullptr; }

    /// The list of advanced options; none for a panel that has no such list.
    virtual std::optional<Rows> inspectedRows() const { return std::nullopt; }

    /// Whether the panel has a preview picture at all.
    virtual bool inspectedHasPicture() const { return false; }

    /// The view that shows the preview picture; null without one or before the view is loaded.
    virtual ImageView *inspectedPicture() const { return nullptr; }
};
