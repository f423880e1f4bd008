#pragma once

#include "tests/built/BuiltFiles.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

/// The full sample printer, which moreover does not print both sides of transparencies.
class ClashingPPD
{
public:
    ClashingPPD()
    {
        QFile sample(samplePPD(QStringLiteral("velkaro-px-t900")));
        QFile file(path());
        if (sample.open(QIODevice::ReadOnly) && file.open(QIODevice::WriteOnly))
            file.write(sample.readAll() +
                       "*UIConstraints: *Duplex DuplexTumble *VKMediaType Transparencies\n"
                       "*UIConstraints: *VKMediaType Transparencies *Duplex DuplexTumble\n");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("clashing.ppd")); }

private:
    QTemporaryDir m_folder;
};
