#include "devices/PictureFetch.h"

#include "devices/DeviceAnswers.h"
#include "devices/HttpDigest.h"
#include "devices/PictureReader.h"
#include "model/Redaction.h"
#include "network/NetworkText.h"

#include <utility>

namespace ko {

namespace {

const int EnoughWidth = PictureReader::ShownWidth; // pixels

/// Whether pictures of \a a serve better than those of \a b: large enough first, then quick to come.
bool isBetter(const QSize& a, const QSize& b)
{
    const bool isEnough = a.width() >= EnoughWidth;
    if (isEnough != (b.width() >= EnoughWidth))
        return isEnough;
    return isEnough ? a.width() < b.width() : a.width() > b.width();
}

} // namespace

int PictureFetch::profileOf(const DeviceFacts& facts, int channel)
{
    QStringList sources;
    for (const DeviceProfile& profile : facts.profiles) {
        if (!sources.contains(profile.source))
            sources.append(profile.source);
    }
    int best = -1;
    for (int i = 0; i < facts.profiles.size(); ++i) {
        const DeviceProfile& profile = facts.profiles.at(i);
        if (sources.indexOf(profile.source) == channel - 1 &&
            (best < 0 || isBetter(profile.resolution, facts.profiles.at(best).resolution)))
            best = i;
    }
    return best;
}

PictureFetch::PictureFetch(DeviceConnection& connection, const DeviceTarget& target, const QString& realm,
                           const Take& take)
    : m_connection(connection)
    , m_target(target)
    , m_realm(realm)
    , m_take(take)
{
}

void PictureFetch::start(const QString& uri, int deadline)
{
    const QUrl named(uri);
    m_deadline = deadline;
    m_place.setPath(named.path(QUrl::FullyEncoded), QUrl::TolerantMode); // encoded as it was
    m_place.setQuery(named.query(QUrl::FullyEncoded));
    const bool isSecret = Redaction::redacted(uri) != uri && named.userInfo().isEmpty();
    if (!m_place.path().startsWith(QLatin1Char('/')))
        m_take(QImage(), tr("it gives no address for a picture"));
    else if (isSecret && !m_target.useSSL && !m_target.allowsBasic)
        m_take(QImage(), tr("the address of its picture holds a password in the clear"));
    else
        get(QByteArray());
}

void PictureFetch::get(const QByteArray& authorization)
{
    m_connection.get(m_place, authorization, m_deadline, [this](const HttpAnswer& answer) { told(answer); });
}

void PictureFetch::told(const HttpAnswer& answer)
{
    QString problem = answer.text.text();
    if (answer.error == HttpAnswer::None && answer.status == 401 && !std::exchange(m_isTried, true)) {
        const QByteArray password = authorization(answer.challenges, &problem);
        if (!password.isEmpty())
            return get(password);
    } else if (answer.error == HttpAnswer::None && answer.status == 200) {
        const QImage picture = PictureReader::read(answer.body);
        return m_take(picture, picture.isNull() ? tr("what it sends is not a picture") : QString());
    } else if (answer.error == HttpAnswer::None) {
        problem = tr("it refuses the picture");
    }
    m_take(QImage(), problem);
}

/// Empty, with a problem, where no password may be sent.
QByteArray PictureFetch::authorization(const QByteArray& challenges, QString* problem) const
{
    HttpDigest digest(challenges);
    const QString realm = NetworkText::cleaned(digest.realm(), DeviceAnswers::TextLength);
    if (m_target.user.isEmpty())
        *problem = tr("it asks for a password, and none is stored");
    else if (digest.isValid() && !m_realm.isEmpty() && m_realm.compare(realm, Qt::CaseInsensitive) != 0)
        *problem = tr("its pictures have another realm than the device");
    else if (digest.isValid())
        return digest.authorization(m_target.user, m_target.password, "GET",
                                    DeviceConnection::requestTarget(m_place));
    else if (!HttpDigest::offersBasic(challenges))
        *problem = tr("it asks for the password in an unknown way");
    else if (!m_target.allowsBasic)
        *problem = tr("it asks for the password in the clear");
    else
        return HttpDigest::basic(m_target.user, m_target.password);
    return QByteArray();
}

} // namespace ko
