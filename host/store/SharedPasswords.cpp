#include "store/SharedPasswords.h"

#include "secrets/Keyring.h"
#include "secrets/Secrets.h"
#include "secrets/Vault.h"
#include "store/ChangeWriter.h"
#include "store/LogChain.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <atomic>

namespace ko {

namespace {

const QLatin1String propertiesKey("properties");
const QLatin1String settings(Secrets::Settings);
const QLatin1String proxyPassword(Secrets::GlobalProxyPassword);

} // namespace

SharedPasswords::SharedPasswords(const QString& site)
    : m_keys(site.isEmpty() ? nullptr : SiteKeyring::ofProcess().keys(site))
{
}

QString SharedPasswords::sealed(const QString& text, const QString& owner, const QString& property) const
{
    return Sealer::isSealed(text) ? m_keys->reseal(text, owner, property).value_or(text)
                                  : QString::fromLatin1("");
}

/// One side of a line. What is sealed has no sign that is written in two ways, so it is replaced in the text,
/// and all else stays to the letter.
QString SharedPasswords::toSend(const QString& text, const SharedLine& line) const
{
    if (line.kind == ChangeLog::SettingKind)
        return text.isEmpty() ? text : sealed(text, settings, line.id);
    QString result = text;
    QJsonObject object = QJsonDocument::fromJson(text.toUtf8()).object();
    QJsonObject properties = object[propertiesKey].toObject();
    bool hasOthers = false;
    for (const QString& key : Secrets::properties()) {
        const QString stored = properties[key].toArray().at(1).toString();
        if (stored.isEmpty())
            continue;
        const QString anew = sealed(stored, line.id, key);
        hasOthers = hasOthers || !Sealer::isSealed(stored);
        result.replace(stored, anew);
        properties[key] = QJsonArray{0, anew};
    }
    if (!hasOthers)
        return result;
    object[propertiesKey] = properties;
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

SharedLine SharedPasswords::toSend(const SharedLine& line) const
{
    const bool mayHavePasswords = line.kind == ChangeLog::SettingKind
                                      ? line.id == proxyPassword
                                      : line.kind == ChangeLog::NodeKind &&
                                            (line.before + line.after).contains(QLatin1String("Password\""));
    if (!m_keys || !mayHavePasswords)
        return line;
    SharedLine result = line;
    result.before = toSend(line.before, line);
    result.after = toSend(line.after, line);
    return result;
}

class PasswordResealing::Private
{
public:
    explicit Private(std::unique_ptr<SqliteStore> opened)
        : connection(std::move(opened))
        , tables(*connection)
        , log(*connection)
        , vault(Keyring::ofInstallation())
    {
    }

    void look();
    NodeChange changeOf(const NodeID& id);
    void addSetting(ChangeSet* set);

    const std::unique_ptr<SqliteStore> connection;
    NodeTables tables;
    ChangeLog log;
    Vault vault; ///< holds nothing
    const Cause cause = Cause::now(Purpose::Reseal);
    std::shared_ptr<const SiteKeys> keys;
    QStringList nodes; ///< with something to be sealed
    bool hasSetting = false;
};

PasswordResealing::PasswordResealing(std::unique_ptr<Private> opened)
    : d(std::move(opened))
{
}

PasswordResealing::~PasswordResealing() = default;

std::unique_ptr<PasswordResealing> PasswordResealing::begin(const QString& file, StoreError* error)
{
    std::unique_ptr<SqliteStore> connection = SqliteStore::open(file, error);
    if (!connection)
        return nullptr;
    std::unique_ptr<PasswordResealing> result(
        new PasswordResealing(std::make_unique<Private>(std::move(connection))));
    try {
        result->d->look();
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return nullptr;
    }
    return result;
}

void PasswordResealing::Private::look()
{
    keys = SiteKeyring::ofProcess().keys(connection->value("SELECT id FROM shared_site").toString());
    if (!keys->sealer().canSeal())
        return;
    const Transaction transaction(*connection, Transaction::Read);
    QSet<QString> found;
    for (const QString& key : Secrets::properties()) {
        tables.forEachValue(key, [&](const NodeID& id, const QVariant& value) {
            if (keys->reseal(value.toString(), id, key) && !found.contains(id)) {
                found.insert(id);
                nodes.append(id);
            }
        });
    }
    hasSetting =
        keys->reseal(tables.setting(proxyPassword).value_or(QString()), settings, proxyPassword).has_value();
}

bool PasswordResealing::isMore() const
{
    return !d->nodes.isEmpty() || d->hasSetting;
}

/// What others changed since look() counts.
NodeChange PasswordResealing::Private::changeOf(const NodeID& id)
{
    const NodeRow row = tables.node(id);
    NodeChange change;
    change.id = id;
    if (row.place == 0)
        return change;
    change.summary = row.summary;
    change.lookupKey = row.lookupKey;
    NodeValues old{row.summary.name(), PropertyList()};
    NodeValues fresh = old;
    bool isChanged = false;
    const std::optional<StoredProperties> stored = tables.properties(id);
    for (const QString& key : Secrets::properties()) {
        const QString before = stored ? stored->list.value(key).toString() : QString();
        const std::optional<QString> after = keys->reseal(before, id, key);
        if (!after)
            continue;
        old.properties.set(key, before);
        fresh.properties.set(key, *after);
        isChanged = true;
    }
    if (isChanged) {
        change.before = old;
        change.after = fresh;
    }
    return change;
}

void PasswordResealing::Private::addSetting(ChangeSet* set)
{
    const std::optional<QString> before = tables.setting(proxyPassword);
    const std::optional<QString> after = keys->reseal(before.value_or(QString()), settings, proxyPassword);
    if (after)
        set->settings.append({proxyPassword, before, after});
}

bool PasswordResealing::step(StoreError* error)
{
    try {
        const std::shared_ptr<const InstallationKey> installation = Keyring::ofInstallation().key();
        Transaction transaction(*d->connection, Transaction::Write);
        LogChain chain(*d->connection, installation->sealer);
        chain.begin();
        ChangeSet set;
        set.cause = d->cause;
        const QStringList now = d->nodes.mid(0, NodesAtOnce);
        for (const QString& id : now) {
            const NodeChange change = d->changeOf(id);
            if (change.isUpdated())
                set.nodes.append(change);
        }
        d->addSetting(&set);
        std::atomic<int> done{0}; // nobody looks
        ChangeWriter(d->tables, d->log, d->vault, done).write(set);
        chain.end();
        transaction.commit();
        d->nodes = d->nodes.mid(now.size());
        d->hasSetting = false;
        return true;
    } catch (const StoreFailure& failure) {
        *error = failure.error;
        return false;
    }
}

} // namespace ko
