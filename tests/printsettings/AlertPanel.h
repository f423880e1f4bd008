#pragma once

#include "platform/foundation/UserDefaults.h"
#include "tests/printsettings/PrintPanel.h"

#include <QtCore/QSizeF>

/// The Print Settings panel, and what its checks before printing ask and say.
class Alerts : public PrintPanelTest
{
protected:
    void usePaper(const QString &name, QSizeF size = {595, 842})
    {
        session->setPaper(name, {}, size);
        panel->paperName = name;
    }

    // What the one alert said; fails when it was not exactly one of this kind.
    AlertContent takeAlert(ShownAlert::Kind kind = ShownAlert::Kind::Modal)
    {
        const auto alerts = session->alerts().take();
        EXPECT_EQ(alerts.size(), 1u);
        if (alerts.empty())
            return {};
        EXPECT_EQ(alerts[0].kind, kind);
        return alerts[0].content;
    }

    void expectUnsupportedPaperAlert()
    {
        const AlertContent alert = takeAlert();
        EXPECT_EQ(alert.style, AlertStyle::Warning);
        EXPECT_EQ(alert.text, QLatin1String("Unsupported Paper Title"));
        EXPECT_EQ(alert.informative,
                  QLatin1String("Unsupported Paper MSG1\n\nUnsupported Paper MSG2\n"
                                "Unsupported Paper MSG3\nUnsupported Paper MSG4"));
        EXPECT_EQ(alert.buttons, QStringList{QStringLiteral("OK")});
    }

    QVariantMap memory()
    {
        return UserDefaults::standardUserDefaults().persistentDomainForName(
            QStringLiteral("com.velkaro.print.pde"));
    }
};
