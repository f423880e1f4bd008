#include "dialog/window/FeatureField.h"

#include "dialog/host/CustomParameters.h"
#include "dialog/window/CustomValueFields.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/AccessibleName.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kFeatureLength = 30; // characters: a pop-up does not measure hundreds of texts
constexpr int kListRows = 6;       // that are seen at once
constexpr int kListWidth = 300;

std::vector<PopUpButton::Item> choiceItems(ppd_file_t *ppd, const PrinterFeature &feature)
{
    std::vector<PopUpButton::Item> items;
    const ppd_option_t *option = findOption(ppd, feature.keyword);
    for (int index = 0; option && index < option->num_choices; ++index) {
        const ppd_choice_t &choice = option->choices[index];
        items.push_back({ppdText(choice.text), ppdName(choice.choice)});
    }
    return items;
}

/// A check box.
class SwitchField : public FeatureField
{
public:
    SwitchField(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent)
        : FeatureField(ppd, feature, parent), m_box(new QCheckBox(this))
    {
        setButtonTitle(m_box, feature.text);
        addControl(m_box);
        connect(m_box, &QCheckBox::clicked, this, [this](bool isOn) {
            Q_EMIT chosen(switchChoice(this->ppd(), this->feature(), isOn));
        });
    }

    void showMarked() override
    {
        const QString marked = markedChoice(ppd(), feature().keyword);
        m_box->setChecked(marked == switchChoice(ppd(), feature(), true));
    }

    bool hasOwnTitle() const override { return true; }

private:
    QCheckBox *m_box;
};

/// A pop-up, and the fields for a value of the user's own where the feature takes one.
class ChoiceField : public FeatureField
{
public:
    ChoiceField(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent)
        : FeatureField(ppd, feature, parent), m_popup(new PopUpButton(this))
    {
        m_popup->setMinimumContentsLength(kFeatureLength);
        m_popup->setItems(choiceItems(ppd, feature));
        addControl(m_popup);
        connect(m_popup, &QComboBox::activated, this, &ChoiceField::choose);
        if (customParameters(ppd, feature.keyword).isEmpty())
            return;
        m_custom = new CustomValueFields(feature.keyword, this);
        layout()->addWidget(m_custom);
        connect(m_custom, &CustomValueFields::edited, this, &ChoiceField::choose);
    }

    void showMarked() override
    {
        const QString marked = markedChoice(ppd(), feature().keyword);
        m_popup->setCurrentIndex(m_popup->indexOfRepresentedObject(marked));
        showCustom(isCustomName(marked));
    }

    bool isAcceptable() const override { return !usesCustom() || m_custom->isAcceptable(); }

private:
    bool usesCustom() const { return m_custom && isCustomName(m_popup->selectedObject()); }

    void showCustom(bool isShown)
    {
        if (!m_custom)
            return;
        if (isShown || m_custom->isHidden())
            m_custom->showValues(customParameters(ppd(), feature().keyword));
        m_custom->setVisible(isShown);
    }

    void choose()
    {
        if (m_custom && usesCustom() && m_custom->isHidden())
            showCustom(true);
        else if (m_custom && !usesCustom())
            m_custom->hide();
        if (!usesCustom())
            Q_EMIT chosen(m_popup->selectedObject());
        else if (m_custom->isAcceptable())
            Q_EMIT chosen(customChoice(m_custom->values()));
        else
            Q_EMIT judged();
    }

    PopUpButton *m_popup;
    CustomValueFields *m_custom = nullptr; // null: no values of the user's own
};

/// A list of choices to tick.
class ManyField : public FeatureField
{
public:
    ManyField(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent)
        : FeatureField(ppd, feature, parent), m_list(new QListWidget(this))
    {
        m_list->setUniformItemSizes(true);
        m_list->setFixedWidth(kListWidth);
        for (const PopUpButton::Item &choice : choiceItems(ppd, feature)) {
            auto *item = new QListWidgetItem(choice.title, m_list);
            item->setData(Qt::UserRole, choice.representedObject);
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
            item->setCheckState(Qt::Unchecked);
        }
        const int rows = std::min(m_list->count(), kListRows);
        m_list->setFixedHeight(rows * m_list->sizeHintForRow(0) + 2 * m_list->frameWidth());
        addControl(m_list);
        connect(m_list, &QListWidget::itemChanged, this, &ManyField::choose);
    }

    void showMarked() override
    {
        const QSignalBlocker quiet(m_list);
        const QStringList marked = markedChoices(ppd(), feature());
        for (int row = 0; row < m_list->count(); ++row) {
            QListWidgetItem *item = m_list->item(row);
            const bool isMarked = marked.contains(item->data(Qt::UserRole).toString());
            item->setCheckState(isMarked ? Qt::Checked : Qt::Unchecked);
        }
    }

private:
    void choose(const QListWidgetItem *item)
    {
        const QStringList choices =
            choicesAfter(ppd(), feature(), item->data(Qt::UserRole).toString(),
                         item->checkState() == Qt::Checked);
        Q_EMIT chosen(choices.join(u','));
    }

    QListWidget *m_list;
};

} // namespace

FeatureField::FeatureField(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent)
    : QWidget(parent), m_ppd(ppd), m_feature(feature)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignLeft);
}

void FeatureField::addControl(QWidget *control)
{
    control->setObjectName(m_feature.keyword + u"Feature"_s);
    giveAccessibleName(control, m_feature.text);
    setFocusProxy(control);
    layout()->addWidget(control);
}

FeatureField *FeatureField::make(ppd_file_t *ppd, const PrinterFeature &feature, QWidget *parent)
{
    FeatureField *made = nullptr;
    switch (feature.kind) {
    case PrinterFeature::Kind::Switch:
        made = new SwitchField(ppd, feature, parent);
        break;
    case PrinterFeature::Kind::One:
        made = new ChoiceField(ppd, feature, parent);
        break;
    case PrinterFeature::Kind::Many:
        made = new ManyField(ppd, feature, parent);
        break;
    }
    made->showMarked();
    return made;
}
