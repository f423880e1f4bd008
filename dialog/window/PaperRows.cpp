#include "dialog/window/PaperRows.h"

#include "dialog/job/Conflicts.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/CustomSizeFields.h"
#include "dialog/window/SetupPopUp.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSize = "PageSize"_L1;
constexpr auto kCustom = "Custom"_L1;

/// The papers of the PPD; libcups adds a choice for sizes of the user's own, which is no paper.
std::vector<PopUpButton::Item> paperItems(ppd_file_t *ppd)
{
    std::vector<PopUpButton::Item> items = itemsOf(findOption(ppd, kPageSize));
    std::erase_if(items, [](const auto &item) { return item.representedObject == kCustom; });
    return items;
}

/// Tells that an item of the menu has sent its action. The menu is compared with, and may have
/// gone.
void postMenuAction(const QWidget *menu, const QString &title)
{
    NotificationCenter::defaultCenter().post(QLatin1String(kMenuDidSendActionNotification), menu,
                                             QVariantMap{{u"MenuItem"_s, title}});
}

} // namespace

PaperRows::PaperRows(PrintJob &job, QFormLayout *form, QObject *parent)
    : QObject(parent), m_job(job)
{
    if (!findOption(m_job.ppd(), kPageSize))
        return;
    addPaper(form);
    addDocumentPage(form);
}

void PaperRows::addPaper(QFormLayout *form)
{
    const std::optional<CustomLimits> limits = customLimits(m_job.ppd());
    std::vector<PopUpButton::Item> items = paperItems(m_job.ppd());
    if (limits)
        items.push_back({tr("Custom Size"), kCustom});
    m_paper = newSetupPopUp(u"paperPopup"_s, form->parentWidget());
    m_paper->setItems(items);
    addLabelledRow(form, tr("&Paper in the Printer:"), m_paper);
    connect(m_paper, &QComboBox::activated, this, [this, popup = m_paper] {
        const QString title = popup->currentText();
        choosePaper();
        postMenuAction(popup, title);
    });

    if (limits)
        addCustomSize(form, *limits);
    showPaper();
}

void PaperRows::addCustomSize(QFormLayout *form, const CustomLimits &limits)
{
    const PMPaper paper = m_job.sheet().value_or(PMPaper());
    m_customSize = new CustomSizeFields(form->parentWidget());
    m_customSize->setLimits(limits);
    m_customSize->setSize(paper.width, paper.height);
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, m_customSize);
    connect(m_customSize, &CustomSizeFields::edited, this, &PaperRows::useCustomSize);
}

void PaperRows::addDocumentPage(QFormLayout *form)
{
    const std::optional<PMPaper> page = m_job.documentPage();
    if (!page)
        return;
    QLabel *label = newPlainLabel(paperText(m_job.ppd(), *page), form->parentWidget());
    label->setObjectName(u"documentPageLabel"_s);
    addLabelledRow(form, tr("Document Page:"), label);
    connect(this, &PaperRows::changed, form,
            [this, form, label] { form->setRowVisible(label, m_job.documentPage().has_value()); });
}

/// Shows the paper that the job has.
void PaperRows::showPaper()
{
    const std::optional<PMPaper> paper = m_job.sheet();
    const bool isCustom = paper && paper->ppdName.isNull();
    showChoice(m_paper, isCustom ? QString(kCustom) : paper.value_or(PMPaper()).ppdName);
    if (m_customSize)
        m_customSize->setVisible(isCustom);
}

void PaperRows::choosePaper()
{
    const QString choice = m_paper->selectedObject();
    if (choice == kCustom) {
        const PMPaper paper = m_job.sheet().value_or(PMPaper());
        m_customSize->setSize(paper.width, paper.height);
        m_customSize->setVisible(true);
        useCustomSize();
        return;
    }
    const QString clash = refusalSentence(m_job.ppd(), kPageSize, choice);
    if (clash.isNull())
        m_job.setPaper(paperOfChoice(m_job.ppd(), choice).value_or(PMPaper()));
    showPaper();
    if (clash.isNull())
        Q_EMIT changed();
    else
        Q_EMIT refused(clash);
}

void PaperRows::useCustomSize()
{
    if (m_customSize->isAcceptable())
        m_job.setPaper(customPaper(m_customSize->paperWidth(), m_customSize->paperHeight()));
    Q_EMIT changed();
}

bool PaperRows::isAcceptable() const
{
    return !m_paper || m_paper->selectedObject() != kCustom || m_customSize->isAcceptable();
}
