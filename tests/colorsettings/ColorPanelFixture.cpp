#include "tests/colorsettings/ColorPanelFixture.h"

#include "colorsettings/EffectVal.h"
#include "dialog/host/PPDMarks.h"
#include "platform/foundation/Bundle.h"
#include "platform/foundation/NotificationCenter.h"
#include "platform/foundation/PreferredLanguages.h"
#include "platform/foundation/UserDefaults.h"
#include "platform/ppd/PPDText.h"
#include "platform/toolkit/KeyWindow.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace {

QString describe(const HostCallback::Call &call)
{
    if (call.kind == HostCallback::Call::Kind::PanelViewDidResize)
        return u"panelViewDidResize"_s;
    return call.keyword + u'=' + call.choice + (call.accepted ? u""_s : u" refused"_s);
}

} // namespace

ColorDialog::ColorDialog(const QString &sample) : ColorDialog(openSample(sample)) {}

ColorDialog::ColorDialog(PPDHandle printer)
    : ppd(std::move(printer)), host(std::make_shared<HostCallback>(ppd.get()))
{
    host->setCallObserver([this](const HostCallback::Call &call) { calls << describe(call); });
}

ColorDialog::~ColorDialog()
{
    panel.reset();
    window.reset();
}

VKInkColorSettingPDE &ColorDialog::create()
{
    panel = std::make_unique<VKInkColorSettingPDE>();
    EXPECT_TRUE(panel->initWithCallback(host));
    return *panel;
}

VKInkColorSettingPDE &ColorDialog::show()
{
    if (!panel)
        create();
    panel->restoreValuesAndReturnError(nullptr);
    window = std::make_unique<QWidget>();
    window->resize(640, 800);
    setKeyWindow(window.get());
    QWidget *view = panel->panelView();
    if (!view) {
        ADD_FAILURE() << "the view cannot be loaded";
        return *panel;
    }
    view->setParent(window.get());
    view->show();
    window->show();
    panel->willShow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    calls.clear();
    return *panel;
}

QVariant ColorDialog::ticket(const char *key) const
{
    return host->ticket().values().value(QLatin1String(key));
}

void ColorDialog::setTicket(const char *key, const QVariant &value)
{
    PMPrintSettingsSetValue(&host->ticket(), QLatin1String(key), value, false);
}

QVariant ColorDialog::pending(const char *keyword) const
{
    return panel->outputBin().value(QLatin1String(keyword));
}

QVariant ColorDialog::content(const char *key) const
{
    return panel->inspectedEffectContent()->value(QLatin1String(key));
}

QString ColorDialog::marked(const char *keyword) const
{
    return markedChoice(ppd.get(), QLatin1String(keyword));
}

void ColorDialog::post(const std::optional<QVariantMap> &userInfo)
{
    NotificationCenter::defaultCenter().post(u"VKInkPrintSettingNotification"_s, host.get(),
                                             userInfo);
}

void ColorDialog::postMono(bool mono)
{
    post(QVariantMap{{u"VKMonoColor"_s, mono}, {u"PointTo"_s, u"VKMonoColor"_s}});
}

void ColorDialog::postNatural(bool natural)
{
    post(QVariantMap{{u"Natural"_s, natural}, {u"PointTo"_s, u"VKColorMatching"_s}});
}

void ColorDialog::postPaper()
{
    NotificationCenter::defaultCenter().post(u"PMPrintDestinationPaperDidChangeNotification"_s);
}

ColorPanelTest::ColorPanelTest()
{
    EffectVal = {};
    UserDefaults::standardUserDefaults().setFolder(QString());
    setPreferredLanguages({u"en"_s});
    Bundle::setMainBundle(Bundle::open(builtBundle()));
}

ColorPanelTest::~ColorPanelTest()
{
    setKeyWindow(nullptr);
    setPreferredLanguages({});
    Bundle::setMainBundle(nullptr);
}
