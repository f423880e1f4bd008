#include "dialog/window/PlacementRows.h"

#include "dialog/printing/PrintJob.h"
#include "dialog/window/RadioPair.h"
#include "dialog/window/SentenceLabel.h"
#include "dialog/window/SetupPopUp.h"
#include "platform/toolkit/PlainLabel.h"

#include <QtWidgets/QFormLayout>
#include <QtWidgets/QLabel>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array kScalings{PrintScaling::Automatic, PrintScaling::ActualSize, PrintScaling::Fit,
                               PrintScaling::Fill};

} // namespace

PlacementRows::PlacementRows(PrintJob &job, QFormLayout *form, QObject *parent)
    : QObject(parent), m_job(job)
{
    addOrientation(form);
    addScaling(form);
    refresh();
}

void PlacementRows::addOrientation(QFormLayout *form)
{
    const std::array<RadioTitle, 2> titles{
        {{u"portraitButton"_s, tr("P&ortrait")}, {u"landscapeButton"_s, tr("&Landscape")}}};
    const bool isLandscape = m_job.orientation() == PMOrientation::Landscape;
    addLabelledRow(
        form, tr("Orientation:"), newRadioPair(titles, isLandscape ? 1 : 0, [this](int index) {
            m_job.setOrientation(index == 1 ? PMOrientation::Landscape : PMOrientation::Portrait);
            refresh();
            Q_EMIT changed();
        }));
    m_orientationSentence = addSentence(form, u"orientationSentence"_s);
}

void PlacementRows::addScaling(QFormLayout *form)
{
    m_scaling = newSetupPopUp(u"scalingPopup"_s, form->parentWidget());
    addLabelledRow(form, tr("&Scaling:"), m_scaling);
    m_scalingSentence = addSentence(form, u"scalingSentence"_s);
    connect(m_scaling, &QComboBox::activated, this, [this](int index) {
        m_job.settings().scaling = kScalings[static_cast<std::size_t>(index)];
        refresh();
        Q_EMIT changed();
    });
}

/// A line below the row that says what comes of its setting.
QLabel *PlacementRows::addSentence(QFormLayout *form, const QString &name)
{
    auto *label = new SentenceLabel(form->parentWidget());
    label->setObjectName(name);
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, label);
    return label;
}

void PlacementRows::refresh()
{
    const ScalingCase on = m_job.scalingCase();
    std::vector<PopUpButton::Item> items;
    items.reserve(kScalings.size());
    for (const PrintScaling scaling : kScalings)
        items.push_back({scalingTitle(scaling, on), scalingKeyword(scaling)});
    m_scaling->setItems(items);
    m_scaling->selectObject(scalingKeyword(m_job.settings().scaling));
    setLabelText(m_scalingSentence, scalingSentence(m_job.settings().scaling, on));
    setLabelText(m_orientationSentence,
                 m_job.orientation() == PMOrientation::Landscape
                     ? tr("The paper lies on its side, and every page upright on it.")
                     : tr("Pages that are wider than high are turned to fill the paper."));
}
