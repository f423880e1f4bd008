#pragma once

#include "dialog/host/HostCallback.h"
#include "panel/VKPrintQualityPDE.h"
#include "platform/foundation/Bundle.h"
#include "tests/support/PPDSource.h"

#include <gtest/gtest.h>

#include <QtCore/QTemporaryDir>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGroupBox>
#include <QtWidgets/QLabel>

#include <functional>
#include <memory>

class PopUpButton;

/// A panel class of the tests' own: the base, with a table of controls, and a note of every
/// operation that the base asked of it.
class TestPanel : public VKPrintQualityPDE
{
public:
    TestPanel();

    QString panelName() const override { return QStringLiteral("Test"); }
    QString inspectedClassName() const override { return QStringLiteral("TestPanel"); }
    QString shortName() const override { return QStringLiteral("test"); }

    void checkModelName() override { asked << QStringLiteral("checkModelName"); }
    void setDefaults() override;
    void checkConstraints() override { asked << QStringLiteral("checkConstraints"); }
    void checkUIConstraints() override;
    void toggleShowOption(QWidget *sender) override;
    bool saveValuesAndReturnError(QString *error) override;

    using VKPrintQualityPDE::effectContent;
    using VKPrintQualityPDE::optionButton;
    using VKPrintQualityPDE::paperName;
    using VKPrintQualityPDE::pdePluginCallbackObject;
    using VKPrintQualityPDE::pluginBundle;
    using VKPrintQualityPDE::popupInited;
    using VKPrintQualityPDE::ppd;
    using VKPrintQualityPDE::setFlag;

    QStringList asked;                 ///< the operations of a panel class, in order
    std::function<void()> constraints; ///< what checkUIConstraints() does after the base
    std::function<void()> defaults;    ///< what setDefaults() does

    PopUpButton *mediaTypePopup = nullptr;
    PopUpButton *resolutionPopup = nullptr;
    RadioMatrix *matrix = nullptr;
    QCheckBox *mirrorButton = nullptr;
    QCheckBox *biDirButton = nullptr;
    QCheckBox *slowDryButton = nullptr;
    QCheckBox *alignButton = nullptr;
    QLabel *mediaTypeLabel = nullptr;
    QLabel *resolutionLabel = nullptr;
    QGroupBox *matrixBox = nullptr;
    ImageView *imageView = nullptr;
    QWidget *freePart = nullptr;

protected:
    void connectView(ViewConnections &connections) override;
};

/// A dialog with a test panel: its PPD, its host and a bundle of its own.
class PanelFixture : public testing::Test
{
protected:
    PanelFixture();
    ~PanelFixture() override;

    /// Goes on with this PPD instead; before the panel is created.
    void usePrinter(PPDHandle printer);

    /// A panel with all keywords of the test printer, created and restored as a dialog does it.
    TestPanel &createPanel();
    /// The same, with its view and its controls built, and the notes of all that thrown away.
    TestPanel &showPanel();

    void mark(const QString &keyword, const QString &choice);
    QString marked(const QString &keyword) const;
    /// "KEYWORD=CHOICE" offered to the host and accepted; refused ones begin with "!".
    QStringList takeCalls() { return std::exchange(calls, {}); }

    /// The keywords of the test printer, in the order of the panel.
    static QStringList allKeywords();
    QString bundleFile(const QString &name) const;
    void writeBundleFile(const QString &name, const QByteArray &content);

    QTemporaryDir folder;
    PPDHandle ppd;
    std::shared_ptr<HostCallback> host;
    std::shared_ptr<Bundle> bundle;
    std::unique_ptr<TestPanel> panel;
    QStringList calls;
    int resizes = 0;
};
