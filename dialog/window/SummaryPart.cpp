#include "dialog/window/SummaryPart.h"

#include "dialog/window/FlowLayout.h"

#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int kFilterMargin = 8;

} // namespace

SummaryPart::SummaryPart(QWidget *parent)
    : ScrolledBody(parent),
      m_onlyDifferent(new QCheckBox(tr("Only What Differs from the Printer's Defaults"), this)),
      m_copy(new QPushButton(tr("Copy as Text"), this)),
      m_pane(new SummaryPane(this))
{
    setObjectName(QStringLiteral("summaryPart"));
    m_onlyDifferent->setObjectName(QStringLiteral("onlyDifferentButton"));
    m_copy->setObjectName(QStringLiteral("copySummaryButton"));
    m_copy->setAutoDefault(false);
    auto *row = new FlowLayout;
    row->setContentsMargins(2 * kFilterMargin, kFilterMargin, 2 * kFilterMargin, 0);
    row->addWidget(m_onlyDifferent);
    row->addWidget(m_copy);
    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(row);
    layout->addWidget(m_pane, 1);
    setContent(content);
    connect(m_onlyDifferent, &QCheckBox::toggled, this, &SummaryPart::showSections);
    connect(m_copy, &QPushButton::clicked, this, &SummaryPart::copy);
}

void SummaryPart::setSections(const QList<SummarySection> &sections)
{
    m_sections = sections;
    showSections();
}

QList<SummarySection> SummaryPart::shownSections() const
{
    QList<SummarySection> shown = m_sections;
    if (m_onlyDifferent->isChecked())
        for (SummarySection &section : shown)
            section.lines.removeIf([](const auto &line) { return line.isDefault; });
    return shown;
}

void SummaryPart::showSections()
{
    m_pane->setSections(shownSections());
}

void SummaryPart::copy()
{
    QGuiApplication::clipboard()->setText(SummaryPane::textOf(shownSections()));
}
