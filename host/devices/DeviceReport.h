#ifndef KO_DEVICEREPORT_H
#define KO_DEVICEREPORT_H

#include "devices/DeviceFacts.h"
#include "model/TranslatableText.h"

#include <QDateTime>
#include <QImage>
#include <QNetworkProxy>

namespace ko {

/// A device to be checked.
struct DeviceTarget
{
    QString id;      ///< the caller's own, comes back in the report
    QString address; ///< host name or IP address
    int port = 80;
    bool useSSL = false;
    QString user; ///< empty when no password is to be tried
    QString password;
    bool allowsBasic =
        false; ///< the user allowed the password in the clear, or base64 of it, for this device
    bool wantsAllFacts = false; ///< not only who it is: some ten more questions
    bool wantsPicture = false;  ///< what it sees
    int channel = 1;            ///< of which the picture is
    QNetworkProxy proxy = QNetworkProxy(QNetworkProxy::NoProxy);

    /// As remembered from the last report that the user believed; empty for a device that was never checked.
    DeviceIdentity known;
};

/// What came of a check.
struct DeviceReport
{
    enum State {
        NotChecked,    ///< cancelled, or another one at this place was refused its password
        Answers,       ///< and took the password, unless isOpen
        WrongPassword, ///< it refused it, or wants one and there is none
        LockedOut,     ///< it does not look at passwords for a while
        ClearPassword, ///< it wants the password in the clear, which the user has not allowed
        NoAnswer,      ///< nobody there, or nothing in time
        NoOnvif,       ///< somebody there who is not understood
        OtherDevice    ///< not the one that is known; no password was sent, unless only the serial number
                       ///< differs
    };

    QString id;
    State state = NotChecked;
    TranslatableText reason; ///< may be empty
    bool isOpen = false;     ///< it asked for no password
    DeviceIdentity seen;     ///< to be remembered, once the user believes it
    DeviceFacts facts;       ///< as far as they were told
    QImage picture;          ///< null unless it was wanted and came; at most as PictureReader has it
    QString pictureProblem;  ///< why not, for the user
    qint64 clockOffset = 0;  ///< s, how far the device's clock is ahead of ours
    QDateTime time;          ///< of the end of the check
};

} // namespace ko

Q_DECLARE_METATYPE(ko::DeviceReport)
Q_DECLARE_METATYPE(QVector<ko::DeviceReport>)

#endif
