// The small windows, in a font so large that they do not fit the screen as they are.
#include "dialog/window/SheetLayout.h"

#include "dialog/window/HiddenAlertsDialog.h"
#include "dialog/window/HostHelp.h"
#include "dialog/window/JobWindow.h"
#include "dialog/window/PasswordDialog.h"
#include "dialog/window/PresetNameDialog.h"
#include "tests/dialog/window/DialogWindowFixture.h"
#include "tests/dialog/window/LongerLanguage.h"
#include "tests/support/TextRoom.h"

#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollBar>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize kSmallestScreen(640, 480);

QDialog *newPasswordSheet(DialogWindow &window)
{
    return new PasswordDialog({.purpose = PasswordPurpose::HeldJob,
                               .server = u"print.example:631"_s,
                               .queue = u"Photo"_s,
                               .user = u"anna"_s,
                               .isAgain = true,
                               .isReadable = true,
                               .needsDomain = true},
                              true, &window);
}

QDialog *newHiddenAlerts(DialogWindow &window)
{
    auto *dialog = new HiddenAlertsDialog(*window.job().session()->bundle(), &window);
    dialog->findChild<QListWidget *>()->addItem(u"This paper takes no borderless printing. "_s +
                                                u"Go on all the same? "_s.repeated(4));
    return dialog;
}

QDialog *newJobWindow(DialogWindow &window)
{
    auto *dialog = new JobWindow(u"localhost:1"_s, {u"Photo"_s, 7}, &window);
    for (auto *button : dialog->findChildren<QPushButton *>())
        button->show(); // more than are ever there together
    return dialog;
}

QDialog *newPresetName(DialogWindow &window)
{
    return new PresetNameDialog(u"Save Preset"_s, {}, true, &window);
}

QDialog *newHelp(DialogWindow &window)
{
    showHostHelp(&window);
    return window.findChild<QDialog *>(u"hostHelp"_s);
}

struct SheetLook
{
    const char *name;
    std::function<QDialog *(DialogWindow &)> make;
};

const SheetLook kSheets[] = {{"Password", newPasswordSheet},
                             {"HiddenAlerts", newHiddenAlerts},
                             {"Job", newJobWindow},
                             {"PresetName", newPresetName},
                             {"Help", newHelp}};

class SheetOnAScreen : public DialogWindowFixture,
                       public testing::WithParamInterface<std::tuple<SheetLook, const char *>>
{
protected:
    SheetOnAScreen() : m_font(QApplication::font())
    {
        m_language.use(QLatin1String(std::get<1>(GetParam())));
        open();
        QFont large = m_font;
        large.setPointSize(24);
        QApplication::setFont(large);
    }

    ~SheetOnAScreen() override
    {
        m_window.reset();
        QApplication::setFont(m_font);
    }

    /// What cannot be read, and buttons that cannot be reached without scrolling.
    static QStringList faultsOf(QDialog &sheet)
    {
        QStringList faults = cutTexts(sheet);
        for (const auto *button : sheet.findChildren<QPushButton *>())
            if (button->isVisible() && button->visibleRegion().boundingRect() != button->rect())
                faults += u"out of sight: "_s + button->text();
        for (const auto *area : sheet.findChildren<QAbstractScrollArea *>())
            if (area->horizontalScrollBar()->maximum() > 0)
                faults += u"scrolled sideways: "_s + area->objectName();
        return faults;
    }

    static void expectWhole(QDialog &sheet)
    {
        QStringList faults;
        EXPECT_TRUE(QTest::qWaitFor([&] { return (faults = faultsOf(sheet)).isEmpty(); }, 500))
            << faults.join(u'\n').toStdString();
    }

    const QFont m_font;
    InLanguage m_language;
};

TEST_P(SheetOnAScreen, IsWholeAndNoLargerThanIt)
{
    const std::unique_ptr<QDialog> sheet(std::get<0>(GetParam()).make(*m_window));
    sheet->setAttribute(Qt::WA_DeleteOnClose, false);
    sheet->show();
    expectWhole(*sheet);
    const QSize most = sheet->screen()->availableSize();
    EXPECT_LE(sheet->width(), most.width());
    EXPECT_LE(sheet->height(), most.height());
    sheet->resize(kSmallestScreen);
    expectWhole(*sheet);
    EXPECT_EQ(sheet->size(), kSmallestScreen);
}

/// A word that comes while somebody types takes its room when it comes.
class NameOnAScreen : public SheetOnAScreen
{};

TEST_P(NameOnAScreen, TellsAllOfWhatIsWrongWithAName)
{
    const std::unique_ptr<QDialog> sheet(std::get<0>(GetParam()).make(*m_window));
    sheet->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(sheet.get()));
    auto *word = sheet->findChild<QLabel *>(u"presetNameValidation"_s);
    const QString before = word->text();
    QTest::keyClicks(sheet->findChild<QLineEdit *>(u"presetName"_s), u"my photo"_s);
    EXPECT_GT(word->text().size(), before.size());
    expectWhole(*sheet);
}

INSTANTIATE_TEST_SUITE_P(Sheets, NameOnAScreen,
                         testing::Combine(testing::Values(SheetLook{"PresetName", newPresetName}),
                                          testing::Values("de", "en", "fr", "ja")),
                         [](const auto &look) { return std::string(std::get<1>(look.param)); });

class JobWindowIn : public testing::TestWithParam<const char *>
{};

TEST_P(JobWindowIn, HasRoomForItsButtonsInOneLineWhateverBecomesOfTheJob)
{
    InLanguage language;
    language.use(QLatin1String(GetParam()));
    static const QHash<QString, JobAction> actions{
        {u"holdButton"_s, JobAction::Hold},
        {u"releaseButton"_s, JobAction::Release},
        {u"restartButton"_s, JobAction::Restart},
        {u"authenticateButton"_s, JobAction::Authenticate},
        {u"cancelJobButton"_s, JobAction::Cancel}};
    JobWindow window(u"localhost:1"_s, {u"Photo"_s, 7});
    const QMargins margins = window.layout()->contentsMargins();
    for (const JobPhase phase : kJobPhases) {
        int width = margins.left() + margins.right() - window.layout()->spacing();
        for (const auto *button : window.findChildren<QPushButton *>()) {
            const auto action = actions.constFind(button->objectName());
            if (action == actions.constEnd() || isOffered(*action, phase))
                width += button->sizeHint().width() + window.layout()->spacing();
        }
        EXPECT_GE(window.width(), width) << static_cast<int>(phase);
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, JobWindowIn, testing::Values("de", "en", "fr", "ja"),
                         [](const auto &language) { return std::string(language.param); });

INSTANTIATE_TEST_SUITE_P(Sheets, SheetOnAScreen,
                         testing::Combine(testing::ValuesIn(kSheets),
                                          testing::Values("de", "en", "fr", "ja")),
                         [](const auto &look) {
                             return std::string(std::get<0>(look.param).name) + "_" +
                                    std::get<1>(look.param);
                         });

} // namespace
