#include "dialog/window/PrinterPopUp.h"

#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"
#include "platform/toolkit/PopUpButton.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPrinterLength = 30;

/// The queue in one text, as -d takes it. Names of queues hold no slash.
QString keyOf(const QueueName &name)
{
    return name.instance.isNull() ? name.queue : name.queue + u'/' + name.instance;
}

QString titleOf(const Destination &destination)
{
    const QString name = keyOf(destination.name);
    const bool saysMore = !destination.description.isEmpty() &&
                          destination.name.instance.isNull() &&
                          destination.description != destination.name.queue;
    return displayText(saysMore ? u"%1 – %2"_s.arg(name, destination.description) : name);
}

} // namespace

PrinterPopUp::PrinterPopUp(QWidget *parent)
    : QWidget(parent), m_popup(new PopUpButton(this)), m_state(newPlainLabel(QString(), this))
{
    m_popup->setObjectName(u"printerPopup"_s);
    m_popup->setMinimumContentsLength(kPrinterLength);
    m_state->setObjectName(u"printerState"_s);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_popup);
    layout->addWidget(m_state, 1);
    connect(m_popup, &QComboBox::activated, this, [this](int index) {
        const QString key = m_popup->representedObject(index);
        if (!key.isEmpty())
            Q_EMIT picked(queueName(key));
    });
}

void PrinterPopUp::setCurrent(const QueueName &queue, const QString &title)
{
    m_current = queue;
    m_currentTitle = title;
    fill();
}

void PrinterPopUp::setSearching(bool searching)
{
    m_searching = searching;
    tellState();
}

void PrinterPopUp::setDestinations(const QList<Destination> &destinations)
{
    m_destinations = destinations;
    m_searching = false;
    fill();
}

void PrinterPopUp::setListFailed()
{
    m_searching = false;
    m_listFailed = true;
    tellState();
}

void PrinterPopUp::fill()
{
    std::vector<PopUpButton::Item> items;
    for (const Destination &destination : m_destinations)
        items.push_back({titleOf(destination), keyOf(destination.name)});
    const QString current = keyOf(m_current);
    const bool isListed = std::ranges::any_of(
        items, [&](const PopUpButton::Item &item) { return item.representedObject == current; });
    if (!isListed) {
        const QString title = m_currentTitle.isEmpty() ? current : m_currentTitle;
        items.insert(items.begin(),
                     {title.isEmpty() ? tr("No printer") : displayText(title), current});
    }
    m_popup->setItems(items);
    m_popup->selectObject(current);
    tellState();
}

void PrinterPopUp::tellState()
{
    const auto found = std::ranges::find(m_destinations, m_current, &Destination::name);
    QString state;
    if (m_searching)
        state = tr("Searching for printers…");
    else if (m_listFailed)
        state = tr("The other printers cannot be listed");
    else if (found != m_destinations.end() && !found->isAccepting)
        state = tr("Takes no jobs at present");
    else if (found != m_destinations.end() && found->isStopped)
        state = tr("Stopped: jobs wait");
    else if (found != m_destinations.end())
        state = displayText(found->location);
    setLabelText(m_state, state);
}
