#pragma once

#include "dialog/host/PPDFile.h"

#include <QtCore/QByteArray>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

/// A PPD with these lines between the head that every printer has and the end, as libcups reads it
/// from a file. Null when libcups refuses it.
inline PPDHandle testPPD(const QByteArray &lines)
{
    static const char head[] = R"ppd(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: UTF-8
*Manufacturer: "Velkaro"
*ModelName: "Velkaro Test"
*Product: "(Velkaro Test)"
*PSVersion: "(3010) 0"
*PCFileName: "TEST.PPD"
*NickName: "Velkaro Test"
*ShortNickName: "Velkaro Test"
*OpenUI *PageSize: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A4
*PageSize A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageSize
*OpenUI *PageRegion: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A4
*PageRegion A4: "<</PageSize[595 842]>>setpagedevice"
*CloseUI: *PageRegion
*DefaultImageableArea: A4
*ImageableArea A4: "0 0 595 842"
*DefaultPaperDimension: A4
*PaperDimension A4: "595 842"
)ppd";
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("test.ppd")));
    if (!file.open(QIODevice::WriteOnly))
        return nullptr;
    file.write(head + lines);
    file.close();
    return PPDHandle(ppdOpenFile(QFile::encodeName(file.fileName()).constData()));
}

/// An option of a PPD: "KEYWORD/Text" and its choices "NAME/Text", the first one the default.
inline QByteArray ppdOption(const QByteArray &keyword, const QList<QByteArray> &choices)
{
    const QByteArray name = keyword.left(keyword.indexOf('/'));
    QByteArray text = "*OpenUI *" + keyword + ": PickOne\n*OrderDependency: 20 AnySetup *" + name +
                      "\n*Default" + name + ": " + choices[0].left(choices[0].indexOf('/')) + "\n";
    for (const QByteArray &choice : choices)
        text += "*" + name + " " + choice + ": \"\"\n";
    return text + "*CloseUI: *" + name + "\n";
}
