#include "dialog/window/PageSetupPane.h"

#include "dialog/window/OptionRows.h"
#include "dialog/window/PaperRows.h"
#include "dialog/window/PlacementRows.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;

} // namespace

PageSetupPane::PageSetupPane(PrintJob &job, QWidget *parent) : QWidget(parent), m_job(job)
{
    setObjectName(u"pageSetupPane"_s);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    reload();
}

void PageSetupPane::reload()
{
    delete m_page;
    m_page = new QWidget(this);
    auto *form = new QFormLayout(m_page);
    form->setContentsMargins(0, 0, 0, 0);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFormAlignment(Qt::AlignHCenter | Qt::AlignTop);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    m_paper = new PaperRows(m_job, form, m_page);
    m_placement = new PlacementRows(m_job, form, m_page);
    auto *options = new OptionRows(m_job, form, m_page);
    connect(m_paper, &PaperRows::changed, m_placement, &PlacementRows::refresh);
    connect(m_paper, &PaperRows::changed, this, &PageSetupPane::changed);
    connect(m_paper, &PaperRows::refused, this, &PageSetupPane::refused);
    connect(m_placement, &PlacementRows::changed, this, &PageSetupPane::changed);
    connect(options, &OptionRows::changed, this, &PageSetupPane::changed);
    connect(options, &OptionRows::refused, this, &PageSetupPane::refused);
    static_cast<QVBoxLayout *>(layout())->addWidget(m_page, 1);
}

void PageSetupPane::refresh()
{
    m_placement->refresh();
}

bool PageSetupPane::isAcceptable() const
{
    return m_paper->isAcceptable();
}
