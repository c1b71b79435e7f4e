#include "DeskTesting.h"

#include "secrets/KeyEnvelope.h"
#include "secrets/Keyring.h"
#include "secrets/SiteKeyring.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteKeyTable.h"
#include "sharing/SiteKeyTask.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include <QTemporaryDir>

using namespace ko;
using namespace testsupport;

namespace {

const QString phrase = QStringLiteral("four words and more");
const QString other = QStringLiteral("nobody knows this one");
const KeyEnvelope::Cost cheap{1, 8192};

} // namespace

/// The key of a site: what keeps it, and who may do what with it at a real server.
class TestSiteKey : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void envelopeOpensWithItsPassphraseAlone();
    void envelopeThatAsksTooMuchIsRefused();
    void anythingElseIsNoRecord();
    void sealedAnewStaysEqual();
    void keysAreKeptForTheirSite();
    void otherInstallationReadsNoKeys();
    void linesLeaveUnderTheKeyOfTheSite();
    void rolesMayDoWhatTheyMay();
    void passphraseChanges();
    void newKeyOpensWhatWasBefore();
    void twoWhoChangeAtOnce();
    void siteWithoutTheTable();
    void tableTakesNothingThatIsNotSealed();

private:
    QString role(const char* kind);
    SiteKeyOutcome perform(SiteKeyTask::Kind kind, const QString& passphrase = QString(),
                           const QString& fresh = QString(),
                           const QString& user = QStringLiteral("postgres"));
    void useDesk(const char* name);
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
    const QString m_site = QStringLiteral("0d9b6d14-0000-4000-8000-000000000001");
    int m_count = 0;
};

void TestSiteKey::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void TestSiteKey::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_database = QStringLiteral("key%1").arg(++m_count);
    const QString failure = makeSite(m_server, m_database);
    QVERIFY2(failure.isEmpty(), qPrintable(failure));
    useDesk("first");
}

/// From here on this process is another user's.
void TestSiteKey::useDesk(const char* name)
{
    const QString home = m_folder->filePath(QLatin1String(name));
    InstallationKey::Places places;
    places.keyFile = home + QStringLiteral("/installation.key");
    Keyring::ofInstallation().setPlaces(places);
    SiteKeyring::ofProcess().setFolder(home + QStringLiteral("/sites"));
}

QString TestSiteKey::role(const char* kind)
{
    const QString name = QStringLiteral("%1%2").arg(QLatin1String(kind)).arg(m_count);
    sql(QStringLiteral("CREATE ROLE %1 LOGIN IN ROLE ko_%2").arg(name, QLatin1String(kind)));
    return name;
}

SiteKeyOutcome TestSiteKey::perform(SiteKeyTask::Kind kind, const QString& passphrase, const QString& fresh,
                                    const QString& user)
{
    SiteConnection connection;
    SiteKeyOutcome outcome;
    outcome.kind = SiteKeyOutcome::Failed;
    outcome.failure = connection.open(m_server.address(m_database, user));
    return outcome.failure ? outcome : ko::perform({m_site, kind, passphrase, fresh, cheap}, connection);
}

void TestSiteKey::envelopeOpensWithItsPassphraseAlone()
{
    const QByteArray key = Sealer::newKey();
    const KeyEnvelope envelope = KeyEnvelope::seal(key, QStringLiteral("caf\u00e9 au lait"), m_site, cheap);
    QByteArray opened;
    QVERIFY(envelope.open(QStringLiteral("cafe\u0301 au lait"), m_site, &opened) ==
            KeyEnvelope::Opened::Good);
    QCOMPARE(opened, key);
    const auto fails = [&](const KeyEnvelope& with, const QString& passphrase, const QString& site) {
        return with.open(passphrase, site, &opened) == KeyEnvelope::Opened::WrongPassphrase &&
               opened.isEmpty();
    };
    QVERIFY(fails(envelope, QStringLiteral("cafe au lait"), m_site));
    QVERIFY(fails(envelope, QString(), m_site));
    QVERIFY(fails(envelope, QStringLiteral("caf\u00e9 au lait"), QStringLiteral("another site")));
    KeyEnvelope altered = envelope;
    altered.sealed[20] = altered.sealed.at(20) == QLatin1Char('A') ? QLatin1Char('B') : QLatin1Char('A');
    QVERIFY(fails(altered, QStringLiteral("caf\u00e9 au lait"), m_site));
    KeyEnvelope cheaper = envelope;
    cheaper.cost.operations = 2;
    QVERIFY(fails(cheaper, QStringLiteral("caf\u00e9 au lait"), m_site));
    const KeyEnvelope twice = KeyEnvelope::seal(key, QStringLiteral("caf\u00e9 au lait"), m_site, cheap);
    QVERIFY(twice.sealed != envelope.sealed && twice.salt != envelope.salt);
    QVERIFY(KeyEnvelope::nameOf(key) != KeyEnvelope::nameOf(Sealer::newKey()));
    QCOMPARE(KeyEnvelope::nameOf(key).size(), 32);
}

void TestSiteKey::envelopeThatAsksTooMuchIsRefused()
{
    KeyEnvelope envelope = KeyEnvelope::seal(Sealer::newKey(), phrase, m_site, cheap);
    QByteArray opened;
    for (const KeyEnvelope::Cost& cost : {KeyEnvelope::Cost{1, quint64(1) << 40},
                                          {1U << 30, 8192},
                                          {~quint64(0), ~quint64(0)},
                                          {1, 1},
                                          {0, 8192}}) {
        envelope.cost = cost;
        QVERIFY(envelope.open(phrase, m_site, &opened) == KeyEnvelope::Opened::Unusable);
    }
    envelope.cost = cheap;
    envelope.salt = QStringLiteral("c2hvcnQ=");
    QVERIFY(envelope.open(phrase, m_site, &opened) == KeyEnvelope::Opened::Unusable);
}

void TestSiteKey::anythingElseIsNoRecord()
{
    for (const char* text :
         {"", "x", "[]", "{}", "{\"revision\":\"1\"}", "{\"revision\":1}", "{\"revision\":1,\"name\":7}"})
        QVERIFY2(!SiteKeyTable::decode(text), text);
    const auto none = SiteKeyTable::decode("{\"revision\":0,\"may_make\":true}");
    QVERIFY(none && !none->hasKey() && none->mayMake && !none->mayChange);
    const auto odd = SiteKeyTable::decode(
        "{\"revision\":1,\"name\":\"a\",\"memory\":-1,\"operations\":1e300,\"salt\":[],\"former\":[1,{}]}");
    QByteArray opened;
    QVERIFY(odd && odd->envelope.open(phrase, m_site, &opened) == KeyEnvelope::Opened::Unusable);
}

/// What was equal before, such as the value before one change and after the one before, is equal after.
void TestSiteKey::sealedAnewStaysEqual()
{
    const Sealer old({Sealer::newKey()});
    const Sealer fresh({Sealer::newKey()});
    const QString id = QStringLiteral("n1");
    const QString key = QStringLiteral("Password");
    const QString a = old.seal(QStringLiteral("secret"), id, key);
    const QString b = old.seal(QStringLiteral("secret"), id, key);
    const auto anew = [&](const QString& sealed) {
        return fresh.reseal(sealed, old, id, key).value_or(QString());
    };
    QCOMPARE(fresh.open(anew(a), id, key).value_or(QString()), QStringLiteral("secret"));
    QVERIFY(!old.open(anew(a), id, key));
    QCOMPARE(anew(a), anew(a));
    QVERIFY(anew(a) != anew(b)); // nor does it tell that two passwords are the same
    QVERIFY(!fresh.reseal(a, old, QStringLiteral("n2"), key));
    QVERIFY(!fresh.reseal(a, fresh, id, key));
    QVERIFY(!Sealer().reseal(a, old, id, key));
}

void TestSiteKey::keysAreKeptForTheirSite()
{
    const QByteArray first = Sealer::newKey();
    const QByteArray second = Sealer::newKey();
    SiteKeyring& ring = SiteKeyring::ofProcess();
    QVERIFY(ring.add(m_site, {first}));
    QVERIFY(ring.add(m_site, {second, first}));
    const QString sealed = ring.keys(m_site)->sealer().seal(QStringLiteral("x"), QStringLiteral("n"),
                                                            QStringLiteral("Password"));
    useDesk("first"); // as after a start
    QVERIFY(ring.has(m_site, KeyEnvelope::nameOf(first)) && ring.has(m_site, KeyEnvelope::nameOf(second)));
    QCOMPARE(ring.keys(m_site)->current, KeyEnvelope::nameOf(second));
    QCOMPARE(
        ring.keys(m_site)->open(sealed, QStringLiteral("n"), QStringLiteral("Password")).value_or(QString()),
        QStringLiteral("x"));
    const QString file = m_folder->filePath(QStringLiteral("first/sites/%1.keys").arg(m_site));
    QCOMPARE(int(QFile::permissions(file) &
                 (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther)),
             0);
    QFile kept(file);
    QVERIFY(kept.open(QIODevice::ReadOnly));
    const QByteArray content = kept.readAll();
    QVERIFY(!content.contains(first.toBase64()) && !content.contains(first) &&
            content.startsWith("sealed1:"));

    // One of another site is not a key of this one, whatever its file is called.
    QVERIFY(QFile::copy(file, m_folder->filePath(QStringLiteral("first/sites/elsewhere.keys"))));
    QVERIFY(!ring.has(QStringLiteral("elsewhere"), KeyEnvelope::nameOf(first)));

    // Known to be behind, it opens and does not seal.
    ring.setCurrent(m_site, KeyEnvelope::nameOf(Sealer::newKey()));
    useDesk("first");
    QVERIFY(!ring.keys(m_site)->sealer().canSeal());
    QVERIFY(ring.keys(m_site)->open(sealed, QStringLiteral("n"), QStringLiteral("Password")));
}

void TestSiteKey::otherInstallationReadsNoKeys()
{
    const QByteArray key = Sealer::newKey();
    QVERIFY(SiteKeyring::ofProcess().add(m_site, {key}));
    InstallationKey::Places places;
    places.keyFile = m_folder->filePath(QStringLiteral("other.key"));
    Keyring::ofInstallation().setPlaces(places);
    SiteKeyring::ofProcess().setFolder(m_folder->filePath(QStringLiteral("first/sites")));
    QVERIFY(!SiteKeyring::ofProcess().has(m_site, KeyEnvelope::nameOf(key)));

    // Nor is one kept where there is no key of the installation; it is good as long as the program runs.
    Keyring::ofInstallation().setPlaces(InstallationKey::Places());
    SiteKeyring::ofProcess().setFolder(m_folder->filePath(QStringLiteral("nowhere")));
    QVERIFY(!SiteKeyring::ofProcess().add(m_site, {key}));
    QVERIFY(SiteKeyring::ofProcess().keys(m_site)->sealer().canSeal());
    QVERIFY(
        QDir(m_folder->filePath(QStringLiteral("nowhere"))).entryList({QStringLiteral("*.keys")}).isEmpty());
}

/// What was sealed by the installation is the same under the site's key; what is not sealed stays here.
void TestSiteKey::linesLeaveUnderTheKeyOfTheSite()
{
    const QString file = m_folder->filePath(QStringLiteral("copy.kodb"));
    const QString key = QStringLiteral("Password");
    const auto db = openDatabase(file);
    const QString first = addCamera(*db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    const QString second = addCamera(*db, QStringLiteral("Door"), QStringLiteral("10.0.0.2"));
    setText(*db, first, "Password", QStringLiteral("one"));
    QVERIFY(db->flush());
    setText(*db, first, "Password", QStringLiteral("two"));
    QVERIFY(db->flush());
    PlainSql(file).run(
        QStringLiteral(
            "UPDATE node_properties SET properties = json_set(properties, '$.Password',"
            " json('[0,\"in \\\"the\\\" clear\"]')) WHERE node = (SELECT n FROM nodes WHERE id = '%1')")
            .arg(second));
    db->removeNode(second);
    QVERIFY(db->flush());
    StoreError error;
    const auto log = SharedLog::open(file, describe, &error);
    QVERIFY(log);
    log->setSite(m_site);
    const auto sent = [&log] {
        SharedLog::Cursor cursor;
        QVector<SharedLine> lines;
        const QVector<SharedParcel> parcels = log->waiting(&cursor, 1000);
        for (const SharedParcel& parcel : parcels)
            lines += parcel.lines;
        return lines;
    };
    const auto valueIn = [&key](const QString& text) {
        return QJsonDocument::fromJson(text.toUtf8())["properties"][key][1].toString();
    };
    QVector<SharedLine> before = sent(); // no key yet: sealed as it was
    QVERIFY(SiteKeyring::ofProcess().add(m_site, {Sealer::newKey()}));
    const QVector<SharedLine> after = sent();
    const Sealer sealer = SiteKeyring::ofProcess().keys(m_site)->sealer();
    QStringList read;
    for (const SharedLine& line : after) {
        QVERIFY2(!(line.before + line.after).contains(QLatin1String("clear")), qPrintable(line.before));
        if (line.id == first && !valueIn(line.after).isEmpty())
            read << sealer.open(valueIn(line.before), first, key).value_or(QString())
                 << sealer.open(valueIn(line.after), first, key).value_or(QString());
    }
    QCOMPARE(read,
             QStringList({QString(), QStringLiteral("one"), QStringLiteral("one"), QStringLiteral("two")}));
    QVERIFY(after.constLast().id == second && after.constLast().after.isNull());
    QCOMPARE(QJsonDocument::fromJson(after.constLast().before.toUtf8())["name"].toString(),
             QStringLiteral("Door"));
    const QVector<SharedLine> again = sent();
    QCOMPARE(again.size(), before.size());
    for (int i = 0; i < again.size(); ++i) {
        QVERIFY(again.at(i).before == after.at(i).before && again.at(i).after == after.at(i).after);
        if (again.at(i).id == first && !valueIn(again.at(i).after).isEmpty())
            QVERIFY(again.at(i).after != before.at(i).after);
    }
}

void TestSiteKey::rolesMayDoWhatTheyMay()
{
    const QString viewer = role("viewer");
    const QString editor = role("editor");
    const QString owner = role("owner");
    QCOMPARE(perform(SiteKeyTask::Make, phrase, {}, viewer).kind, SiteKeyOutcome::Failed);
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.keys")), QStringLiteral("0"));
    const SiteKeyOutcome made = perform(SiteKeyTask::Make, phrase, {}, editor);
    QVERIFY2(made.kind == SiteKeyOutcome::Done && made.isHere && !made.isNotKept,
             qPrintable(made.failure.message));
    QCOMPARE(sql(QStringLiteral("SELECT set_by FROM ko.keys")), editor);
    QCOMPARE(perform(SiteKeyTask::Make, other, {}, owner).kind, SiteKeyOutcome::SomebodyElse);

    // Any of them may have it, by the passphrase.
    for (const QString& user : {viewer, editor, owner}) {
        useDesk(user.toUtf8());
        const SiteKeyOutcome seen = perform(SiteKeyTask::Look, {}, {}, user);
        QVERIFY(seen.kind == SiteKeyOutcome::Done && seen.record.hasKey() && !seen.isHere);
        QCOMPARE(seen.record.mayMake, user != viewer);
        QCOMPARE(seen.record.mayChange, user == owner);
        QCOMPARE(perform(SiteKeyTask::Open, other, {}, user).kind, SiteKeyOutcome::WrongPassphrase);
        QVERIFY(!SiteKeyring::ofProcess().has(m_site, seen.record.name));
        QVERIFY(perform(SiteKeyTask::Open, phrase, {}, user).isHere);
        QVERIFY(perform(SiteKeyTask::Look, {}, {}, user).isHere);
    }
    const QString before = sql(QStringLiteral("SELECT revision, sealed FROM ko.keys"));
    for (const QString& user : {viewer, editor}) {
        for (const auto kind : {SiteKeyTask::ChangePassphrase, SiteKeyTask::ChangeKey})
            QCOMPARE(perform(kind, phrase, other, user).kind, SiteKeyOutcome::Failed);
        SiteConnection connection;
        QVERIFY(!connection.open(m_server.address(m_database, user)));
        QByteArray text;
        for (const char* statement :
             {"SELECT sealed FROM ko.keys", "UPDATE ko.keys SET sealed = 'sealed1:x'", "DELETE FROM ko.keys",
              "SELECT ko.put_key(1, '{}')", "SELECT ko.change_key(1, '{}')"})
            QVERIFY2(connection.value(statement, {}, &text).kind == SharingFailure::NoSite, statement);
        bool isTaken = true; // a second first one
        QVERIFY(SiteKeyTable::put(connection, 0, "{}", &isTaken) || !isTaken);
    }
    QCOMPARE(sql(QStringLiteral("SELECT revision, sealed FROM ko.keys")), before);
    QCOMPARE(perform(SiteKeyTask::ChangePassphrase, phrase, other, owner).kind, SiteKeyOutcome::Done);
}

void TestSiteKey::passphraseChanges()
{
    QCOMPARE(perform(SiteKeyTask::ChangePassphrase, phrase, other).kind, SiteKeyOutcome::NoKey);
    QCOMPARE(perform(SiteKeyTask::Make, QStringLiteral("short")).kind, SiteKeyOutcome::TooShort);
    const QString name = perform(SiteKeyTask::Make, phrase).record.name;
    QCOMPARE(perform(SiteKeyTask::ChangePassphrase, other, other).kind, SiteKeyOutcome::WrongPassphrase);
    QCOMPARE(perform(SiteKeyTask::ChangePassphrase, phrase, QStringLiteral("short")).kind,
             SiteKeyOutcome::TooShort);
    QCOMPARE(perform(SiteKeyTask::ChangePassphrase, phrase, other).kind, SiteKeyOutcome::Done);
    const SiteKeyOutcome seen = perform(SiteKeyTask::Look);
    QVERIFY(seen.isHere && seen.record.name == name && seen.record.revision == 2);
    useDesk("second");
    QCOMPARE(perform(SiteKeyTask::Open, phrase).kind, SiteKeyOutcome::WrongPassphrase);
    QVERIFY(perform(SiteKeyTask::Open, other).isHere);
}

void TestSiteKey::newKeyOpensWhatWasBefore()
{
    const QString node = QStringLiteral("n");
    const QString key = QStringLiteral("Password");
    QStringList sealed;
    QString passphrase = phrase;
    QVERIFY(perform(SiteKeyTask::Make, passphrase).isHere);
    for (int i = 0; i < 3; ++i) {
        sealed.append(SiteKeyring::ofProcess().keys(m_site)->sealer().seal(QString::number(i), node, key));
        useDesk(QByteArray::number(i)); // which has it by the passphrase alone
        const QString next = QStringLiteral("passphrase number %1").arg(i);
        const SiteKeyOutcome changed = perform(SiteKeyTask::ChangeKey, passphrase, next);
        QVERIFY(changed.kind == SiteKeyOutcome::Done && changed.isHere);
        QCOMPARE(perform(SiteKeyTask::Open, passphrase).kind, SiteKeyOutcome::WrongPassphrase);
        passphrase = next;
    }
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.keys WHERE sealed IS NOT NULL OR salt IS NOT NULL")),
             QStringLiteral("1"));
    useDesk("first"); // has the first key, and not the one of now
    const SiteKeyOutcome seen = perform(SiteKeyTask::Look);
    QVERIFY(!seen.isHere && !SiteKeyring::ofProcess().keys(m_site)->sealer().canSeal());
    QVERIFY(SiteKeyring::ofProcess().keys(m_site)->open(sealed.at(0), node, key));
    QVERIFY(!SiteKeyring::ofProcess().keys(m_site)->open(sealed.at(1), node, key));
    useDesk("new");
    QVERIFY(perform(SiteKeyTask::Open, passphrase).isHere);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(SiteKeyring::ofProcess().keys(m_site)->open(sealed.at(i), node, key).value_or(QString()),
                 QString::number(i));
        const QString anew =
            SiteKeyring::ofProcess().keys(m_site)->reseal(sealed.at(i), node, key).value_or(QString());
        QCOMPARE(SiteKeyring::ofProcess().keys(m_site)->sealer().open(anew, node, key).value_or(QString()),
                 QString::number(i));
        QVERIFY(!SiteKeyring::ofProcess().keys(m_site)->reseal(anew, node, key));
    }
}

void TestSiteKey::twoWhoChangeAtOnce()
{
    QVERIFY(perform(SiteKeyTask::Make, phrase).isHere);
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database)));
    SiteKeyRecord record;
    QVERIFY(!SiteKeyTable::fetch(connection, &record));
    QCOMPARE(perform(SiteKeyTask::ChangeKey, phrase, other).kind, SiteKeyOutcome::Done);
    const QString before = sql(QStringLiteral("SELECT * FROM ko.keys ORDER BY 1"));
    const QByteArray key = Sealer::newKey();
    bool isTaken = true;
    QVERIFY(!SiteKeyTable::put(connection, record.revision,
                               SiteKeyTable::encode(KeyEnvelope::nameOf(key),
                                                    KeyEnvelope::seal(key, phrase, m_site, cheap), QString()),
                               &isTaken));
    QVERIFY(!isTaken);
    QCOMPARE(sql(QStringLiteral("SELECT * FROM ko.keys ORDER BY 1")), before);
}

void TestSiteKey::siteWithoutTheTable()
{
    sql(QStringLiteral("DROP FUNCTION ko.key(), ko.make_key(jsonb), ko.change_key(integer, jsonb),"
                       " ko.put_key(integer, jsonb)"));
    sql(QStringLiteral("DROP TABLE ko.keys"));
    const SiteKeyOutcome seen = perform(SiteKeyTask::Look);
    QVERIFY(seen.kind == SiteKeyOutcome::Done && !seen.record.hasTables && !seen.record.hasKey());
    QCOMPARE(perform(SiteKeyTask::Make, phrase).kind, SiteKeyOutcome::Failed);
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database)));
    QVERIFY(!connection.prepareSite());
    QVERIFY(perform(SiteKeyTask::Make, phrase).isHere);
    QVERIFY(!connection.prepareSite()); // again changes nothing
    QVERIFY(perform(SiteKeyTask::Open, phrase).isHere);
}

void TestSiteKey::tableTakesNothingThatIsNotSealed()
{
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(m_database)));
    const QString name = KeyEnvelope::nameOf(Sealer::newKey());
    bool isTaken = true;
    const KeyEnvelope clear{cheap, QStringLiteral("salt"), QString::fromLatin1(Sealer::newKey().toBase64())};
    const QString sealed = QStringLiteral("sealed1:x");
    for (const QByteArray& key :
         {SiteKeyTable::encode(name, clear, QString()),
          SiteKeyTable::encode(name, {cheap, QString(), QString()}, QString()),
          SiteKeyTable::encode(name, {cheap, QStringLiteral("s"), sealed}, QStringLiteral("clear")),
          SiteKeyTable::encode(QStringLiteral("no name"), {cheap, QStringLiteral("s"), sealed}, QString()),
          QByteArray("{}"), QByteArray("[]")}) {
        QVERIFY2(SiteKeyTable::put(connection, 0, key, &isTaken), key.constData());
        QVERIFY(!isTaken);
    }
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.keys")), QStringLiteral("0"));
}

KO_TEST_MAIN(TestSiteKey)
#include "tst_sitekey.moc"
