#include "devices/DeviceCheck.h"

#include "devices/DeviceAnswers.h"
#include "network/NetworkText.h"

#include <algorithm>
#include <utility>

namespace ko {

using SoapRequest::Operation;

namespace {

const char devicePath[] = "/onvif/device_service"; // the same for all, by the standard

struct FactReader
{
    Operation operation;
    bool (*read)(const QByteArray& message, DeviceFacts& facts);
};

/// In the order in which they are asked: the media service is where the services say.
const FactReader factReaders[] = {
    {Operation::GetEndpointReference, DeviceAnswers::readEndpoint},
    {Operation::GetNetworkInterfaces, DeviceAnswers::readNetworkInterfaces},
    {Operation::GetServices, DeviceAnswers::readServices},
    {Operation::GetVideoSources, DeviceAnswers::readVideoSources},
    {Operation::GetProfiles, DeviceAnswers::readProfiles},
};

QUrl urlOf(const DeviceTarget& target)
{
    QUrl url;
    url.setScheme(target.useSSL ? QStringLiteral("https") : QStringLiteral("http"));
    url.setHost(target.address.trimmed());
    url.setPort(target.port);
    return url;
}

TranslatableText said(const char* source)
{
    return TranslatableText("DeviceCheck", source);
}

} // namespace

DeviceCheck::DeviceCheck(const DeviceTarget& target, SharedManagers& managers, QObject* parent)
    : QObject(parent)
    , m_target(target)
    , m_managers(managers)
{
    m_report.id = target.id;
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this,
            [this] { end(DeviceReport::NoAnswer, said(QT_TR_NOOP("it takes too long to answer"))); });
}

DeviceCheck::~DeviceCheck() = default;

void DeviceCheck::start()
{
    const QUrl url = urlOf(m_target);
    m_connection = std::make_unique<DeviceConnection>(url, m_managers.managerFor(url, m_target.proxy),
                                                      m_target.known.certificate);
    m_limit.start(MostTime);
    if (!url.isValid() || url.host().isEmpty())
        QTimer::singleShot(
            0, this, [this] { end(DeviceReport::NoAnswer, said(QT_TR_NOOP("the address is not valid"))); });
    else
        ask(Operation::GetSystemDateAndTime, &DeviceCheck::clockTold);
}

void DeviceCheck::ask(Operation operation, Step next, int profile)
{
    const QString path = pathOf(operation);
    const QString token = profile < 0 ? QString() : m_report.facts.profiles.at(profile).token;
    m_asked = {operation, profile};
    m_connection->post(path, SoapRequest::message(operation, token, security()), authorization(path),
                       Deadline, [this, next](const HttpAnswer& answer) { (this->*next)(answer); });
}

QString DeviceCheck::pathOf(Operation operation) const
{
    const QString& media = m_report.facts.mediaPath;
    return SoapRequest::isOfMedia(operation) && media.startsWith(QLatin1Char('/'))
               ? media
               : QLatin1String(devicePath);
}

QByteArray DeviceCheck::authorization(const QString& path)
{
    if (m_way == Way::Digest)
        return m_digest.authorization(m_target.user, m_target.password, "POST",
                                      QUrl::toPercentEncoding(path, "/:@!$&'()*+,;="));
    if (m_way == Way::Basic)
        return HttpDigest::basic(m_target.user, m_target.password);
    return QByteArray();
}

QByteArray DeviceCheck::security() const
{
    return m_way == Way::Token
               ? SoapRequest::usernameToken(m_target.user, m_target.password,
                                            QDateTime::currentDateTimeUtc().addSecs(m_report.clockOffset))
               : QByteArray();
}

/// Whether it is over, since nothing that can be read has come.
bool DeviceCheck::isBroken(const HttpAnswer& answer)
{
    m_report.seen.certificate = m_connection->certificate();
    if (answer.error == HttpAnswer::OtherCertificate)
        end(DeviceReport::OtherDevice, answer.text);
    else if (answer.error == HttpAnswer::NotReached || answer.error == HttpAnswer::TimedOut)
        end(DeviceReport::NoAnswer, answer.text);
    else if (answer.error != HttpAnswer::None)
        end(DeviceReport::NoOnvif, answer.text);
    return answer.error != HttpAnswer::None;
}

void DeviceCheck::clockTold(const HttpAnswer& answer)
{
    if (isBroken(answer))
        return;
    QDateTime utc;
    const bool isRefused =
        answer.status == 401 || DeviceAnswers::readFault(answer.body).kind != DeviceFault::None;
    if (DeviceAnswers::readDateAndTime(answer.body, utc))
        m_report.clockOffset = QDateTime::currentDateTimeUtc().secsTo(utc);
    else if (!isRefused)
        return end(DeviceReport::NoOnvif, said(QT_TR_NOOP("it does not speak ONVIF")));
    if (m_target.known.endpoint.isEmpty())
        ask(Operation::GetDeviceInformation, &DeviceCheck::informationTold);
    else
        ask(Operation::GetEndpointReference, &DeviceCheck::endpointTold);
}

/// Not all devices tell it, and some not to everybody.
void DeviceCheck::endpointTold(const HttpAnswer& answer)
{
    if (isBroken(answer))
        return;
    DeviceFacts facts;
    if (DeviceAnswers::readEndpoint(answer.body, facts)) {
        m_report.facts.endpoint = facts.endpoint;
        m_report.seen.endpoint = facts.endpoint;
        if (isOther(m_target.known.endpoint, facts.endpoint,
                    QT_TR_NOOP("it has another endpoint than before")))
            return;
    }
    ask(Operation::GetDeviceInformation, &DeviceCheck::informationTold);
}

/// Asked without a password, to learn how the device wants it.
void DeviceCheck::informationTold(const HttpAnswer& answer)
{
    if (isBroken(answer))
        return;
    if (DeviceAnswers::readInformation(answer.body, m_report.facts)) {
        m_report.isOpen = true;
        identified();
        return;
    }
    const DeviceFault fault = DeviceAnswers::readFault(answer.body);
    if (fault.kind == DeviceFault::LockedOut)
        return end(DeviceReport::LockedOut, fault.text);
    if (answer.status != 401 && fault.kind != DeviceFault::NotAuthorized)
        return end(DeviceReport::NoOnvif, fault.text.isEmpty()
                                              ? said(QT_TR_NOOP("it does not say what it is"))
                                              : TranslatableText(fault.text));
    if (chooseWay(answer, fault))
        ask(Operation::GetDeviceInformation, &DeviceCheck::passwordTried);
}

bool DeviceCheck::chooseWay(const HttpAnswer& answer, const DeviceFault& fault)
{
    m_digest = HttpDigest(answer.challenges);
    const bool wantsBasic = !m_digest.isValid() && HttpDigest::offersBasic(answer.challenges);
    if (m_digest.isValid()) {
        m_report.seen.realm = NetworkText::cleaned(m_digest.realm(), DeviceAnswers::TextLength);
        if (isOther(m_target.known.realm, m_report.seen.realm,
                    QT_TR_NOOP("it has another realm than before")))
            return false;
    }
    if (m_target.user.isEmpty()) {
        end(DeviceReport::WrongPassword, said(QT_TR_NOOP("it asks for a password, and none is stored")));
        return false;
    }
    if (wantsBasic && !m_target.allowsBasic) {
        end(DeviceReport::ClearPassword, said(QT_TR_NOOP("it asks for the password in the clear")));
        return false;
    }
    m_way = m_digest.isValid() ? Way::Digest : wantsBasic ? Way::Basic : Way::Token;
    if (m_way == Way::Token && fault.kind == DeviceFault::None && !answer.challenges.isEmpty()) {
        end(DeviceReport::NoOnvif, said(QT_TR_NOOP("it asks for the password in an unknown way")));
        return false;
    }
    return true;
}

void DeviceCheck::passwordTried(const HttpAnswer& answer)
{
    if (isBroken(answer))
        return;
    if (DeviceAnswers::readInformation(answer.body, m_report.facts)) {
        identified();
        return;
    }
    const DeviceFault fault = DeviceAnswers::readFault(answer.body);
    const HttpDigest digest(answer.challenges);
    const bool isStale = m_way == Way::Digest && answer.status == 401 && digest.isStale() &&
                         digest.realm() == m_digest.realm();
    if (isStale && !std::exchange(m_wasStale, true)) {
        m_digest = digest;
        ask(Operation::GetDeviceInformation, &DeviceCheck::passwordTried);
    } else if (fault.kind == DeviceFault::LockedOut || answer.status == 423 || answer.status == 429) {
        end(DeviceReport::LockedOut, fault.text);
    } else if (answer.status == 401 || answer.status == 403 || fault.kind == DeviceFault::NotAuthorized) {
        end(DeviceReport::WrongPassword, fault.text);
    } else {
        end(DeviceReport::NoOnvif, fault.text.isEmpty() ? said(QT_TR_NOOP("it does not say what it is"))
                                                        : TranslatableText(fault.text));
    }
}

/// Whether it is over, since the device is not the known one.
bool DeviceCheck::isOther(const QString& known, const QString& seen, const char* what)
{
    const bool isOther = !known.isEmpty() && known.compare(seen, Qt::CaseInsensitive) != 0;
    if (isOther)
        end(DeviceReport::OtherDevice, said(what));
    return isOther;
}

void DeviceCheck::identified()
{
    m_report.seen.serial = m_report.facts.serial;
    if (isOther(m_target.known.serial, m_report.seen.serial,
                QT_TR_NOOP("it has another serial number than before")))
        return;
    if (m_target.wantsAllFacts) {
        for (const FactReader& reader : factReaders)
            m_questions.enqueue({reader.operation, -1});
    } else if (m_target.wantsPicture) {
        m_questions.enqueue({Operation::GetServices, -1});
        m_questions.enqueue({Operation::GetProfiles, -1});
    } else if (m_report.seen.endpoint.isEmpty() && m_target.known.endpoint.isEmpty()) {
        m_questions.enqueue({Operation::GetEndpointReference, -1}); // for the next time
    }
    askNext();
}

void DeviceCheck::askNext()
{
    if (m_questions.isEmpty())
        return m_target.wantsPicture ? fetchPicture() : end(DeviceReport::Answers);
    const Question next = m_questions.dequeue();
    ask(next.operation, &DeviceCheck::factTold, next.profile);
}

/// Who it is is known; what it does not tell beyond that is not told.
void DeviceCheck::factTold(const HttpAnswer& answer)
{
    if (answer.error == HttpAnswer::OtherCertificate) {
        end(DeviceReport::OtherDevice, answer.text);
        return;
    }
    const auto reader =
        std::find_if(std::begin(factReaders), std::end(factReaders),
                     [this](const auto& known) { return known.operation == m_asked.operation; });
    if (m_asked.profile >= 0) {
        DeviceProfile& profile = m_report.facts.profiles[m_asked.profile];
        DeviceAnswers::readUri(answer.body, m_asked.operation == Operation::GetStreamUri
                                                ? profile.streamUri
                                                : profile.snapshotUri);
    } else {
        DeviceFacts facts = m_report.facts;
        if (reader != std::end(factReaders) && reader->read(answer.body, facts))
            m_report.facts = facts;
        m_report.seen.endpoint = m_report.facts.endpoint;
        if (m_asked.operation == Operation::GetProfiles && m_target.wantsAllFacts)
            queueProfiles();
        if (m_asked.operation == Operation::GetProfiles && m_target.wantsPicture)
            queuePicture();
    }
    // One that hangs would be waited for with each question.
    if (answer.error == HttpAnswer::TimedOut || answer.error == HttpAnswer::NotReached)
        m_questions.clear();
    askNext();
}

void DeviceCheck::queueProfiles()
{
    const int count = std::min<int>(MostProfilesAsked, int(m_report.facts.profiles.size()));
    for (int i = 0; i < count; ++i) {
        m_questions.enqueue({Operation::GetStreamUri, i});
        m_questions.enqueue({Operation::GetSnapshotUri, i});
    }
}

/// One profile of the channel: pictures of the others show the same.
void DeviceCheck::queuePicture()
{
    m_pictureProfile = PictureFetch::profileOf(m_report.facts, m_target.channel);
    if (m_pictureProfile >= 0)
        m_questions.enqueue({Operation::GetSnapshotUri, m_pictureProfile});
}

void DeviceCheck::fetchPicture()
{
    if (m_pictureProfile < 0) {
        m_report.pictureProblem = tr("it has no pictures of this channel");
        return end(DeviceReport::Answers);
    }
    const QString& known = m_target.known.realm;
    const QString realm = known.isEmpty() ? m_report.seen.realm : known;
    m_picture = std::make_unique<PictureFetch>(*m_connection, m_target, realm,
                                               [this](const QImage& picture, const QString& problem) {
                                                   m_report.picture = picture;
                                                   m_report.pictureProblem = problem;
                                                   end(DeviceReport::Answers);
                                               });
    m_picture->start(m_report.facts.profiles.at(m_pictureProfile).snapshotUri, Deadline);
}

void DeviceCheck::end(DeviceReport::State state, const TranslatableText& reason)
{
    if (m_report.time.isValid())
        return;
    m_limit.stop();
    m_report.state = state;
    m_report.reason = reason;
    m_report.time = QDateTime::currentDateTimeUtc();
    emit finished();
}

} // namespace ko
