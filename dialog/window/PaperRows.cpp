#include "dialog/window/PaperRows.h"

#include "dialog/job/Conflicts.h"
#include "dialog/job/PaperList.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/CustomSizeFields.h"
#include "dialog/window/OwnSizeFields.h"
#include "dialog/window/SearchablePopUp.h"
#include "dialog/window/SetupPopUp.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto kPageSize = "PageSize"_L1;

/// Tells that an item of the menu has sent its action. The menu is compared with, and may have
/// gone.
void postMenuAction(const QWidget *menu, const QString &title)
{
    NotificationCenter::defaultCenter().post(QLatin1String(kMenuDidSendActionNotification), menu,
                                             QVariantMap{{u"MenuItem"_s, title}});
}

} // namespace

PaperRows::PaperRows(PrintJob &job, QFormLayout *form, QObject *parent)
    : QObject(parent), m_job(job), m_sizes(paperSizes(job.ppd()))
{
    if (!findOption(m_job.ppd(), kPageSize))
        return;
    addPaper(form);
    if (const std::optional<CustomLimits> limits = customLimits(m_job.ppd()))
        addCustomSize(form, *limits);
    addDocumentPage(form);
    fillList();
    showPaper();
}

void PaperRows::addPaper(QFormLayout *form)
{
    m_paper = new SearchablePopUp(form->parentWidget());
    shapeSetupPopUp(m_paper, u"paperPopup"_s);
    addLabelledRow(form, tr("P&aper in the Printer:"), m_paper);
    connect(m_paper, &QComboBox::activated, this, [this, popup = m_paper] {
        const QString title = popup->currentText();
        pickRow();
        postMenuAction(popup, title);
    });
    m_borderless = new QCheckBox(tr("&Borderless"), form->parentWidget());
    m_borderless->setObjectName(u"borderlessButton"_s);
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, m_borderless);
    connect(m_borderless, &QCheckBox::clicked, this, &PaperRows::chooseBorderless);
}

void PaperRows::addCustomSize(QFormLayout *form, const CustomLimits &limits)
{
    m_customSize = new CustomSizeFields(form->parentWidget());
    m_customSize->setLimits(limits);
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, m_customSize);
    connect(m_customSize, &CustomSizeFields::edited, this, &PaperRows::useCustomSize);
    m_ownSize = new OwnSizeFields(form->parentWidget());
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, m_ownSize);
    connect(m_ownSize, &OwnSizeFields::kept, this, &PaperRows::keepSheet);
    connect(m_ownSize, &OwnSizeFields::renamed, this, [this](const QString &name) {
        removeOwnSize(nameOfSheet());
        keepSheet(name);
    });
    connect(m_ownSize, &OwnSizeFields::removed, this, &PaperRows::forgetSheet);
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

void PaperRows::fillList()
{
    const std::optional<CustomLimits> limits = customLimits(m_job.ppd());
    m_own = ownSizes();
    m_own.removeIf([&](const OwnSize &size) {
        return !limits || !isWithin(*limits, size.width, size.height);
    });
    const QList<PaperListRow> rows =
        paperList(m_sizes, recentPapers(m_job.printerKey()), m_own, limits.has_value());
    std::vector<PopUpButton::Item> items;
    for (const PaperListRow &row : rows)
        items.push_back({row.title, row.paper});
    m_paper->setItems(items);
    m_paper->setDetails([rows](const QString &paper) {
        const auto row = std::ranges::find(rows, paper, &PaperListRow::paper);
        return row == rows.end() ? QString() : row->detail;
    });
    for (int index = 0; index < m_paper->count(); ++index)
        m_paper->setItemEnabled(index, !rows[index].paper.isNull());
}

/// Shows the sheet that the job has.
void PaperRows::showPaper()
{
    const std::optional<PMPaper> sheet = m_job.sheet();
    const bool isCustom = sheet && sheet->ppdName.isNull();
    const qsizetype index = sheet ? indexOfSize(m_sizes, sheet->ppdName) : -1;
    if (index >= 0)
        showChoice(m_paper, m_sizes[index].choice);
    else
        showChoice(m_paper, isCustom ? customPageSize(sheet->width, sheet->height) : QString());
    if (isCustom && m_paper->currentIndex() < 0)
        showChoice(m_paper, kOwnPaper);
    m_borderless->setVisible(index >= 0 && !m_sizes[index].borderless.isNull());
    m_borderless->setChecked(index >= 0 && m_sizes[index].borderless == sheet->ppdName);
    if (m_customSize)
        showCustomSize(isCustom ? sheet : std::nullopt);
}

/// The fields for a size of the user's own; none: the sheet is one of the printer's.
void PaperRows::showCustomSize(const std::optional<PMPaper> &paper)
{
    m_customSize->setVisible(paper.has_value());
    m_ownSize->setVisible(paper.has_value());
    if (!paper)
        return;
    // While somebody types, the sheet is what stands in the fields.
    const PMPaper typed = customPaper(m_customSize->paperWidth(), m_customSize->paperHeight());
    if (typed.name != paper->name)
        m_customSize->setSize(paper->width, paper->height);
    m_ownSize->setKept(nameOfSheet(), m_customSize->isAcceptable());
}

void PaperRows::pickRow()
{
    const QString picked = m_paper->selectedObject();
    const qsizetype index = indexOfSize(m_sizes, picked);
    const PMPaper sheet = m_job.sheet().value_or(PMPaper());
    if (picked == kOwnPaper)
        takeOwnSize(ownPaperLike(sheet));
    else if (const std::optional<PMPaper> own = parseCustomPaper(picked))
        takeOwnSize(*own);
    else if (index >= 0)
        takeChoice(m_borderless->isChecked() && !m_sizes[index].borderless.isNull()
                       ? m_sizes[index].borderless
                       : picked);
}

/// What a size of the user's own begins with.
PMPaper PaperRows::ownPaperLike(const PMPaper &sheet) const
{
    const QSizeF meant = meantSize({sheet.width, sheet.height});
    const std::optional<CustomLimits> limits = customLimits(m_job.ppd());
    const bool isMeant =
        !sheet.ppdName.isNull() && limits && isWithin(*limits, meant.width(), meant.height());
    return isMeant ? customPaper(meant.width(), meant.height())
                   : customPaper(sheet.width, sheet.height);
}

void PaperRows::takeChoice(const QString &choice)
{
    const QString clash = refusalSentence(m_job.ppd(), kPageSize, choice);
    if (clash.isNull())
        m_job.setPaper(paperOfChoice(m_job.ppd(), choice).value_or(PMPaper()));
    showPaper();
    if (clash.isNull())
        Q_EMIT changed();
    else
        Q_EMIT refused(clash, {kPageSize, choice});
}

/// The fields are there also for a size that the printer does not take: the word beside them says
/// why.
void PaperRows::takeOwnSize(const PMPaper &paper)
{
    m_customSize->setSize(paper.width, paper.height);
    m_customSize->setVisible(true);
    useCustomSize();
}

void PaperRows::chooseBorderless(bool borderless)
{
    const qsizetype index = indexOfSize(m_sizes, m_paper->selectedObject());
    if (index >= 0)
        takeChoice(borderless ? m_sizes[index].borderless : m_sizes[index].choice);
}

void PaperRows::useCustomSize()
{
    const bool isAcceptable = m_customSize->isAcceptable();
    if (isAcceptable)
        m_job.setPaper(customPaper(m_customSize->paperWidth(), m_customSize->paperHeight()));
    if (isAcceptable)
        showPaper();
    else
        m_ownSize->setKept(QString(), false);
    Q_EMIT changed();
}

bool PaperRows::isAcceptable() const
{
    return !m_customSize || m_customSize->isHidden() || m_customSize->isAcceptable();
}

/// The name by which the size of the sheet is kept; null when it is not.
QString PaperRows::nameOfSheet() const
{
    const PMPaper sheet = m_job.sheet().value_or(PMPaper());
    for (const OwnSize &size : m_own)
        if (customPageSize(size.width, size.height) == customPageSize(sheet.width, sheet.height))
            return size.name;
    return {};
}

void PaperRows::keepSheet(const QString &name)
{
    const PMPaper sheet = m_job.sheet().value_or(PMPaper());
    keepOwnSize({name, sheet.width, sheet.height});
    fillList();
    showPaper();
}

void PaperRows::forgetSheet()
{
    removeOwnSize(nameOfSheet());
    fillList();
    showPaper();
}
