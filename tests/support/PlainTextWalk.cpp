#include "tests/support/PlainTextWalk.h"

#include "tests/support/QStringPrinting.h"

#include <QtGui/QAccessible>
#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocument>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolTip>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kMark = "A&amp;B"_L1; // as a person reads it
constexpr auto kNoTip = "none"_L1;
constexpr auto kEscape = u'\x1b';
constexpr auto kTurn = u'\u202e';

QString nameOf(const QWidget &widget)
{
    return QLatin1String(widget.metaObject()->className()) + u' ' + widget.objectName();
}

QString shownOf(const QAbstractItemModel &model, int row)
{
    return model.index(row, 0).data(Qt::DisplayRole).toString();
}

} // namespace

QString PlainTextWalk::foreignText(const QString &opened)
{
    return u"<img src="_s + opened + u"><b>"_s + kMark + kEscape + kTurn;
}

void PlainTextWalk::look()
{
    for (QWidget *widget : QApplication::allWidgets())
        if (!widget->inherits("QTipLabel")) // tool tips are markup, and judged by what they say
            lookAt(*widget);
    for (QWidget *widget : QApplication::allWidgets())
        if (widget->isVisible())
            askForToolTip(*widget);
}

void PlainTextWalk::lookAt(QWidget &widget)
{
    if (const auto *label = qobject_cast<QLabel *>(&widget)) {
        EXPECT_TRUE(label->textFormat() == Qt::PlainText || !Qt::mightBeRichText(label->text()))
            << nameOf(widget).toStdString() << ": " << label->text().toStdString();
        if (label->buddy())
            judgeWithMnemonic(widget, "label", label->text());
        else
            judge(widget, "label", label->text());
    }
    for (const QString &tip : {widget.toolTip(), widget.whatsThis(), widget.statusTip()})
        EXPECT_FALSE(Qt::mightBeRichText(tip)) << nameOf(widget).toStdString();
    if (const auto *button = qobject_cast<QAbstractButton *>(&widget))
        judgeWithMnemonic(widget, "button", button->text());
    if (const auto *box = qobject_cast<QGroupBox *>(&widget))
        judgeWithMnemonic(widget, "box", box->title());
    if (const auto *bar = qobject_cast<QTabBar *>(&widget))
        for (int index = 0; index < bar->count(); ++index)
            judgeWithMnemonic(widget, "tab", bar->tabText(index));
    if (const auto *popup = qobject_cast<QComboBox *>(&widget))
        for (int index = 0; index < popup->count(); ++index)
            judge(widget, "item", popup->itemText(index));
    if (const auto *list = qobject_cast<QAbstractItemView *>(&widget); list && list->model())
        for (int row = 0; row < list->model()->rowCount(); ++row)
            judge(widget, "row", shownOf(*list->model(), row));
    judge(widget, "window title", widget.windowTitle());
    if (QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&widget)) {
        judge(widget, "accessible name", accessible->text(QAccessible::Name));
        judge(widget, "accessible description", accessible->text(QAccessible::Description));
    }
}

void PlainTextWalk::askForToolTip(QWidget &widget)
{
    const QPoint at = widget.mapToGlobal(QPoint(1, 1));
    QToolTip::showText(at, kNoTip); // one that is there goes late
    QHelpEvent event(QEvent::ToolTip, QPoint(1, 1), at);
    QApplication::sendEvent(&widget, &event);
    const QString tip = QToolTip::text();
    if (!tip.contains(u"amp;"_s)) // none, or one of the program's own
        return;
    QTextDocument shown; // as the tool tip lays it out
    shown.setHtml(tip);
    EXPECT_TRUE(shown.toPlainText().contains(kMark)) << tip.toStdString();
    EXPECT_FALSE(shown.toPlainText().contains(QChar::ObjectReplacementCharacter)) << "a picture";
    m_seen += u"tip of "_s + nameOf(widget);
}

void PlainTextWalk::judge(const QWidget &widget, const char *what, const QString &text)
{
    EXPECT_FALSE(text.contains(kEscape) || text.contains(kTurn))
        << what << " of " << nameOf(widget).toStdString() << ": " << text.toStdString();
    if (text.contains(kMark))
        m_seen += nameOf(widget);
}

void PlainTextWalk::judgeWithMnemonic(const QWidget &widget, const char *what, const QString &text)
{
    EXPECT_EQ(text.count(u"A&&amp;B"_s), text.count(u"amp;"_s))
        << what << " of " << nameOf(widget).toStdString() << ": " << text.toStdString();
    judge(widget, what, QString(text).replace(u"&&"_s, u"&"_s));
}
