#pragma once

#include <QtCore/QString>

/// A PPD with two papers, Duplex, two options of their own ("Finish": Matt, Shiny; "Weight": Light,
/// Heavy) and a constraint: Shiny paper cannot be Heavy.
extern const char kSmallPPD[];

/// Writes the text into the file; the test fails when it cannot be written.
void writeFile(const QString &path, const QByteArray &text);
