#include "platform/toolkit/ViewLoader.h"

#include "platform/toolkit/CaptionLabel.h"
#include "platform/toolkit/DisclosureButton.h"
#include "platform/toolkit/FractionSlider.h"
#include "platform/toolkit/ImageView.h"
#include "platform/toolkit/NumberField.h"
#include "platform/toolkit/PanelPoint.h"
#include "platform/toolkit/PlainLabel.h"
#include "platform/toolkit/PopUpButton.h"
#include "platform/toolkit/RadioMatrix.h"
#include "platform/toolkit/SizeWatch.h"
#include "platform/toolkit/ViewBindings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtUiTools/QUiLoader>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QLabel>

#include <utility>

namespace {

ViewConnections toolkitClasses()
{
    ViewConnections classes;
    classes.widgetClass<DisclosureButton>(QStringLiteral("DisclosureButton"));
    classes.widgetClass<CaptionLabel>(QStringLiteral("CaptionLabel"));
    classes.widgetClass<PopUpButton>(QStringLiteral("PopUpButton"));
    classes.widgetClass<RadioMatrix>(QStringLiteral("RadioMatrix"));
    classes.widgetClass<ImageView>(QStringLiteral("ImageView"));
    classes.widgetClass<FractionSlider>(QStringLiteral("FractionSlider"));
    classes.widgetClass<NumberField>(QStringLiteral("NumberField"));
    classes.widgetClass<SizeWatch>(QStringLiteral("SizeWatch"));
    return classes;
}

class Loader : public QUiLoader
{
public:
    explicit Loader(const ViewConnections &owner) : m_owner(owner), m_toolkit(toolkitClasses())
    {
        // What a view says is the names of actions, keys and bindings: no texts.
        setTranslationEnabled(false);
    }

    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        QWidget *widget = m_owner.create(className, parent);
        if (!widget)
            widget = m_toolkit.create(className, parent);
        if (!widget)
            widget = QUiLoader::createWidget(className, parent, name);
        if (auto *label = qobject_cast<QLabel *>(widget))
            setLabelText(label, QString());
        if (widget)
            widget->setObjectName(name);
        return widget;
    }

private:
    const ViewConnections &m_owner;
    ViewConnections m_toolkit;
};

// A QUiLoader loads every Designer plug-in of the system when it is created: libraries that no view
// here uses and that cost more than all views together. Without library paths it finds none.
class NoDesignerPlugIns
{
public:
    NoDesignerPlugIns() : m_paths(QCoreApplication::libraryPaths())
    {
        QCoreApplication::setLibraryPaths({});
    }
    ~NoDesignerPlugIns() { QCoreApplication::setLibraryPaths(m_paths); }
    NoDesignerPlugIns(const NoDesignerPlugIns &) = delete;
    NoDesignerPlugIns &operator=(const NoDesignerPlugIns &) = delete;

private:
    QStringList m_paths;
};

std::unique_ptr<Loader> newLoader(const ViewConnections &owner)
{
    const NoDesignerPlugIns none;
    return std::make_unique<Loader>(owner);
}

// A bound value is written by the control's user signal too; bindings connect first, so that the
// action already finds it in the dictionary.
void connectAction(QWidget *control, const ViewConnections::Action &action)
{
    const auto send = [control, action] { action(control); };
    if (auto *popup = qobject_cast<QComboBox *>(control))
        QObject::connect(popup, &QComboBox::activated, control, send);
    else if (auto *matrix = qobject_cast<RadioMatrix *>(control))
        QObject::connect(matrix, &RadioMatrix::cellClicked, control, send);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        QObject::connect(button, &QAbstractButton::clicked, control, send);
    else if (auto *slider = qobject_cast<FractionSlider *>(control))
        QObject::connect(slider, &FractionSlider::movedByUser, control, send);
    else if (auto *field = qobject_cast<NumberField *>(control))
        QObject::connect(field, &NumberField::editedByUser, control, send);
    else if (auto *watch = qobject_cast<SizeWatch *>(control))
        QObject::connect(watch, &SizeWatch::fired, control, send);
}

void connectWidget(QWidget *widget, const ViewConnections &owner, ObservableDictionary &content)
{
    bindView(widget, content);
    const QString name = actionOf(widget);
    const auto action = owner.actionNamed(name);
    if (action)
        connectAction(widget, action);
}

void silence(QWidget *part)
{
    if (!part)
        return;
    part->blockSignals(true);
    for (QWidget *child : part->findChildren<QWidget *>())
        child->blockSignals(true);
}

} // namespace

LoadedView::LoadedView(QWidget *root, std::unique_ptr<ObservableDictionary> content,
                       const QHash<QString, QWidget *> &outlets)
    : m_content(std::move(content)), m_root(root)
{
    for (auto outlet = outlets.cbegin(); outlet != outlets.cend(); ++outlet) {
        m_outlets.insert(outlet.key(), outlet.value());
        const QByteArrayList given = outlet.value()->dynamicPropertyNames();
        if (given.contains("bind.enabled"))
            m_enabledBound.insert(outlet.value());
        if (given.contains("bind.textColor"))
            m_textColorBound.insert(outlet.value());
    }
}

LoadedView::~LoadedView()
{
    // A field that holds typed text sends it when its window goes, to an owner that may be half
    // gone by then.
    for (const QPointer<QWidget> &outlet : std::as_const(m_outlets))
        silence(outlet);
    silence(m_root);
    // Outlets may live elsewhere by now: the dialog takes the panel's view into its own window.
    const auto outlets = std::exchange(m_outlets, {});
    for (const QPointer<QWidget> &outlet : outlets)
        delete outlet;
    delete m_root;
}

QHash<QString, QWidget *> LoadedView::outlets() const
{
    QHash<QString, QWidget *> connected;
    for (auto outlet = m_outlets.cbegin(); outlet != m_outlets.cend(); ++outlet) {
        if (outlet.value())
            connected.insert(outlet.key(), outlet.value());
    }
    return connected;
}

std::unique_ptr<LoadedView> loadView(const QString &path, const ViewConnections &owner,
                                     QString *error)
{
    QFile file(path);
    const auto loader = newLoader(owner);
    QWidget *root = file.open(QIODevice::ReadOnly) ? loader->load(&file) : nullptr;
    if (!root) {
        if (error)
            *error = file.isOpen() ? loader->errorString() : file.errorString();
        return nullptr;
    }
    scaleFrames(*root);
    auto content = std::make_unique<ObservableDictionary>();
    QHash<QString, QWidget *> outlets;
    QList<QWidget *> widgets = root->findChildren<QWidget *>();
    widgets.prepend(root);
    for (QWidget *widget : std::as_const(widgets)) {
        connectWidget(widget, owner, *content);
        if (owner.connectOutlet(widget))
            outlets.insert(widget->objectName(), widget);
    }
    return std::make_unique<LoadedView>(root, std::move(content), outlets);
}

int tagOf(const QWidget *control)
{
    if (const auto *popup = qobject_cast<const PopUpButton *>(control))
        return popup->tag();
    return control ? control->property("tag").toInt() : 0;
}

QString actionOf(const QWidget *control)
{
    return control->property("action").toString();
}

QString boundKeyOf(const QWidget *control)
{
    return control->property("bind.value").toString();
}

double doubleValueOf(const QWidget *control)
{
    if (const auto *slider = qobject_cast<const FractionSlider *>(control))
        return slider->doubleValue();
    if (const auto *field = qobject_cast<const NumberField *>(control))
        return field->value();
    return 0;
}
