#include "store/StoredSecrets.h"

#include "ko/LogQt.h"
#include "secrets/Keyring.h"
#include "secrets/Secrets.h"

#include <QVector>

namespace ko {

namespace StoredSecrets {

namespace {

struct Clear
{
    qint64 node;
    QString id;
    QString key;
    QString text;
};

/// What is sealed, and looked at again: the text in the clear exists nowhere else after this.
QString sealed(const SqliteStore& store, const QString& owner, const QString& key, const QString& text)
{
    const std::shared_ptr<const InstallationKey> installation = Keyring::ofInstallation().key();
    if (!installation->sealer.canSeal())
        throw StoreFailure{
            StoreError::make(StoreError::KeyNotKept, store.fileName(), QLatin1String("no key"))};
    QString result = installation->sealer.seal(text, owner, key);
    if (installation->sealer.open(result, owner, key) != text)
        throw StoreFailure{
            StoreError::make(StoreError::Other, store.fileName(), QLatin1String("sealing failed"))};
    return result;
}

QVector<Clear> clearPasswords(SqliteStore& store)
{
    QVector<Clear> found;
    for (const QString& key : Secrets::properties()) {
        SqliteStore::Rows rows =
            store.run("SELECT n.n, n.id, p.value FROM nodes n JOIN properties p"
                      " ON p.node = n.n AND p.key = ? WHERE p.type = 0 AND p.value <> ''",
                      {key});
        while (rows.next()) {
            if (!Sealer::isSealed(rows.text(2)))
                found.append({rows.number(0), rows.text(1), key, rows.text(2)});
        }
    }
    return found;
}

void sealProxy(SqliteStore& store)
{
    const QString key = QLatin1String(Secrets::GlobalProxyPassword);
    const QString text = store.value("SELECT value FROM settings WHERE key = ?", {key}).toString();
    if (!text.isEmpty() && !Sealer::isSealed(text))
        store.run("UPDATE settings SET value = ? WHERE key = ?",
                  {sealed(store, QLatin1String(Secrets::Settings), key, text), key});
}

/// Throws when somebody still reads the old content.
void emptyLog(SqliteStore& store)
{
    if (store.value("PRAGMA wal_checkpoint(TRUNCATE)").toInt() != 0)
        throw StoreFailure{
            StoreError::make(StoreError::Locked, store.fileName(), QLatin1String("log in use"))};
}

} // namespace

void seal(SqliteStore& store)
{
    Transaction transaction(store, Transaction::Write);
    const QVector<Clear> passwords = clearPasswords(store);
    for (const Clear& clear : passwords)
        store.run("UPDATE properties SET value = ? WHERE node = ? AND key = ?",
                  {sealed(store, clear.id, clear.key, clear.text), clear.node, clear.key});
    sealProxy(store);
    transaction.commit();
    store.execute(QLatin1String("VACUUM"));
    emptyLog(store);
}

bool isPending(SqliteStore& store)
{
    return store.value("PRAGMA user_version").toInt() >= StoreSchema::FirstSealed &&
           store.value("SELECT 1 FROM settings WHERE key = ?", {QLatin1String(Pending)}).isValid();
}

void sealPending(SqliteStore& store)
{
    if (!isPending(store))
        return;
    try {
        if (!Keyring::ofInstallation().isKept())
            throw StoreFailure{
                StoreError::make(StoreError::KeyNotKept, store.fileName(), QLatin1String("no key"))};
        seal(store);
        store.run("DELETE FROM settings WHERE key = ?", {QLatin1String(Pending)});
    } catch (const StoreFailure& failure) {
        LogQt::line(LogQt::Error, QString::fromLatin1("Passwords of an older version are not sealed yet: %1")
                                      .arg(failure.error.detail));
    }
}

} // namespace StoredSecrets

} // namespace ko
