#pragma once

#include <QtCore/QLatin1String>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include <cstdint>
#include <optional>
#include <vector>

class ImageView;
class ObservableDictionary;

/// A look into a panel for replay and bug reports. Reading changes nothing, and loads no view.
///
/// A panel may implement it (PDEExtension.h); a dialog that finds it can report the panel's whole
/// state without knowing which panel it is.
class PDEPanelInspection
{
public:
    static constexpr auto kIdentifier = QLatin1String("com.velkaro.print.PDEPanelInspection/1");

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

    /// The panel's class name.
    virtual QString inspectedClassName() const = 0;

    /// What the panel has found out about the printer, one bit each as the panel numbers them.
    virtual std::int32_t inspectedFlags() const = 0;

    /// The current paper name; null before one is known.
    virtual QString inspectedPaperName() const = 0;

    /// The pending values.
    virtual QVariantMap inspectedOutputBin() const = 0;

    /// The view's dictionary; null before the view is loaded.
    virtual const ObservableDictionary *inspectedEffectContent() const = 0;

    /// The list of advanced options; none for a panel that has no such list.
    virtual std::optional<Rows> inspectedRows() const { return std::nullopt; }

    /// Whether the panel has a preview picture at all.
    virtual bool inspectedHasPicture() const { return false; }

    /// The view that shows the preview picture; null without one or before the view is loaded.
    virtual ImageView *inspectedPicture() const { return nullptr; }
};
