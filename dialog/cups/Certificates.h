#pragma once

#include <QtCore/QString>

#include <cups/http.h>

/// Whether the server at the other end shows the certificate that it has shown before, where the
/// connection is encrypted. The first one that a server shows is kept, as libcups keeps them.
bool isKnownServer(http_t *http, const QString &server);

/// Where the one of the server is kept.
QString certificatePath(const QString &server);

/// The next certificate that the server shows is taken in place of the former one.
void trustNextCertificate(const QString &server);
