#include "dialog/window/FeaturesPane.h"

#include "dialog/job/FeatureTexts.h"
#include "dialog/printing/FeaturePicks.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/FeatureField.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFeatureMargin = 16;
constexpr int kFeatureGroupSpacing = 12;
constexpr int kLeastPaneHeight = 34; // points, on a very small screen

QLabel *newHeading(const QString &text)
{
    QLabel *heading = newPlainLabel(text);
    QFont bold = heading->font();
    bold.setBold(true);
    heading->setFont(bold);
    return heading;
}

} // namespace

FeaturesPane::FeaturesPane(PrintJob &job, QWidget *parent) : QScrollArea(parent), m_job(job)
{
    setObjectName(u"featuresPane"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus); // it scrolls to the control that has it
    setWidgetResizable(true);
    viewport()->setAutoFillBackground(false);
}

void FeaturesPane::clear()
{
    m_fields.clear();
    delete takeWidget();
}

void FeaturesPane::reload()
{
    clear();
    auto *page = new QWidget;
    page->setAutoFillBackground(false);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(kFeatureMargin, kFeatureMargin, kFeatureMargin, kFeatureMargin);
    layout->setSpacing(kFeatureGroupSpacing);
    for (const FeatureGroup &group : featuresOf(m_job))
        addGroup(layout, group);
    layout->addStretch(1);
    setWidget(page);
    page->setAutoFillBackground(false);
}

void FeaturesPane::addGroup(QVBoxLayout *page, const FeatureGroup &group)
{
    page->addWidget(newHeading(group.isInstalled ? tr("Installed in the Printer") : group.text));
    if (group.isInstalled) {
        QLabel *meaning =
            newPlainLabel(tr("What the printer has been fitted with. It is set when the printer is "
                             "set up, for everybody, and can only be looked at here."));
        meaning->setWordWrap(true);
        page->addWidget(meaning);
    }
    auto *form = new QFormLayout;
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignTop);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    page->addLayout(form);
    for (const PrinterFeature &feature : group.features) {
        if (group.isInstalled)
            addInstalled(form, feature);
        else
            addField(form, feature);
    }
}

void FeaturesPane::addInstalled(QFormLayout *form, const PrinterFeature &feature)
{
    const QString marked = markedChoice(m_job.ppd(), feature.keyword);
    QLabel *value = newPlainLabel(valueText(m_job.ppd(), feature.keyword, marked));
    value->setObjectName(feature.keyword + u"Installed"_s);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addLabelledRow(form, tr("%1:").arg(withoutMnemonic(feature.text)), value);
}

void FeaturesPane::addField(QFormLayout *form, const PrinterFeature &feature)
{
    auto *field = FeatureField::make(m_job.ppd(), feature, form->parentWidget());
    m_fields.push_back(field);
    connect(field, &FeatureField::chosen, this,
            [this, feature](const QString &value) { choose(feature, value); });
    connect(field, &FeatureField::judged, this, &FeaturesPane::changed);
    if (field->hasOwnTitle())
        form->setWidget(form->rowCount(), QFormLayout::FieldRole, field);
    else
        addLabelledRow(form, tr("%1:").arg(withoutMnemonic(feature.text)), field);
}

void FeaturesPane::choose(const PrinterFeature &feature, const QString &value)
{
    const Result<> chosen = chooseFeature(m_job, feature, value);
    // What somebody is still typing stays.
    for (FeatureField *field : m_fields)
        if (field->isAcceptable())
            field->showMarked();
    if (chosen)
        Q_EMIT changed();
    else
        Q_EMIT refused(chosen.sentence(), {feature.keyword, value});
}

bool FeaturesPane::isAcceptable() const
{
    return std::ranges::all_of(m_fields,
                               [](const FeatureField *field) { return field->isAcceptable(); });
}

QSize FeaturesPane::minimumSizeHint() const
{
    return {QScrollArea::minimumSizeHint().width(), toPixels(kLeastPaneHeight)};
}
