// In every language, font and part of the window, nothing that people read is cut.
#include "dialog/window/NoticeLabel.h"
#include "dialog/window/ScrolledBody.h"
#include "platform/toolkit/PanelPoint.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/dialog/window/LongerLanguage.h"
#include "tests/support/TextRoom.h"

#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTabBar>
#include <QtWidgets/QToolButton>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSmallScreen(640, 480);
constexpr int kLayoutTimeout = 500; // ms; layouts come to rest in some turns of the event loop

struct Look
{
    QString language; ///< null: the longer one
    QString printer;
    int points; ///< of the system's font
};

/// Every language in every font, every font on every printer, and every printer in every language:
/// of three axes each pair is there, not each triple, so that the test takes seconds.
std::vector<Look> looks()
{
    const QStringList languages{u"en"_s, u"ja"_s, u"de"_s, u"fr"_s, QString()};
    const QStringList printers{u"velkaro-px-t900"_s, u"velkaro-px-330c"_s, u"velkaro-mx-j710dw"_s};
    const QList<int> fonts{8, 9, 10, 12, 14, 18, 24};
    std::vector<Look> looks;
    for (qsizetype language = 0; language < languages.size(); ++language)
        for (qsizetype font = 0; font < fonts.size(); ++font)
            looks.push_back(
                {languages[language], printers[(language + font) % printers.size()], fonts[font]});
    return looks;
}

bool isInSight(const QWidget &widget, const QRect &area)
{
    return (QRegion(area) - widget.visibleRegion()).isEmpty();
}

/// What a person would have to scroll to of what must be there at once: the notice, the tab in
/// front, a list of the others where they have no room, and the buttons of the window.
QStringList outOfSight(QWidget &window)
{
    QStringList names;
    for (const char *holder : {"noticeBar", "buttonRow"})
        for (const auto *one :
             window.findChild<QWidget *>(QLatin1String(holder))->findChildren<QWidget *>())
            if (one->isVisible() && !isInSight(*one, one->rect()))
                names += one->objectName();
    const auto *tabs = window.findChild<QTabWidget *>(u"parts"_s);
    const QTabBar &bar = *tabs->tabBar();
    const auto *all = window.findChild<QToolButton *>(u"allPartsButton"_s);
    if (!isInSight(bar, bar.tabRect(tabs->currentIndex())))
        names += u"the tab in front"_s;
    for (int index = 0; index < tabs->count() && !all->isVisible(); ++index)
        if (!isInSight(bar, bar.tabRect(index)))
            names += tabs->tabText(index);
    if (all->isVisible() && !isInSight(*all, all->rect()))
        names += all->objectName();
    return names;
}

/// The least width of the widest thing that cannot be broken into lines.
int widestOf(const QWidget &content)
{
    int widest = 0;
    for (const auto *one : content.findChildren<QWidget *>()) {
        const auto *label = qobject_cast<const QLabel *>(one);
        const bool isOne = !one->layout() && one->isVisible() && !(label && label->wordWrap());
        if (isOne && !qobject_cast<const QAbstractSpinBox *>(one->parentWidget()))
            widest = std::max(widest, one->minimumSizeHint().width());
    }
    return widest;
}

/// The parts of the window that are scrolled sideways although each single control has its room.
/// Views of panels are laid out by their panels.
QStringList scrolledSideways(QWidget &window)
{
    constexpr int kMargins = 40;
    QStringList names;
    for (const auto *area : window.findChildren<ScrolledBody *>())
        if (area->isVisible() && area->horizontalScrollBar()->maximum() > 0 &&
            widestOf(*area->widget()) + kMargins <= area->viewport()->width())
            names += area->objectName();
    return names;
}

class TextIsWhole : public DialogWindowFixture, public testing::WithParamInterface<Look>
{
protected:
    TextIsWhole() : m_font(QApplication::font())
    {
        QFont font = m_font;
        font.setPointSize(GetParam().points);
        QApplication::setFont(font);
        m_line.ppd = samplePPD(GetParam().printer);
        if (GetParam().language.isNull())
            m_longer.use(m_line);
        else
            m_language.use(GetParam().language);
        m_line.output = QString(); // with "Save to File"
    }

    ~TextIsWhole() override
    {
        m_window.reset();
        QApplication::setFont(m_font);
        setPixelsPerPoint(1);
    }

    void expectAllIsWhole(const QString &where)
    {
        QStringList cut;
        const auto isWhole = [&] {
            cut = cutTexts(*m_window) + outOfSight(*m_window) + scrolledSideways(*m_window);
            return cut.isEmpty();
        };
        EXPECT_TRUE(QTest::qWaitFor(isWhole, kLayoutTimeout)) << where.toStdString() << ":\n"
                                                              << cut.join(u'\n').toStdString();
        const QStringList told = part<NoticeLabel>("noticeLabel")->shownLines();
        EXPECT_FALSE(told.join(u' ').contains(u'…')) << told.join(u' ').toStdString();
    }

    /// The part that is in front, folded and unfolded, with every page of its list.
    void expectPartIsWhole(const QString &where)
    {
        expectAllIsWhole(where);
        auto *fold = m_window->shownPart()->findChild<QToolButton *>(u"optionButton"_s);
        if (!fold)
            return;
        fold->click();
        auto *list = m_window->shownPart()->findChild<QListWidget *>(u"advancedTableView"_s);
        expectAllIsWhole(where + u" unfolded"_s);
        for (int row = 1; list && row < list->count(); ++row) {
            list->setCurrentRow(row);
            expectAllIsWhole(where + u" unfolded, row "_s + QString::number(row));
        }
        fold->click();
    }

    void expectWindowIsWhole(const QString &where)
    {
        auto *tabs = part<QTabWidget>("parts");
        for (int index = 0; index < tabs->count(); ++index) {
            tabs->setCurrentIndex(index);
            expectPartIsWhole(where + u' ' + tabs->tabText(index));
        }
    }

    const QFont m_font;
    InLanguage m_language;
    LongerLanguage m_longer;
};

TEST_P(TextIsWhole, InTheWholeWindow)
{
    open();
    expectWindowIsWhole(u"as it opens,"_s);
    m_window->resize(kSmallScreen);
    QCoreApplication::processEvents();
    ASSERT_EQ(m_window->size(), kSmallScreen);
    expectWindowIsWhole(u"on a small screen,"_s);
}

INSTANTIATE_TEST_SUITE_P(Looks, TextIsWhole, testing::ValuesIn(looks()), [](const auto &look) {
    const QString language = look.param.language.isNull() ? u"longer"_s : look.param.language;
    const QString printer = look.param.printer.section(u'-', 1).remove(u'-');
    return u"%1_%2_%3"_s.arg(language, printer).arg(look.param.points).toStdString();
});

// --- The measuring itself ------------------------------------------------------------------------

TEST(TextRoom, NamesALabelThatIsTooNarrowAndOneThatSticksOut)
{
    QWidget window;
    window.setFixedSize(200, 100);
    auto *label = new QLabel(u"Print Quality"_s, &window);
    label->setObjectName(u"qualityLabel"_s);
    const int needed = label->fontMetrics().horizontalAdvance(label->text());
    label->setGeometry(10, 10, needed, 20);
    window.show();
    EXPECT_EQ(cutTexts(window), QStringList());
    label->setGeometry(10, 10, needed - 7, 20);
    EXPECT_EQ(cutTexts(window),
              QStringList{u"cut: QLabel qualityLabel \"Print Quality\" by 7 x 0"_s});
    label->setGeometry(10, 83, needed, 20);
    EXPECT_EQ(cutTexts(window),
              QStringList{u"sticks out: QLabel qualityLabel \"Print Quality\" by 0 x 3"_s});
}

} // namespace
