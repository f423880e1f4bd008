#pragma once

#include <platform/pde/PDEPanel.h>
#include <platform/pde/PDEPanelControls.h>
#include <platform/pde/PDEPluginCallback.h>
#include <platform/toolkit/ViewLoader.h>

#include <memory>

class Bundle;
class PopUpButton;
class QAbstractButton;
class QLabel;

/// The panel of the Example PrintStar: the medium and the toner saver, which are choices of the
/// PPD, and the darkness, which is a value of the ticket.
///
/// It keeps no choices of its own. What a person picks is offered to the dialog, which marks it in
/// the PPD or refuses; the controls then show what is marked.
class ExamplePanel : public PDEPanel, public PDEPanelControls
{
public:
    /// Whether the dialog has the operations without which the panel can do nothing.
    static bool canWorkWith(const PDEPluginCallback &dialog);

    ExamplePanel(Bundle &bundle, const std::shared_ptr<PDEPluginCallback> &dialog);
    ~ExamplePanel() override;
    ExamplePanel(const ExamplePanel &) = delete;
    ExamplePanel &operator=(const ExamplePanel &) = delete;

    // --- PDEPanel, in the order of a session -----------------------------------------------------

    bool restoreValuesAndReturnError(QString *error) override;
    QWidget *panelView() override;
    void willShow() override;
    void PPDOptionKeyValueDidChange(const QString &keyword, const QString &choice) override;
    bool saveValuesAndReturnError(QString *error) override;
    bool shouldHide() override { return true; }
    QVariantMap summaryInfo() override;
    bool shouldShowHelp() override { return true; } // it has no help of its own
    bool shouldPrint() override;

    std::optional<QStringList> supportedPPDOptionKeys() const override;
    QString panelName() const override;
    QString panelKind() const override { return QStringLiteral("com.example.print.panel"); }
    void *extension(QLatin1String identifier) override;

    // --- PDEPanelControls ------------------------------------------------------------------------

    QString shortName() const override { return QStringLiteral("example"); }
    QWidget *loadedView() const override { return m_root; }
    QHash<QString, QWidget *> outlets() const override;
    QWidget *controlOf(const QString &keyword) const override;
    bool isTicked(const QString &keyword, const QString &choice) const override;

private:
    void pick(const QString &keyword, const QString &choice);
    void buildControls();
    void setTitle(const QString &keyword, QLabel &label, QWidget &control);
    void showValues();
    void followPaper();
    void keepDarkness();
    int darkness() const;

    Bundle &m_bundle; // the dialog's: longer there than the panel
    std::shared_ptr<PDEPluginCallback> m_dialog;

    // Outlets: null before the view is loaded.
    QWidget *m_root = nullptr;
    PopUpButton *m_medium = nullptr;
    QAbstractButton *m_saveToner = nullptr;
    QLabel *m_mediumLabel = nullptr;
    QLabel *m_darknessLabel = nullptr;
    QWidget *m_darkness = nullptr;
    std::unique_ptr<LoadedView> m_view;
};
