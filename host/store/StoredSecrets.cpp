#include "store/StoredSecrets.h"

#include "ko/LogQt.h"
#include "secrets/Keyring.h"
#include "secrets/Secrets.h"
#include "store/NodeTables.h"

#include <QVector>

namespace ko {

namespace StoredSecrets {

namespace {

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

bool isClear(const QString& text)
{
    return !text.isEmpty() && !Sealer::isSealed(text);
}

/// In the tables of the versions before StoreSchema::FirstPropertyObjects.
void sealRows(SqliteStore& store)
{
    struct Clear
    {
        qint64 node;
        QString id;
        QString text;
    };
    for (const QString& key : Secrets::properties()) {
        QVector<Clear> found;
        SqliteStore::Rows rows = store.run("SELECT n.n, n.id, p.value FROM nodes n JOIN properties p"
                                           " ON p.node = n.n AND p.key = ? WHERE p.type = 0",
                                           {key});
        while (rows.next()) {
            if (isClear(rows.text(2)))
                found.append({rows.number(0), rows.text(1), rows.text(2)});
        }
        for (const Clear& clear : std::as_const(found))
            store.run("UPDATE properties SET value = ? WHERE node = ? AND key = ?",
                      {sealed(store, clear.id, key, clear.text), clear.node, key});
    }
}

void sealNodes(SqliteStore& store)
{
    NodeTables tables(store);
    QStringList ids;
    tables.forEachNode([&ids](qint64, const PackedSummary& node) { ids.append(node.id()); });
    for (const QString& id : std::as_const(ids)) {
        StoredProperties stored = *tables.properties(id);
        bool hasClear = false;
        for (const QString& key : Secrets::properties()) {
            const QVariant value = stored.list.value(key);
            if (value.userType() != QMetaType::QString || !isClear(value.toString()))
                continue;
            stored.list.set(key, sealed(store, id, key, value.toString()));
            hasClear = true;
        }
        if (hasClear)
            tables.setProperties(stored.n, stored.list);
    }
}

void sealProxy(SqliteStore& store)
{
    const QString key = QLatin1String(Secrets::GlobalProxyPassword);
    const QString text = store.value("SELECT value FROM settings WHERE key = ?", {key}).toString();
    if (isClear(text))
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
    if (store.value("PRAGMA user_version").toInt() < StoreSchema::FirstPropertyObjects)
        sealRows(store);
    else
        sealNodes(store);
    sealProxy(store);
    transaction.commit();
    store.execute("VACUUM");
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
