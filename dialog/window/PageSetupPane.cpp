#include "dialog/window/PageSetupPane.h"

#include "dialog/job/Conflicts.h"
#include "dialog/job/Papers.h"
#include "dialog/printing/PrintJob.h"
#include "dialog/window/CustomSizeFields.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindow.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QFormLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargin = 16;
constexpr int kContentsLength = 30; // characters: a pop-up does not measure hundreds of texts
constexpr auto kPageSize = "PageSize"_L1;
constexpr auto kCustom = "Custom"_L1;

/// The choices of the PPD option, by their texts.
std::vector<PopUpButton::Item> itemsOf(const ppd_option_t *option)
{
    std::vector<PopUpButton::Item> items;
    for (int index = 0; option && index < option->num_choices; ++index) {
        const ppd_choice_t &choice = option->choices[index];
        items.push_back({ppdText(choice.text), ppdName(choice.choice)});
    }
    return items;
}

/// The papers of the PPD; libcups adds a choice for sizes of the user's own, which is no paper.
std::vector<PopUpButton::Item> paperItems(ppd_file_t *ppd)
{
    std::vector<PopUpButton::Item> items = itemsOf(findOption(ppd, kPageSize));
    std::erase_if(items, [](const auto &item) { return item.representedObject == kCustom; });
    return items;
}

/// Selects the choice, or nothing where nothing is marked: a PPD need not tell a default.
void showChoice(PopUpButton *popup, const QString &choice)
{
    popup->setCurrentIndex(popup->indexOfRepresentedObject(choice));
}

/// Two radio buttons side by side; `chosen` is called with the id of the one that was clicked.
QWidget *newRadioPair(const std::array<std::pair<QString, QString>, 2> &namesAndTitles, int checked,
                      const std::function<void(int)> &chosen)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *group = new QButtonGroup(row);
    for (std::size_t index = 0; index < namesAndTitles.size(); ++index) {
        auto *button = new QRadioButton(namesAndTitles[index].second, row);
        button->setObjectName(namesAndTitles[index].first);
        button->setChecked(static_cast<int>(index) == checked);
        group->addButton(button, static_cast<int>(index));
        layout->addWidget(button);
    }
    layout->addStretch(1);
    QObject::connect(group, &QButtonGroup::idClicked, row, chosen);
    return row;
}

/// Tells that an item of the menu has sent its action. The menu is compared with, and may have
/// gone.
void postMenuAction(const QWidget *menu, const QString &title)
{
    NotificationCenter::defaultCenter().post(QLatin1String(kMenuDidSendActionNotification), menu,
                                             QVariantMap{{u"MenuItem"_s, title}});
}

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
    m_paper = nullptr;
    m_customSize = nullptr;
    auto *form = new QFormLayout(m_page);
    form->setContentsMargins(0, 0, 0, 0);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setFormAlignment(Qt::AlignHCenter | Qt::AlignTop);
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    if (findOption(m_job.ppd(), kPageSize))
        addPaper(form);
    addOrientation(form);
    if (findOption(m_job.ppd(), kPageSize))
        addScaling(form);
    for (const QString &keyword : m_job.ownKeywords())
        addOption(form, keyword);
    if (m_job.offersColorMatching())
        addColorMatching(form);
    static_cast<QVBoxLayout *>(layout())->addWidget(m_page, 1);
}

PopUpButton *PageSetupPane::newPopUp(const QString &name)
{
    auto *popup = new PopUpButton(m_page);
    popup->setObjectName(name);
    popup->setMinimumContentsLength(kContentsLength);
    return popup;
}

void PageSetupPane::addPaper(QFormLayout *form)
{
    const std::optional<CustomLimits> limits = customLimits(m_job.ppd());
    std::vector<PopUpButton::Item> items = paperItems(m_job.ppd());
    if (limits)
        items.push_back({tr("Custom Size"), kCustom});
    m_paper = newPopUp(u"paperPopup"_s);
    m_paper->setItems(items);
    addLabelledRow(form, tr("P&aper:"), m_paper);
    connect(m_paper, &QComboBox::activated, this, [this, popup = m_paper] {
        const QString title = popup->currentText();
        choosePaper();
        postMenuAction(popup, title);
    });

    if (limits)
        addCustomSize(form, *limits);
    showPaper();
}

void PageSetupPane::addCustomSize(QFormLayout *form, const CustomLimits &limits)
{
    const PMPaper paper = m_job.paper().value_or(PMPaper());
    m_customSize = new CustomSizeFields(m_page);
    m_customSize->setLimits(limits);
    m_customSize->setSize(paper.width, paper.height);
    form->setWidget(form->rowCount(), QFormLayout::FieldRole, m_customSize);
    connect(m_customSize, &CustomSizeFields::edited, this, &PageSetupPane::useCustomSize);
}

/// Shows the paper that the job has.
void PageSetupPane::showPaper()
{
    const std::optional<PMPaper> paper = m_job.paper();
    const bool isCustom = paper && paper->ppdName.isNull();
    showChoice(m_paper, isCustom ? QString(kCustom) : paper.value_or(PMPaper()).ppdName);
    if (m_customSize)
        m_customSize->setVisible(isCustom);
}

void PageSetupPane::choosePaper()
{
    const QString choice = m_paper->selectedObject();
    if (choice == kCustom) {
        const PMPaper paper = m_job.paper().value_or(PMPaper());
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

void PageSetupPane::useCustomSize()
{
    if (m_customSize->isAcceptable())
        m_job.setPaper(customPaper(m_customSize->paperWidth(), m_customSize->paperHeight()));
    Q_EMIT changed();
}

bool PageSetupPane::isAcceptable() const
{
    return !m_paper || m_paper->selectedObject() != kCustom || m_customSize->isAcceptable();
}

void PageSetupPane::addOrientation(QFormLayout *form)
{
    const std::array<std::pair<QString, QString>, 2> titles{
        {{u"portraitButton"_s, tr("P&ortrait")}, {u"landscapeButton"_s, tr("&Landscape")}}};
    const bool isLandscape = m_job.orientation() == PMOrientation::Landscape;
    addLabelledRow(
        form, tr("Orientation:"), newRadioPair(titles, isLandscape ? 1 : 0, [this](int id) {
            m_job.setOrientation(id == 1 ? PMOrientation::Landscape : PMOrientation::Portrait);
            Q_EMIT changed();
        }));
}

void PageSetupPane::addScaling(QFormLayout *form)
{
    std::vector<PopUpButton::Item> items = paperItems(m_job.ppd());
    items.insert(items.begin(), {tr("Do Not Scale"), QString()});
    PopUpButton *popup = newPopUp(u"scalePopup"_s);
    popup->setItems(items);
    popup->selectObject(m_job.mappedPaper());
    addLabelledRow(form, tr("&Scale to Fit:"), popup);
    connect(popup, &QComboBox::activated, this, [this, popup] {
        const QString paper = popup->selectedObject();
        m_job.setMappedPaper(paper.isEmpty() ? QString() : paper);
        Q_EMIT changed();
    });
}

void PageSetupPane::addOption(QFormLayout *form, const QString &keyword)
{
    const ppd_option_t *option = findOption(m_job.ppd(), keyword);
    PopUpButton *popup = newPopUp(keyword + u"Popup"_s);
    popup->setItems(itemsOf(option));
    showChoice(popup, markedChoice(m_job.ppd(), keyword));
    addLabelledRow(form, tr("%1:").arg(withoutMnemonic(ppdText(option->text))), popup);
    connect(popup, &QComboBox::activated, this,
            [this, keyword, popup] { chooseOption(keyword, popup); });
}

void PageSetupPane::chooseOption(const QString &keyword, PopUpButton *popup)
{
    const QString choice = popup->selectedObject();
    const QString clash = refusalSentence(m_job.ppd(), keyword, choice);
    if (clash.isNull()) {
        m_job.mark(keyword, choice);
        Q_EMIT changed();
        return;
    }
    showChoice(popup, markedChoice(m_job.ppd(), keyword));
    Q_EMIT refused(clash);
}

void PageSetupPane::addColorMatching(QFormLayout *form)
{
    const std::array<std::pair<QString, QString>, 2> titles{
        {{u"matchByPrinterButton"_s, tr("B&y the Printer")},
         {u"matchByApplicationButton"_s, tr("&By the Application")}}};
    const bool byApplication = m_job.colorMatching() == PrintJob::ColorMatching::Application;
    addLabelledRow(form, tr("Color Management:"),
                   newRadioPair(titles, byApplication ? 1 : 0, [this](int id) {
                       m_job.setColorMatching(id == 1 ? PrintJob::ColorMatching::Application
                                                      : PrintJob::ColorMatching::Printer);
                       Q_EMIT changed();
                   }));
}
