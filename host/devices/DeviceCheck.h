#ifndef KO_DEVICECHECK_H
#define KO_DEVICECHECK_H

#include "devices/DeviceConnection.h"
#include "devices/DeviceReport.h"
#include "devices/HttpDigest.h"
#include "devices/PictureFetch.h"
#include "devices/SharedManagers.h"
#include "devices/SoapRequest.h"
#include "ko/TrContext.h"

#include <QQueue>

#include <memory>

namespace ko {

/// Asks one device through ONVIF who it is, and whether it takes the password.
///
/// First without a password: for its clock and, when the device is known, for its identity. To a device whose
/// certificate, endpoint or realm is not the known one no password is sent. Then the password is tried once:
/// by HTTP digest when the device asks for it, by a WS-UsernameToken otherwise, in the clear never unless
/// allowed. A refusal is not followed by another try in any form, so that no account is locked.
///
/// Requests go to the target's address and port alone, whatever the device says.
class KO_HOST_EXPORT DeviceCheck : public QObject
{
    Q_OBJECT
    KO_TR_CONTEXT(DeviceCheck)

public:
    enum Limits {
        Deadline = 5000,       ///< ms for each answer
        MostTime = 30000,      ///< ms for all of it
        MostProfilesAsked = 16 ///< for their addresses
    };

    /// \a managers outlives it.
    DeviceCheck(const DeviceTarget& target, SharedManagers& managers, QObject* parent = nullptr);
    ~DeviceCheck() override;

    /// Once. Asynchronous, in the thread that the check lives in.
    void start();

    /// To be asked after finished().
    const DeviceReport& report() const { return m_report; }

signals:
    void finished();

private:
    struct Question
    {
        SoapRequest::Operation operation;
        int profile; ///< of facts.profiles; below 0 for none
    };
    enum class Way { None, Digest, Token, Basic };
    typedef void (DeviceCheck::*Step)(const HttpAnswer& answer);

    void ask(SoapRequest::Operation operation, Step next, int profile = -1);
    QByteArray authorization(const QString& path);
    QByteArray security() const;
    QString pathOf(SoapRequest::Operation operation) const;

    void clockTold(const HttpAnswer& answer);
    void endpointTold(const HttpAnswer& answer);
    void informationTold(const HttpAnswer& answer);
    void passwordTried(const HttpAnswer& answer);
    void factTold(const HttpAnswer& answer);

    bool isBroken(const HttpAnswer& answer);
    bool chooseWay(const HttpAnswer& answer, const DeviceFault& fault);
    bool isOther(const QString& known, const QString& seen, const char* what);
    void identified();
    void askNext();
    void queueProfiles();
    void queuePicture();
    void fetchPicture();
    void end(DeviceReport::State state, const TranslatableText& reason = TranslatableText());

    const DeviceTarget m_target;
    SharedManagers& m_managers;
    DeviceReport m_report;
    std::unique_ptr<DeviceConnection> m_connection;
    HttpDigest m_digest;
    Way m_way = Way::None;
    bool m_wasStale = false;
    QQueue<Question> m_questions;
    int m_pictureProfile = -1; ///< of facts.profiles
    std::unique_ptr<PictureFetch> m_picture;
    Question m_asked = {SoapRequest::Operation::GetSystemDateAndTime, -1};
    QTimer m_limit;
};

} // namespace ko

#endif
