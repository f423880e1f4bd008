// Ends the program as it is, the real dialog, once both panels are filled: a plug-in that Qt loads
// into every program when QT_QPA_GENERIC_PLUGINS names it. It looks at widgets only.
#include <QtCore/QEvent>
#include <QtCore/QTimer>
#include <QtGui/QGenericPlugin>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialog>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeout = 20000;  // ms
constexpr int kNeverFilled = 99; // exit status

/// A pop-up of each panel that every printer has; the last one is of the panel that is shown last.
constexpr QLatin1String kPopUps[] = {"mediaTypePopup"_L1, "ditherPopup"_L1};

bool isFilled(const QWidget &dialog)
{
    return std::ranges::all_of(kPopUps, [&](QLatin1String name) {
        const auto *popup = dialog.findChild<QComboBox *>(name);
        return popup && popup->count() > 0;
    });
}

/// Waits until the panel that is shown last is painted, and cancels the dialog.
class FilledWatch : public QObject
{
public:
    FilledWatch()
    {
        qApp->installEventFilter(this);
        QTimer::singleShot(kTimeout, this, [] { std::_Exit(kNeverFilled); });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->objectName() == std::end(kPopUps)[-1]) {
            auto *dialog = qobject_cast<QDialog *>(static_cast<QWidget *>(watched)->window());
            if (dialog && isFilled(*dialog))
                QTimer::singleShot(0, dialog, &QDialog::reject);
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class FilledWatchPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FilledWatch.json")

public:
    QObject *create(const QString &, const QString &) override { return new FilledWatch; }
};

#include "FilledWatch.moc"
