#include "tests/dialog/window/DialogWindowFixture.h"

#include <QtCore/QScopeGuard>
#include <QtWidgets/QApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor kBlack(0, 0, 0, 128); // as the toolkit leaves it

QPalette desktop(const QColor &text, const QColor &ground)
{
    QPalette palette(text, ground, ground, ground, ground, text, text, ground, ground);
    palette.setColor(QPalette::PlaceholderText, kBlack);
    return palette;
}

class DimmedText : public DialogWindowFixture
{
protected:
    /// Of the words on where a value comes from, which are dimmed.
    QColor color()
    {
        EXPECT_TRUE(m_window->showPart(u"summary"_s));
        const auto *words = part<QLabel>("summaryOrigin");
        return words->palette().color(words->foregroundRole());
    }
};

TEST_F(DimmedText, IsReadableOnDarkDesktopsThatNameNoColorForIt)
{
    const QPalette former = QApplication::palette();
    const auto restore = qScopeGuard([&] { QApplication::setPalette(former); });
    QApplication::setPalette(desktop(QColor(252, 252, 252), QColor(42, 46, 50)));
    open();
    EXPECT_EQ(color(), QColor(252, 252, 252, 128));
    QApplication::setPalette(desktop(QColor(20, 20, 20), QColor(240, 240, 240)));
    QCoreApplication::processEvents();
    EXPECT_EQ(color(), QColor(20, 20, 20, 128));
}

TEST_F(DimmedText, IsTheDesktopsWhereThatCanBeRead)
{
    open();
    EXPECT_EQ(color(), QApplication::palette().color(QPalette::PlaceholderText));
}

} // namespace
