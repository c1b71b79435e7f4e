#ifndef KOSIM_HOSTILE_H
#define KOSIM_HOSTILE_H

#include <QByteArray>
#include <QString>
#include <QVector>

namespace kosim {

/// What an attacker announces to get at those who list the devices of a network.
namespace Hostile {

/// One of several names, with \a number in it; fits an announcement.
QString name(int number);

/// TXT entries: overlong, malformed, with markup, and with credentials.
QVector<QByteArray> txt();

/// Places beside the real one: of others, of this computer, and no places at all.
QByteArray addresses();

/// What follows a good message of WS-Discovery: spoilt ones.
QVector<QByteArray> datagrams(const QByteArray& good);

} // namespace Hostile

} // namespace kosim

#endif
