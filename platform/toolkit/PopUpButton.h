#pragma once

#include "platform/Export.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtWidgets/QComboBox>

#include <functional>
#include <vector>

class PopUpModel;

/// A combo box whose items carry a represented object and can be disabled singly.
///
/// Items are found by their represented object; the title is what people read. A user's pick is the
/// signal activated(); what the program selects sends nothing.
class VELKARO_PLATFORM_EXPORT PopUpButton : public QComboBox
{
    Q_OBJECT
    /// The control's tag; a view resource gives it (ViewLoader.h). The rules ask for it often.
    Q_PROPERTY(int tag MEMBER m_tag)

public:
    /// The role of the model under which a list finds the detail of an item (setDetails()).
    static constexpr int kDetailRole = Qt::UserRole + 1;

    /// One line of the list.
    struct Item
    {
        QString title;             ///< what people read
        QString representedObject; ///< what the item stands for

        bool operator==(const Item &) const = default;
    };

    /// A plain text for the item with the represented object.
    using TextOf = std::function<QString(const QString &representedObject)>;

    /// The path of the picture before the title of the item with the represented object; null:
    /// none.
    using PictureOf = std::function<QString(const QString &representedObject)>;

    explicit PopUpButton(QWidget *parent = nullptr);

    /// Replaces all items; the first one is then selected. All items are enabled.
    void setItems(const std::vector<Item> &items);

    /// For the items that come after. A picture is looked for when it is first drawn: of a closed
    /// list that is the selected item's only.
    void setPictures(PictureOf pictureOf);

    /// What a list that shows details says of an item beside its title. It is asked for when it is
    /// drawn or searched; refreshDetails() says that it may have changed.
    void setDetails(TextOf detailOf);
    void refreshDetails();

    /// Whether these are the items that there are, in this order.
    bool hasItems(const std::vector<Item> &items) const;

    /// The index of the first item with the represented object; -1 when there is none.
    int indexOfRepresentedObject(const QString &object) const;

    /// The index of the first item with the title; -1 when there is none.
    int indexOfTitle(const QString &title) const;

    /// The tag that the view resource gave the control; 0 without one.
    int tag() const { return m_tag; }

    /// Null for an index that is not there.
    QString representedObject(int index) const;

    /// The represented object of the selected item; null when nothing is selected.
    QString selectedObject() const { return representedObject(currentIndex()); }

    /// Selects the item with the represented object. False, and no change, when there is none.
    bool selectObject(const QString &object);

    /// Whether the item can be picked. False for an index that is not there.
    bool isItemEnabled(int index) const;

    /// Lets the item be picked, or not. A disabled one stays selected.
    void setItemEnabled(int index, bool enabled);

    /// Picks the item as a user does who opens the list and clicks: also when it is selected
    /// already. The item must be there.
    void pick(int index);

    /// Wide enough for every title of ordinary length, and for minimumContentsLength() characters,
    /// or an ordinary choice without it. A choice that is cut is told in the tool tip.
    QSize sizeHint() const override;

    /// The same, with no more than an ordinary choice's characters beside the titles.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    /// A wheel that passes over the button by chance must not change a setting.
    void wheelEvent(QWheelEvent *event) override;

private:
    int wantedLength() const;
    QSize sizeFor(int length) const;
    int widthOfTitles() const;
    int widthOf(const QString &title) const;
    bool isChoiceCut() const;

    PopUpModel *m_items;
    bool m_hasPictures = false;
    mutable int m_widthOfTitles = -1;     ///< pixels; -1 until it is measured
    mutable QHash<QString, int> m_widths; ///< pixels, of titles in the present font
    int m_tag = 0;
};
