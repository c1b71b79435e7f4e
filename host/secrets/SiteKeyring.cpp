#include "secrets/SiteKeyring.h"

#include "ko/LogQt.h"
#include "secrets/KeyEnvelope.h"
#include "secrets/Keyring.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLockFile>
#include <QMutexLocker>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>

namespace ko {

namespace {

constexpr int LockPatience = 5000; // ms
const QLatin1String property("site keys");
const QLatin1String ending(".keys");

/// What a file holds.
struct Content
{
    std::vector<QByteArray> keys;
    QString current;
};

void put(Content* content, const QByteArray& key)
{
    if (std::find(content->keys.begin(), content->keys.end(), key) == content->keys.end())
        content->keys.push_back(key);
}

std::shared_ptr<const SiteKeys> keysOf(const Content& content)
{
    auto result = std::make_shared<SiteKeys>();
    result->current = content.current;
    for (const QByteArray& key : content.keys)
        result->all.push_back({KeyEnvelope::nameOf(key), Sealer({key})});
    return result;
}

Content read(const QString& file, const QString& site)
{
    QFile kept(file);
    if (!kept.open(QIODevice::ReadOnly))
        return Content();
    const QString sealed = QString::fromLatin1(kept.readAll().trimmed());
    const std::optional<QString> text = Keyring::ofInstallation().key()->sealer.open(sealed, site, property);
    if (!text)
        LogQt::line(LogQt::Error, QString::fromLatin1("The keys of a site cannot be read: %1").arg(file));
    const QJsonObject object = QJsonDocument::fromJson(text.value_or(QString()).toUtf8()).object();
    Content content;
    content.current = object[QLatin1String("current")].toString();
    const QJsonArray keys = object[QLatin1String("keys")].toArray();
    for (const QJsonValue& key : keys)
        put(&content, QByteArray::fromBase64(key.toString().toLatin1()));
    return content;
}

bool write(const QString& file, const QString& site, const Content& content)
{
    QJsonArray keys;
    for (const QByteArray& key : content.keys)
        keys.append(QString::fromLatin1(key.toBase64()));
    const QJsonObject object{{QLatin1String("current"), content.current}, {QLatin1String("keys"), keys}};
    const QString sealed = Keyring::ofInstallation().key()->sealer.seal(
        QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)), site, property);
    QSaveFile kept(file);
    const bool isGood = !sealed.isEmpty() && kept.open(QIODevice::WriteOnly) &&
                        kept.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                        kept.write(sealed.toLatin1() + '\n') > 0 && kept.commit();
    if (!isGood)
        LogQt::line(LogQt::Error, QString::fromLatin1("The keys of a site cannot be kept: %1").arg(file));
    return isGood;
}

} // namespace

Sealer SiteKeys::sealer() const
{
    const auto found =
        std::find_if(all.begin(), all.end(), [this](const Key& key) { return key.name == current; });
    return found == all.end() ? Sealer() : found->sealer;
}

std::optional<QString> SiteKeys::open(const QString& sealed, const QString& owner,
                                      const QString& property) const
{
    std::optional<QString> text;
    for (auto key = all.begin(); key != all.end() && !text; ++key)
        text = key->sealer.open(sealed, owner, property);
    return text;
}

std::optional<QString> SiteKeys::reseal(const QString& sealed, const QString& owner,
                                        const QString& property) const
{
    const Sealer with = sealer();
    if (!with.canSeal() || with.open(sealed, owner, property))
        return std::nullopt;
    std::optional<QString> result =
        with.reseal(sealed, Keyring::ofInstallation().key()->sealer, owner, property);
    for (auto key = all.begin(); key != all.end() && !result; ++key)
        result = with.reseal(sealed, key->sealer, owner, property);
    return result;
}

SiteKeyring& SiteKeyring::ofProcess()
{
    static SiteKeyring keyring;
    return keyring;
}

SiteKeyring::SiteKeyring() = default;

SiteKeyring::~SiteKeyring() = default;

void SiteKeyring::setFolder(const QString& folder)
{
    const QMutexLocker locker(&m_mutex);
    m_folder = folder;
    m_isAllLoaded = false;
    m_sites.clear();
}

QString SiteKeyring::folder()
{
    const QMutexLocker locker(&m_mutex);
    if (m_folder.isEmpty())
        m_folder = QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
                       .filePath(QStringLiteral("konodeui/sites"));
    return m_folder;
}

/// What is in memory already, because it could not be kept, stays.
SiteKeyring::Shared SiteKeyring::take(const QString& site, const Shared& fresh)
{
    const QMutexLocker locker(&m_mutex);
    Shared& known = m_sites[site];
    if (!known) {
        known = fresh;
        return known;
    }
    auto merged = std::make_shared<SiteKeys>(*fresh);
    for (const SiteKeys::Key& key : known->all) {
        const auto isSame = [&key](const SiteKeys::Key& other) { return other.name == key.name; };
        if (std::none_of(merged->all.begin(), merged->all.end(), isSame))
            merged->all.push_back(key);
    }
    known = std::move(merged);
    return known;
}

SiteKeyring::Shared SiteKeyring::keys(const QString& site)
{
    {
        const QMutexLocker locker(&m_mutex);
        const auto found = m_sites.constFind(site);
        if (found != m_sites.constEnd())
            return *found;
    }
    return take(site, keysOf(read(QDir(folder()).filePath(site + ending), site)));
}

bool SiteKeyring::has(const QString& site, const QString& name)
{
    const auto isHere = [&name](const Shared& keys) {
        return std::any_of(keys->all.begin(), keys->all.end(),
                           [&name](const SiteKeys::Key& key) { return key.name == name; });
    };
    return isHere(keys(site)) ||
           isHere(take(site, keysOf(read(QDir(folder()).filePath(site + ending), site))));
}

/// Other programs of this user may do the same.
bool SiteKeyring::change(const QString& site, const std::vector<QByteArray>& fresh, const QString& current)
{
    const QDir dir(folder());
    const QString file = dir.filePath(site + ending);
    bool isKept = dir.mkpath(QStringLiteral("."));
    QLockFile lock(file + QLatin1String(".lock"));
    isKept = isKept && lock.tryLock(LockPatience);
    Content content;
    for (const QByteArray& key : fresh)
        put(&content, key);
    for (const QByteArray& key : read(file, site).keys)
        put(&content, key);
    content.current = current;
    isKept = isKept && write(file, site, content);
    take(site, keysOf(content));
    return isKept;
}

bool SiteKeyring::add(const QString& site, const std::vector<QByteArray>& keys)
{
    return change(site, keys, KeyEnvelope::nameOf(keys.front()));
}

void SiteKeyring::setCurrent(const QString& site, const QString& name)
{
    const Shared known = keys(site);
    if (known->current != name && !known->all.empty())
        change(site, {}, name);
}

std::optional<QString> SiteKeyring::open(const QString& sealed, const QString& owner, const QString& property)
{
    QStringList sites;
    {
        const QString where = folder();
        const QMutexLocker locker(&m_mutex);
        if (!m_isAllLoaded) {
            const QStringList files = QDir(where).entryList({QLatin1Char('*') + ending}, QDir::Files);
            for (const QString& file : files)
                sites.append(file.chopped(ending.size()));
        }
        m_isAllLoaded = true;
        for (auto it = m_sites.constBegin(); it != m_sites.constEnd(); ++it)
            sites.append(it.key());
    }
    std::optional<QString> text;
    for (auto site = sites.constBegin(); site != sites.constEnd() && !text; ++site)
        text = keys(*site)->open(sealed, owner, property);
    return text;
}

} // namespace ko
