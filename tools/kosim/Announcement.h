#ifndef KOSIM_ANNOUNCEMENT_H
#define KOSIM_ANNOUNCEMENT_H

#include <QByteArray>
#include <QHostAddress>
#include <QVector>

namespace kosim {

struct Service
{
    QByteArray type;
    int port = 0;
};

/// One device as it is announced: several services under one name.
struct Announcement
{
    QByteArray name;      ///< UTF-8, at most 63 bytes
    QByteArray hostName;  ///< without domain
    QHostAddress address; ///< of the host; null when another announcement tells it
    QVector<Service> services;
    QVector<QByteArray> txt;
};

} // namespace kosim

#endif
