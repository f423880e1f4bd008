#include "dialog/window/PageSetupPane.h"

#include "dialog/window/OptionRows.h"
#include "dialog/window/PaperRows.h"
#include "dialog/window/PlacementRows.h"

#include <QtWidgets/QFormLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;

} // namespace

PageSetupPane::PageSetupPane(PrintJob &job, QWidget *parent) : ScrolledBody(parent), m_job(job)
{
    setObjectName(u"pageSetupPane"_s);
    reload();
}

void PageSetupPane::reload()
{
    delete takeWidget();
    auto *page = new QWidget(this);
    auto *form = new QFormLayout(page);
    form->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFormAlignment(Qt::AlignHCenter | Qt::AlignTop);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_paper = new PaperRows(m_job, form, page);
    m_placement = new PlacementRows(m_job, form, page);
    auto *options = new OptionRows(m_job, form, page);
    connect(m_paper, &PaperRows::changed, m_placement, &PlacementRows::refresh);
    connect(m_paper, &PaperRows::changed, this, &PageSetupPane::changed);
    connect(m_paper, &PaperRows::refused, this, &PageSetupPane::refused);
    connect(m_placement, &PlacementRows::changed, this, &PageSetupPane::changed);
    connect(options, &OptionRows::changed, this, &PageSetupPane::changed);
    connect(options, &OptionRows::refused, this, &PageSetupPane::refused);
    setContent(page);
}

void PageSetupPane::refresh()
{
    m_placement->refresh();
}

bool PageSetupPane::isAcceptable() const
{
    return m_paper->isAcceptable();
}
