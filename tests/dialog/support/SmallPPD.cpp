#include "tests/dialog/support/SmallPPD.h"

#include <QtCore/QFile>

#include <gtest/gtest.h>

const char kSmallPPD[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "SMALL.PPD"
*Manufacturer: "Velkaro"
*Product: "(Small)"
*ModelName: "Velkaro Small"
*ShortNickName: "Velkaro Small"
*NickName: "Velkaro Small"
*PSVersion: "(3010.000) 0"
*OpenUI *PageSize/Paper: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize A5/A5: "<</PageSize[420 595]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Region: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion A5/A5: "<</PageSize[420 595]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "10 10 585 832"
*ImageableArea A5/A5: "10 10 410 585"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension A5/A5: "420 595"
*OpenUI *Duplex/Two-Sided: PickOne
*OrderDependency: 20 AnySetup *Duplex
*DefaultDuplex: None
*Duplex None/Off: ""
*Duplex DuplexNoTumble/Long Edge: ""
*CloseUI: *Duplex
*OpenUI *Finish/Finish: PickOne
*OrderDependency: 30 AnySetup *Finish
*DefaultFinish: Matt
*Finish Matt/Matt: ""
*Finish Shiny/Shiny: ""
*CloseUI: *Finish
*OpenUI *Weight/Weight: PickOne
*OrderDependency: 30 AnySetup *Weight
*DefaultWeight: Light
*Weight Light/Light: ""
*Weight Heavy/Heavy: ""
*CloseUI: *Weight
*UIConstraints: *Finish Shiny *Weight Heavy
*UIConstraints: *Weight Heavy *Finish Shiny
)ppd";

void writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(text), text.size());
}
