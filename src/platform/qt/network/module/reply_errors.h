// The handheld's error numbers for what the toolkit's network stack reports.
#pragma once

#include <QtCore/QList>

#include "platform/errors.h"

class QNetworkReply;
class QSslError;

// 0 when the reply ended well, which any page of a server does; opened once a server has answered.
DWORD ErrorOfReply(const QNetworkReply& reply, bool opened);

// The gravest of what is wrong with a certificate.
DWORD ErrorOfCertificate(const QList<QSslError>& errors);
