#include "bench/support/BenchPrinter.h"

#include <QtCore/QFile>
#include <QtCore/QList>

#include <cstdlib>

namespace {

struct Option
{
    const char *keyword;
    const char *text;
    const char *choices; ///< the first one is the default
    bool isPopUp;        ///< takes a share of the choices beyond the ordinary ones
};

constexpr Option kOptions[] = {
    {"VKMediaType", "Media Type",
     "Plain PlainDuplex Inkjet VelkaroGlossy Glossy HagakiAtena HagakiUra Transparencies "
     "PrintableDisc GlossyPrintableDisc",
     true},
    {"VKResolution", "Print Quality",
     "PlainNormal PlainFast High Best Fast Normal Photo DiscNormal DiscSlow", true},
    {"VKMonoColor", "Color Mode", "Color Mono", false},
    {"VKColorPaperThick", "Paper Thickness", "Regular Thick Env", true},
    {"VKInputSlot", "Paper Source", "Tray1 Tray2", true},
    {"VKMirror", "Mirror Image", "OFF ON", false},
    {"VKReverse", "Last Page First", "OFF ON", false},
    {"VKJpeg", "JPEG Printing", "OFF ON", true},
    {"VKDuplexMode", "Two-sided Quality", "Standard Fine", true},
    {"VKBiDir", "Two-way Printing", "ON OFF", false},
    {"VKSlowDrying", "Slow Drying", "OFF ON", false},
    {"VKVertLineAlignDedicated", "Align Lines", "OFF ON", false},
    {"VKColorMatching", "Color Matching", "Vivid Natural", false},
    {"VKHalfTonePattern", "Halftone", "Dither Diffusion", true},
    {"VKColorEnhancement", "Color Enhancement", "OFF ON", false},
};

constexpr char kHeader[] = R"PPD(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "BENCH.PPD"
*Product: "(Velkaro PX-T900)"
*Manufacturer: "Velkaro"
*ModelName: "Velkaro PX-T900"
*ShortNickName: "Velkaro PX-T900"
*NickName: "Velkaro PX-T900"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: True
*DefaultColorSpace: RGB
*cupsModelNumber: "12"
*APSupportsCustomColorMatching: "true"
*OpenUI *PageSize/Paper Size: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageSize Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion/Paper Size: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4/A4: "<</PageSize[595 842]>>setpagedevice"
*PageRegion Letter/Letter: "<</PageSize[612 792]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4/A4: "9 9 586 833"
*ImageableArea Letter/Letter: "9 9 603 783"
*DefaultPaperDimension: A4
*PaperDimension A4/A4: "595 842"
*PaperDimension Letter/Letter: "612 792"
)PPD";

QByteArray choiceLine(const Option &option, const QByteArray &name)
{
    return '*' + QByteArray(option.keyword) + ' ' + name + '/' + option.text + ' ' + name +
           ": \"% " + name + "\"\n";
}

QByteArray optionText(const Option &option, int more)
{
    const QList<QByteArray> choices = QByteArray(option.choices).split(' ');
    const QByteArray keyword = option.keyword;
    QByteArray text = "*OpenUI *" + keyword + '/' + option.text + ": PickOne\n" +
                      "*OrderDependency: 20 AnySetup *" + keyword + "\n*Default" + keyword + ": " +
                      choices.first() + '\n';
    for (int index = 0; index < more; ++index)
        text += choiceLine(option, "Extra" + QByteArray::number(index));
    for (const QByteArray &choice : choices)
        text += choiceLine(option, choice);
    return text + "*CloseUI: *" + keyword + '\n';
}

int popUps()
{
    int count = 0;
    for (const Option &option : kOptions)
        count += option.isPopUp ? 1 : 0;
    return count;
}

} // namespace

QByteArray benchPrinter(int choices)
{
    QByteArray text = kHeader;
    int more = choices - kFewestChoices;
    int shares = popUps();
    for (const Option &option : kOptions) {
        const int share = option.isPopUp ? more / shares-- : 0;
        more -= share;
        text += optionText(option, share);
    }
    return text;
}

QString writeBenchPrinter(const QString &folder, int choices)
{
    QString path = folder + QStringLiteral("/bench-%1.ppd").arg(choices);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(benchPrinter(choices)) < 0) {
        qCritical("%s cannot be written", qPrintable(path));
        std::exit(1);
    }
    return path;
}
