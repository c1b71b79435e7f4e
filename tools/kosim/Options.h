#ifndef KOSIM_OPTIONS_H
#define KOSIM_OPTIONS_H

#include "Behaviour.h"
#include "HttpServer.h"
#include "Onvif.h"

#include <QHostAddress>
#include <QString>
#include <QStringList>
#include <QVector>

namespace kosim {

/// What the command line asks for.
struct Options
{
    int cameras = 4;
    QVector<QHostAddress> addresses; ///< of the cameras; twice as many when they move
    int rtspPort = 8554;
    int httpPort = 8080;
    QString model = QStringLiteral("KS-1");
    bool announce = true;
    bool hostile = false;
    bool sharedMac = false;
    bool moving = false;
    int moveInterval = 10; ///< s
    int discoveryPort = 3702;
    Account account;
    QVector<Behaviour> behaviours = {Behaviour::Digest}; ///< of the cameras, in turn
    int hostileEvery = 0;                                ///< one in this many is hostile; 0 for none
    bool oneServer = false;
    Tls tls;
    int storm = 0; ///< announcements without a camera

    bool help = false;
    QString helpText;

    /// Empty, or what is wrong with \a arguments, the program's name first.
    QString read(const QStringList& arguments);

private:
    QString readBehaviours(const QString& names);
    QString readTls(const QString& fileName);
    QString readAddresses(const QString& base, const QString& interface);
};

} // namespace kosim

#endif
