#ifndef KOSIM_OPTIONS_H
#define KOSIM_OPTIONS_H

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
    int storm = 0;         ///< announcements without a camera

    bool help = false;
    QString helpText;

    /// Empty, or what is wrong with \a arguments, the program's name first.
    QString read(const QStringList& arguments);

private:
    QString readAddresses(const QString& base, const QString& interface);
};

} // namespace kosim

#endif
