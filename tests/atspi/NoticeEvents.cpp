// Tells notices as the dialog does, where assistive technology listens, and prints what the toolkit
// sends it of them: an alert in a line, with the notice bar's name at that moment.
#include "dialog/window/NoticeBar.h"

#include <QtGui/QAccessible>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000; // ms

void printAlert(QAccessibleEvent *event)
{
    if (event->type() == QAccessible::Alert)
        std::puts(qPrintable(event->accessibleInterface()->text(QAccessible::Name)));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    NoticeBar bar;
    bar.show();
    if (!QTest::qWaitFor(QAccessible::isActive, kTimeout))
        return 1;
    QAccessible::installUpdateHandler(printAlert);
    bar.tell(NoticeBar::Kind::Information, u"The job waits."_s);
    bar.clear();
    bar.tell(NoticeBar::Kind::Error, u"The printer is away."_s,
             {{u"retryButton"_s, u"Retry"_s, [] {}}});
    return 0;
}
