#include "dialog/window/PrinterPopUp.h"

#include "dialog/cups/PrinterReasons.h"
#include "dialog/window/SearchablePopUp.h"
#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PlainText.h"

#include <QtWidgets/QHBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int kPrinterLength = 30;

QString titleOf(const Destination &destination)
{
    const QString name = textOf(destination.name);
    const bool saysMore = !destination.description.isEmpty() &&
                          destination.name.instance.isNull() &&
                          destination.description != destination.name.queue;
    return displayText(saysMore ? u"%1 – %2"_s.arg(name, destination.description) : name);
}

} // namespace

PrinterPopUp::PrinterPopUp(QWidget *parent)
    : QObject(parent), m_popup(new SearchablePopUp(parent)), m_state(new CaptionLabel(parent))
{
    m_popup->setObjectName(u"printerPopup"_s);
    m_popup->setMinimumContentsLength(kPrinterLength);
    m_popup->setDetails([this](const QString &key) { return detailOf(key); });
    m_state->setObjectName(u"printerState"_s);
    m_state->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_state->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(m_popup, &QComboBox::activated, this, [this](int index) {
        const QString key = m_popup->representedObject(index);
        if (!key.isEmpty())
            Q_EMIT picked(queueName(key));
    });
    connect(m_popup, &SearchablePopUp::listClosed, this, &PrinterPopUp::fill, Qt::QueuedConnection);
}

QHBoxLayout *PrinterPopUp::newRow() const
{
    auto *row = new QHBoxLayout;
    row->addWidget(m_popup);
    row->addWidget(m_state, 1);
    return row;
}

PopUpButton *PrinterPopUp::popup() const
{
    return m_popup;
}

void PrinterPopUp::setCurrent(const QueueName &queue, const QString &title)
{
    m_current = queue;
    m_currentTitle = title;
    m_wasListed = current();
    fill();
}

void PrinterPopUp::setSearching(bool searching)
{
    m_searching = searching;
    tellState();
}

void PrinterPopUp::setDestinations(const QList<Destination> &destinations)
{
    const bool isNews = m_destinations != destinations;
    m_searching = false;
    m_listFailed = false;
    if (isNews) {
        m_destinations = destinations;
        m_indexOfKey.clear();
        for (qsizetype index = 0; index < destinations.size(); ++index)
            m_indexOfKey.insert(textOf(destinations[index].name), index);
        m_wasListed = m_wasListed || current();
        fill();
    }
    tellState();
}

void PrinterPopUp::refreshPresets()
{
    if (!m_destinations.isEmpty())
        setDestinations(withInstances(m_destinations));
}

void PrinterPopUp::setQueuedJobs(int count)
{
    m_queuedJobs = count;
    tellState();
}

void PrinterPopUp::setListFailed()
{
    m_searching = false;
    m_listFailed = true;
    tellState();
}

/// What the server lists of the printer that is open, by whatever case its name was given in; null
/// without anything.
const Destination *PrinterPopUp::current() const
{
    const auto known = m_indexOfKey.constFind(textOf(m_current));
    if (known != m_indexOfKey.cend())
        return &m_destinations[*known];
    const auto found = std::ranges::find_if(m_destinations, [this](const Destination &one) {
        return one.name.queue.compare(m_current.queue, Qt::CaseInsensitive) == 0;
    });
    return found == m_destinations.cend() ? nullptr : &*found;
}

/// Place and state, for the row in the list.
QString PrinterPopUp::detailOf(const QString &key) const
{
    const auto known = m_indexOfKey.constFind(key);
    if (known == m_indexOfKey.cend())
        return m_wasListed ? tr("No longer on the print server") : QString();
    const Destination &printer = m_destinations[*known];
    const QString state = stateText(printer);
    return displayText(printer.location.isEmpty() ? state
                                                  : u"%1 · %2"_s.arg(printer.location, state));
}

/// What somebody who prints to it should know, else where it stands.
QString PrinterPopUp::wordOn(const Destination &printer) const
{
    QStringList words{isInTrouble(printer) ? stateText(printer) : printer.location};
    if (m_queuedJobs > 0)
        words += tr("Jobs in the queue: %1").arg(m_queuedJobs);
    words.removeAll(QString());
    return words.join(u" · "_s);
}

void PrinterPopUp::fill()
{
    if (m_popup->isListOpen()) { // it is filled when it closes
        m_popup->refreshDetails();
        return;
    }
    std::vector<PopUpButton::Item> items;
    items.reserve(static_cast<std::size_t>(m_destinations.size()) + 1);
    const QString key = textOf(m_current);
    if (!m_indexOfKey.contains(key)) {
        const QString title = m_currentTitle.isEmpty() ? key : m_currentTitle;
        items.push_back({title.isEmpty() ? tr("No printer") : displayText(title), key});
    }
    for (const Destination &destination : std::as_const(m_destinations))
        items.push_back({titleOf(destination), textOf(destination.name)});
    if (m_popup->hasItems(items))
        m_popup->refreshDetails();
    else
        m_popup->setItems(items);
    m_popup->selectObject(key);
    tellState();
}

void PrinterPopUp::tellState()
{
    const Destination *printer = current();
    QString state;
    if (m_searching)
        state = tr("Searching for printers…");
    else if (m_listFailed)
        state = tr("The other printers cannot be listed");
    else if (isCurrentGone())
        state = tr("No longer on the print server");
    else if (printer)
        state = wordOn(*printer);
    setLabelText(m_state, displayText(state));
}
