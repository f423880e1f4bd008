#pragma once

#include "tests/support/Files.h"
#include "tests/support/PPDSource.h"

#include <QtCore/QTemporaryDir>

/// The full sample printer, which moreover does not print both sides of transparencies.
class ClashingPPD
{
public:
    ClashingPPD()
    {
        writeFile(path(), sampleText(QStringLiteral("velkaro-px-t900")) +
                              "*UIConstraints: *Duplex DuplexTumble *VKMediaType Transparencies\n"
                              "*UIConstraints: *VKMediaType Transparencies *Duplex DuplexTumble\n");
    }

    QString path() const { return m_folder.filePath(QStringLiteral("clashing.ppd")); }

private:
    QTemporaryDir m_folder;
};
