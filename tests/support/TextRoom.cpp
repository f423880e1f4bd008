#include "tests/support/TextRoom.h"

#include "platform/toolkit/CaptionLabel.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListView>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QTabBar>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

/// What a widget has to show, and the pixels that it lacks for it.
struct Shown
{
    QString text;
    QSize lacking = {0, 0};
};

QString plain(QString title)
{
    return title.remove(u'&');
}

QSize roomFor(const QFontMetrics &metrics, const QString &text)
{
    return {metrics.horizontalAdvance(text), metrics.height()};
}

/// As it is read, with a letter that stands behind it for Alt.
QString textOf(const QLabel &label)
{
    const auto *caption = qobject_cast<const CaptionLabel *>(&label);
    if (caption && !caption->mnemonicText().isEmpty())
        return plain(caption->mnemonicText());
    return label.buddy() && !caption ? plain(label.text()) : label.text();
}

Shown shownBy(const QLabel &label)
{
    const QString text = textOf(label);
    if (text.isEmpty())
        return {};
    if (label.wordWrap())
        return {text, {0, label.heightForWidth(label.width()) - label.height()}};
    return {text, roomFor(label.fontMetrics(), text) - label.contentsRect().size()};
}

Shown shownBy(const QAbstractButton &button)
{
    if (button.text().isEmpty())
        return {};
    const int height = button.fontMetrics().height() - button.height();
    return {plain(button.text()), {button.minimumSizeHint().width() - button.width(), height}};
}

Shown shownBy(const QComboBox &popup)
{
    QStyleOptionComboBox option;
    option.initFrom(&popup);
    const QSize room =
        popup.style()
            ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popup)
            .size();
    Shown shown;
    for (int index = 0; index < popup.count(); ++index) {
        const int icon = popup.itemIcon(index).isNull() ? 0 : popup.iconSize().width() + 4;
        const QString text = popup.itemText(index);
        const QSize lacking = roomFor(popup.fontMetrics(), text) + QSize(icon, 0) - room;
        if (lacking.width() > shown.lacking.width() || lacking.height() > 0)
            shown = {text, lacking};
    }
    return shown;
}

Shown shownBy(const QTabBar &bar)
{
    Shown shown;
    for (int index = 0; index < bar.count(); ++index) {
        const QString text = plain(bar.tabText(index));
        const QSize lacking = roomFor(bar.fontMetrics(), text) - bar.tabRect(index).size();
        if (lacking.width() > shown.lacking.width() || lacking.height() > 0)
            shown = {text, lacking};
    }
    return shown;
}

Shown shownBy(const QListView &list)
{
    return {list.objectName(),
            {list.horizontalScrollBar()->maximum(),
             list.fontMetrics().height() - list.viewport()->height()}};
}

Shown shownBy(const QLineEdit &edit)
{
    const QString text = edit.text().isEmpty() ? edit.placeholderText() : QString();
    constexpr int kFrame = 6; // and the blinking line
    return {text, roomFor(edit.fontMetrics(), text) + QSize(kFrame, 0) - edit.size()};
}

Shown shownBy(const QAbstractSpinBox &field)
{
    return {field.text(),
            {field.minimumSizeHint().width() - field.width(),
             field.fontMetrics().height() - field.height()}};
}

template <typename... Widgets> std::optional<Shown> shownByOneOf(const QWidget &widget)
{
    std::optional<Shown> shown;
    const auto look = [&](const auto *one) {
        if (one && !shown)
            shown = shownBy(*one);
    };
    (look(qobject_cast<const Widgets *>(&widget)), ...);
    return shown;
}

std::optional<Shown> shownByAny(const QWidget &widget)
{
    // The parts of a spin box are its own.
    if (qobject_cast<const QAbstractSpinBox *>(widget.parentWidget()))
        return std::nullopt;
    // Other labels draw their text in their own way, and are judged by their own tests.
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label && label->metaObject() != &QLabel::staticMetaObject &&
        label->metaObject() != &CaptionLabel::staticMetaObject)
        return std::nullopt;
    return shownByOneOf<QLabel, QAbstractButton, QComboBox, QTabBar, QListView, QLineEdit,
                        QAbstractSpinBox>(widget);
}

bool isScrolled(const QWidget &widget)
{
    const QWidget *viewport = widget.parentWidget();
    const auto *area =
        viewport ? qobject_cast<const QAbstractScrollArea *>(viewport->parentWidget()) : nullptr;
    return area && area->viewport() == viewport;
}

/// By how much the widget sticks out of what holds it, up to what is scrolled.
QSize stickingOut(const QWidget &widget, const QWidget &window)
{
    QSize most(0, 0);
    for (const QWidget *at = &widget; at != &window && !isScrolled(*at); at = at->parentWidget()) {
        const QWidget *holder = at->parentWidget();
        const QRect area(widget.mapTo(holder, QPoint()), widget.size());
        const QRect out = area.united(holder->rect());
        most = most.expandedTo(out.size() - holder->size());
    }
    return most;
}

QString line(const char *matter, const QWidget &widget, const QString &text, QSize pixels)
{
    return u"%1: %2 %3 \"%4\" by %5 x %6"_s.arg(
        QLatin1String(matter), QLatin1String(widget.metaObject()->className()), widget.objectName(),
        text, QString::number(std::max(0, pixels.width())),
        QString::number(std::max(0, pixels.height())));
}

bool isMoreThanNothing(QSize pixels)
{
    return pixels.width() > 0 || pixels.height() > 0;
}

} // namespace

QStringList cutTexts(QWidget &window)
{
    QStringList lines;
    QList<const QWidget *> seen;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        const std::optional<Shown> shown =
            widget->isVisible() && widget->window() == &window ? shownByAny(*widget) : std::nullopt;
        if (!shown)
            continue;
        if (isMoreThanNothing(shown->lacking))
            lines += line("cut", *widget, shown->text, shown->lacking);
        if (const QSize out = stickingOut(*widget, window); isMoreThanNothing(out))
            lines += line("sticks out", *widget, shown->text, out);
        for (const QWidget *other : seen) {
            const bool besides = other->parentWidget() == widget->parentWidget();
            if (besides && other->geometry().intersects(widget->geometry()))
                lines += line("lies over " + other->objectName().toLatin1(), *widget, shown->text,
                              other->geometry().intersected(widget->geometry()).size());
        }
        if (!shown->text.isEmpty())
            seen += widget;
    }
    return lines;
}
