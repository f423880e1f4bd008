#include "tests/sources/SourceRules.h"

#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

/// The text with its comment lines empty, so that the numbers of the lines stay.
QString withoutComments(const QString &text)
{
    static const QRegularExpression comment(u"^\\s*//.*$"_s, QRegularExpression::MultilineOption);
    return QString(text).remove(comment);
}

bool isAllowed(const SourceRule &rule, const QString &file, const QString &line)
{
    return rule.allowed.contains(file) || rule.allowed.contains(file + u": "_s + line);
}

} // namespace

const QList<SourceRule> &plainTextRules()
{
    static const QList<SourceRule> rules{
        {"NewLabel",
         uR"( \bnew \s+ QLabel\b | make_unique<QLabel> | (?<! public[ ] ) \bQLabel \s* [({] | \bQLabel \s+ \w+ \s* [({;] )"_s,
         u"a label guesses at rich text"_s,
         u"newPlainLabel()"_s,
         {u"platform/toolkit/PlainLabel.cpp"_s, u"platform/toolkit/CaptionLabel.cpp"_s,
          u"dialog/window/NoticeLabel.cpp"_s, u"dialog/window/SentenceLabel.cpp"_s}},
        {"LabelOfARow",
         uR"( (?:\.|->) (?:addRow|insertRow) \s* \( \s* (?! \) | label\( ) )"_s,
         u"the label that a form makes of a string guesses at rich text"_s,
         u"addLabelledRow()"_s,
         {u"platform/toolkit/PlainLabel.cpp"_s}},
        {"SetText",
         uR"( \b setText \s* \( )"_s,
         u"a label guesses at rich text, and a button makes a mnemonic of an ampersand"_s,
         u"setLabelText() or setButtonTitle()"_s,
         {u"platform/toolkit/PlainLabel.cpp"_s, u"platform/toolkit/PlainText.cpp"_s,
          u"platform/toolkit/Alert.cpp: box->setText(content.text);"_s,
          u"dialog/window/NoticeLabel.cpp: m_layout.setText(text());"_s,
          u"dialog/window/PresetNameDialog.cpp: m_name->setText(name);"_s,
          u"dialog/window/Mnemonics.cpp: button.setText(withMnemonic(title, mnemonicsIn(*button.window(), &button)));"_s,
          u"dialog/window/Mnemonics.cpp: button.setText(withMnemonic(title, mnemonicsInFront(*button.window(), &button)));"_s,
          u"dialog/window/Mnemonics.cpp: titled.setText(withMnemonic(withoutMnemonic(titleOfMnemonic(titled.text())), taken));"_s,
          u"dialog/window/Mnemonics.cpp: button->setText(titled);"_s,
          u"dialog/window/JobHeader.cpp: m_pages->setText(m_job.settings().pageRanges);"_s,
          u"dialog/window/SummaryPart.cpp: QGuiApplication::clipboard()->setText(SummaryPane::textOf(shownSections()));"_s,
          u"dialog/window/LayoutPane.cpp: m_title->setText(title);"_s,
          u"dialog/window/LayoutPane.cpp: m_notification->setText(address);"_s}},
        {"TextFormat",
         uR"( \b setTextFormat \s* \( | Qt::(?:RichText|AutoText|MarkdownText) )"_s,
         u"all texts are plain, and one place says so"_s,
         u"newPlainLabel() or setLabelText()"_s,
         {u"platform/toolkit/PlainLabel.cpp"_s,
          u"platform/toolkit/CaptionLabel.cpp: setTextFormat(Qt::PlainText);"_s,
          u"platform/toolkit/Alert.cpp: box->setTextFormat(Qt::PlainText);"_s}},
        {"MessageBox",
         uR"( QMessageBox::(?:information|question|warning|critical|about|aboutQt)\b |
              new \s+ QMessageBox\b | make_unique<QMessageBox> | \bQMessageBox \s+ \w+ \s* [({;] |
              new \s+ AlertBox\b | make_unique<AlertBox> | \bAlertBox \s+ \w+ \s* [({;] |
              \b set(?:Informative|Detailed)Text \s* \( )"_s,
         u"a message box guesses at rich text"_s,
         u"runAlert() or beginAlertSheet()"_s,
         {u"platform/toolkit/Alert.cpp"_s}},
        {"ReadyMadeDialog",
         uR"( \b(?:QErrorMessage|QInputDialog|QProgressDialog|QWizard|QSplashScreen)\b )"_s,
         u"the labels of the toolkit's own dialogs guess at rich text"_s,
         u"a dialog of plain labels, or the notice bar"_s,
         {}},
        {"ToolTip",
         uR"( \b setToolTip \s* \( | QToolTip::showText | Qt::ToolTipRole )"_s,
         u"a tool tip guesses at rich text"_s,
         u"showToolTip() when the tool tip is asked for"_s,
         {u"platform/toolkit/PlainLabel.cpp"_s}},
        {"WhatsThis",
         uR"( \b setWhatsThis \s* \( | QWhatsThis | Qt::WhatsThisRole )"_s,
         u"\"What's this?\" guesses at rich text"_s,
         u"the help books, or a notice"_s,
         {}},
        {"StatusTip",
         uR"( \b setStatusTip \s* \( | Qt::StatusTipRole )"_s,
         u"there is no status bar to show it, and another one might guess at rich text"_s,
         u"a notice"_s,
         {}},
        {"AccessibleName",
         uR"( \b setAccessible(?:Name|Description) \s* \( )"_s,
         u"a pop-up needs its name in both places, and one place knows that"_s,
         u"giveAccessibleName()"_s,
         {u"platform/toolkit/AccessibleName.cpp"_s}},
        {"RichText",
         uR"( \b(?:QTextEdit|QTextBrowser|QTextDocument|QTextDocumentFragment|QStaticText|
                  QGraphicsTextItem|setHtml|setMarkdown|insertHtml)\b )"_s,
         u"rich text opens files"_s,
         u"newPlainLabel()"_s,
         {u"platform/toolkit/HelpManager.cpp"_s, u"platform/toolkit/PlainLabel.cpp"_s}},
        {"Link",
         uR"( \b(?:setOpenExternalLinks|setOpenLinks|QDesktopServices|linkActivated)\b )"_s,
         u"no text may open a program or a page"_s,
         u"plain text"_s,
         {u"dialog/window/OpenQueue.cpp"_s}},
    };
    return rules;
}

QStringList breaches(const QString &file, const QString &text, const QList<SourceRule> &rules)
{
    const QString code = withoutComments(text);
    const QStringList lines = code.split(u'\n');
    QStringList found;
    for (const SourceRule &rule : rules) {
        const QRegularExpression pattern(rule.pattern,
                                         QRegularExpression::ExtendedPatternSyntaxOption);
        Q_ASSERT_X(pattern.isValid(), rule.name, qPrintable(pattern.errorString()));
        for (const QRegularExpressionMatch &match : pattern.globalMatch(code)) {
            const auto number = code.left(match.capturedStart()).count(u'\n');
            const QString line = lines[number].trimmed();
            if (!isAllowed(rule, file, line))
                found += u"%1:%2: %3: %4; use %5"_s.arg(file, QString::number(number + 1), line,
                                                        rule.why, rule.instead);
        }
    }
    return found;
}
