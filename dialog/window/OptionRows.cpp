#include "dialog/window/OptionRows.h"

#include "dialog/job/Conflicts.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/RadioPair.h"
#include "dialog/window/SetupPopUp.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QFormLayout>

using namespace Qt::StringLiterals;

OptionRows::OptionRows(PrintJob &job, QFormLayout *form, QObject *parent)
    : QObject(parent), m_job(job)
{
    for (const QString &keyword : m_job.ownKeywords())
        addOption(form, keyword);
    if (m_job.offersColorMatching())
        addColorMatching(form);
}

void OptionRows::addOption(QFormLayout *form, const QString &keyword)
{
    const ppd_option_t *option = findOption(m_job.ppd(), keyword);
    PopUpButton *popup = newSetupPopUp(keyword + u"Popup"_s, form->parentWidget());
    popup->setItems(itemsOf(option));
    showChoice(popup, markedChoice(m_job.ppd(), keyword));
    addLabelledRow(form, tr("%1:").arg(withoutMnemonic(ppdText(option->text))), popup);
    connect(popup, &QComboBox::activated, this,
            [this, keyword, popup] { chooseOption(keyword, popup); });
}

void OptionRows::chooseOption(const QString &keyword, PopUpButton *popup)
{
    const QString choice = popup->selectedObject();
    const QString clash = refusalSentence(m_job.ppd(), keyword, choice);
    if (clash.isNull()) {
        m_job.mark(keyword, choice);
        Q_EMIT changed();
        return;
    }
    showChoice(popup, markedChoice(m_job.ppd(), keyword));
    Q_EMIT refused(clash, {keyword, choice});
}

void OptionRows::addColorMatching(QFormLayout *form)
{
    const std::array<RadioTitle, 2> titles{
        {{u"matchByPrinterButton"_s, tr("By the P&rinter")},
         {u"matchByApplicationButton"_s, tr("By the Appl&ication")}}};
    const bool byApplication = m_job.colorMatching() == PrintJob::ColorMatching::Application;
    addLabelledRow(form, tr("Color Management:"),
                   newRadioPair(titles, byApplication ? 1 : 0, [this](int index) {
                       m_job.setColorMatching(index == 1 ? PrintJob::ColorMatching::Application
                                                         : PrintJob::ColorMatching::Printer);
                       Q_EMIT changed();
                   }));
}
