#pragma once

#include "platform/toolkit/ViewConnections.h"
#include "platform/toolkit/ViewLoader.h"

#include <QtCore/QHash>
#include <QtCore/QPointer>
#include <QtCore/QString>

#include <memory>

class ImageView;
class QAbstractButton;
class QCheckBox;
class QLabel;
class QPushButton;

/// What the window about an envelope shows.
struct EnvelopeAlert
{
    QString title;
    QString instruction;
    QString caution;
    QString ok;
    QString cancel;
    QString picture;     ///< its name
    QString picturePath; ///< null: the window keeps the picture that it has
};

/// The alert windows of the Print Settings panel, which stand in a view resource of their own:
/// hardly any job needs them, and every dialog would wait for them. Until they are loaded there is
/// none, and what is to be filled in is passed over.
class AlertWindows
{
public:
    using Action = ViewConnections::Action;

    /// Loads the windows, unless they are; `ok` and `cancel` are what their buttons do.
    void load(const QString &path, const Action &ok, const Action &cancel);

    /// False again when the windows have gone with the dialog that they stood before.
    bool isLoaded() const { return !envAlertWindow.isNull(); }
    /// By name; none until the windows are loaded.
    QHash<QString, QWidget *> outlets() const;

    /// Null until the windows are loaded.
    QWidget *envelopeWindow() const { return envAlertWindow; }
    void fillEnvelope(const EnvelopeAlert &alert);

    /// The buttons of the windows about a paper: the custom paper's always, those of the ordinary
    /// paper, and the box that suppresses the alert from now on, when `suppression` is not null.
    void titlePaperButtons(const QString &ok, const QString &cancel, const QString &suppression);

    /// Whether the box that suppresses an alert is ticked.
    bool isSuppressed() const;

private:
    std::unique_ptr<LoadedView> m_view;
    QPointer<QWidget> envAlertWindow;
    QPointer<ImageView> envAlertImageView;
    QPointer<QLabel> envInstructionLabel1;
    QPointer<QLabel> envInstructionLabel2;
    QPointer<QPushButton> envAlertOKButton;
    QPointer<QPushButton> envAlertCancelButton;
    QPointer<QPushButton> normalPaperAlertOKButton;
    QPointer<QPushButton> normalPaperAlertCancelButton;
    QPointer<QPushButton> customPaperAlertOKButton;
    QPointer<QPushButton> customPaperAlertCancelButton;
    QPointer<QCheckBox> suppressionButton;
};

/// Shows the picture at the size that alerts have; the view keeps its own where there is none.
void showAlertPicture(ImageView *view, const QString &name, const QString &path);

/// Puts the message into the label, and makes the label and its window as high as it needs. A
/// missing label counts as one without extent.
void fitMessage(QWidget *window, QLabel *label, const QString &message);
