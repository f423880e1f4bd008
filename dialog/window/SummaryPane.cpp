#include "dialog/window/SummaryPane.h"

#include "platform/pde/PDESummary.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

namespace {

constexpr int kSummaryMargin = 16;
constexpr int kLineSpacing = 4;
constexpr int kSectionSpacing = 12;

QLabel *summaryLabel(const QString &text, QWidget *parent)
{
    QLabel *made = newPlainLabel(displayText(text), parent);
    made->setWordWrap(true);
    made->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return made;
}

QLabel *heading(const QString &text, QWidget *parent)
{
    QLabel *made = summaryLabel(text, parent);
    QFont bold = made->font();
    bold.setBold(true);
    made->setFont(bold);
    return made;
}

QString lineText(const SummarySection::Line &line)
{
    const QString title = displayText(line.title);
    const QString value = displayText(line.value);
    return line.origin.isEmpty() ? SummaryPane::tr("%1: %2").arg(title, value)
                                 : SummaryPane::tr("%1: %2 (%3)").arg(title, value, line.origin);
}

/// In a quieter colour.
QLabel *originLabel(const QString &text, QWidget *parent)
{
    QLabel *made = summaryLabel(text, parent);
    made->setObjectName(QStringLiteral("summaryOrigin"));
    made->setForegroundRole(QPalette::PlaceholderText);
    made->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return made;
}

} // namespace

QString SummaryPane::textOf(const QList<SummarySection> &sections)
{
    QStringList texts;
    for (const SummarySection &section : sections) {
        if (section.lines.isEmpty())
            continue;
        QStringList lines{displayText(section.heading)};
        for (const SummarySection::Line &line : section.lines)
            lines += lineText(line);
        texts += lines.join(u'\n');
    }
    return texts.join(QStringLiteral("\n\n"));
}

SummarySection sectionOf(const QString &heading, const QVariantMap &summaryInfo)
{
    SummarySection section{heading, {}};
    for (const QString &title : summaryOrder(summaryInfo)) {
        const QVariant value = summaryInfo.value(title);
        if (value.isValid())
            section.lines += {title, value.toString()};
    }
    return section;
}

SummaryPane::SummaryPane(QWidget *parent) : QScrollArea(parent)
{
    setObjectName(QStringLiteral("summaryPane"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
}

void SummaryPane::setSections(const QList<SummarySection> &sections)
{
    auto *page = new QWidget;
    page->setAutoFillBackground(false);
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(kSummaryMargin, kSummaryMargin, kSummaryMargin, kSummaryMargin);
    grid->setHorizontalSpacing(kSummaryMargin);
    grid->setVerticalSpacing(kLineSpacing);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 3);
    grid->setColumnStretch(2, 3);
    for (const SummarySection &section : sections)
        addSection(grid, section);
    grid->setRowStretch(grid->rowCount(), 1);
    setWidget(page); // the former page goes
    giveAccessibleText(this, textOf(sections));
    page->setAutoFillBackground(false);
}

void SummaryPane::addSection(QGridLayout *grid, const SummarySection &section)
{
    if (section.lines.isEmpty())
        return;
    QWidget *page = grid->parentWidget();
    int row = grid->rowCount();
    if (row > 1)
        grid->setRowMinimumHeight(row++, kSectionSpacing);
    grid->addWidget(heading(section.heading, page), row++, 0, 1, 3);
    for (const SummarySection::Line &line : section.lines) {
        QLabel *title = summaryLabel(line.title, page);
        title->setAlignment(Qt::AlignRight | Qt::AlignTop);
        grid->addWidget(title, row, 0);
        QLabel *value = summaryLabel(line.value, page);
        value->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        grid->addWidget(value, row, 1);
        if (!line.origin.isEmpty())
            grid->addWidget(originLabel(line.origin, page), row, 2);
        ++row;
    }
}
