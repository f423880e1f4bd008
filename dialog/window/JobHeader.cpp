#include "dialog/window/JobHeader.h"

#include "dialog/job/JobLayout.h"
#include "dialog/job/PageRanges.h"
#include "dialog/job/PrintedSides.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/FieldWidth.h"
#include "dialog/window/FlowLayout.h"
#include "dialog/window/PresetsRow.h"
#include "dialog/window/PrinterPopUp.h"
#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMostCopies = 999;
constexpr int kPagesWidth = 160;
constexpr int kLeastNameLength = 20; // characters

/// All that stands in the header is a child of it: assistive technology looks for a control's label
/// among its siblings.
QLabel *label(const QString &text, QWidget *buddy)
{
    QLabel *made = newPlainLabel(text, buddy->parentWidget());
    made->setBuddy(buddy);
    return made;
}

} // namespace

JobHeader::JobHeader(PrintJob &job, QWidget *parent)
    : QWidget(parent),
      m_job(job),
      m_documents(new CaptionLabel(this)),
      m_choose(new QPushButton(tr("C&hoose…"), this)),
      m_printers(new PrinterPopUp(this)),
      m_presets(new PresetsRow(this)),
      m_copies(new NumberField(this)),
      m_pages(new QLineEdit(this)),
      m_pagesValidation(newPlainLabel(QString(), this))
{
    m_documents->setObjectName(u"documentsLabel"_s);
    m_documents->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_documents->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_documents->setMinimumWidth(kLeastNameLength * fontMetrics().averageCharWidth());
    m_choose->setObjectName(u"chooseButton"_s);
    m_choose->setAutoDefault(false);
    m_copies->setObjectName(u"copiesField"_s);
    m_copies->setRange(1, kMostCopies);
    m_pages->setObjectName(u"pagesField"_s);
    m_pages->setPlaceholderText(tr("All, or 1-3, 5"));
    m_pages->setFixedWidth(std::max(kPagesWidth, widthForPlaceholder(*m_pages)));
    m_pagesValidation->setObjectName(u"pagesValidation"_s);
    auto *form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->addRow(label(tr("Document:"), m_documents), newDocumentsRow());
    form->addRow(label(tr("Pri&nter:"), m_printers->popup()), m_printers->newRow());
    m_presetsRow = m_presets->newRow();
    form->addRow(label(tr("Preset:"), m_presets->popup()), m_presetsRow);
    m_settingsRow = newSettingsRow();
    form->addRow(label(tr("&Copies:"), m_copies), m_settingsRow);
    setTabOrder(m_choose, m_printers->popup());
    setTabOrder(m_printers->popup(), m_presets->popup());
    setTabOrder(m_presets->popup(), m_presets->menuButton());
    connect(m_choose, &QPushButton::clicked, this, &JobHeader::documentsWanted);
    connect(m_copies, &NumberField::editedByUser, this, [this] {
        m_job.settings().copies = m_copies->value();
        Q_EMIT changed();
    });
    connect(m_pages, &QLineEdit::textEdited, this, &JobHeader::takePages);
    reload();
}

QLayout *JobHeader::newDocumentsRow()
{
    auto *row = new QHBoxLayout;
    row->addWidget(m_documents, 1);
    row->addWidget(m_choose);
    return row;
}

QLayout *JobHeader::newSettingsRow()
{
    auto *pages = new QHBoxLayout;
    pages->addWidget(label(tr("Pa&ges:"), m_pages));
    pages->addWidget(m_pages);
    auto *row = new FlowLayout;
    row->addWidget(m_copies);
    row->addLayout(pages);
    row->addWidget(m_pagesValidation);
    return row;
}

void JobHeader::reload()
{
    QStringList names;
    for (const Document &document : m_job.documents())
        names += document.name();
    setLabelText(m_documents, names.isEmpty() ? tr("No document") : names.join(u", "_s));
    m_copies->setDoubleValue(m_job.settings().copies);
    m_pages->setText(m_job.settings().pageRanges);
    judgePages();
}

void JobHeader::setPageCount(const PageCount &count)
{
    m_pageCount = count;
    judgePages();
}

void JobHeader::showJobSettings(bool shown)
{
    auto *form = static_cast<QFormLayout *>(layout());
    form->setRowVisible(m_settingsRow, shown);
    form->setRowVisible(m_presetsRow, shown);
}

void JobHeader::takePages()
{
    const QString ranges = normalizedPageRanges(m_pages->text());
    if (!ranges.isNull())
        m_job.settings().pageRanges = ranges;
    judgePages();
    Q_EMIT changed();
}

void JobHeader::judgePages()
{
    const bool areSides = hasSeveralPagesOnASide(m_job.settings().layout);
    QString told;
    if (normalizedPageRanges(m_pages->text()).isNull())
        told = tr("Pages look like this: 1-3, 5");
    else if (const std::optional<int> beyond = typedBeyond())
        told = (areSides ? tr("%1 is beyond side %2") : tr("%1 is beyond page %2"))
                   .arg(*beyond)
                   .arg(printedSides(m_job.settings().layout, *m_pageCount->fewest));
    else if (m_pageCount && m_pageCount->all)
        told = countSentence();
    else if (m_pageCount && !m_job.documents().empty())
        told = tr("How many there are is not known");
    setLabelText(m_pagesValidation, told);
}

/// Every document begins on a side of its own.
QString JobHeader::countSentence() const
{
    const JobLayout &layout = m_job.settings().layout;
    if (!hasSeveralPagesOnASide(layout))
        return tr("%1 in all").arg(*m_pageCount->all);
    int sides = 0;
    for (const std::optional<int> &pages : m_pageCount->each)
        sides += printedSides(layout, pages.value_or(0));
    return tr("%1 sides in all").arg(sides);
}

/// The page (or side, where those are counted) of what was typed that a document does not have;
/// none where that is not known.
std::optional<int> JobHeader::typedBeyond() const
{
    if (!m_pageCount || !m_pageCount->fewest)
        return std::nullopt;
    return pageBeyond(normalizedPageRanges(m_pages->text()),
                      printedSides(m_job.settings().layout, *m_pageCount->fewest));
}

bool JobHeader::isAcceptable() const
{
    return !normalizedPageRanges(m_pages->text()).isNull() && !typedBeyond();
}
