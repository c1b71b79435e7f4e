#include "StoreTesting.h"
#include "audit/AuditLog.h"
#include "audit/LogStore.h"
#include "audit/ProgramLog.h"
#include "exchange/CameraSurvey.h"
#include "ko/GlobalNetworkProxy.h"
#include "kogen/Property.h"
#include "secrets/Keyring.h"
#include "secrets/Secrets.h"
#include "store/Salvage.h"
#include "store/SqliteStore.h"
#include "store/StoreBackup.h"
#include "store/StoreSchema.h"
#include "support/TestMain.h"

#include <QDir>
#include <QDirIterator>
#include <QLocalServer>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QUrl>

#include <sys/stat.h>
#include <unistd.h>

using namespace ko;
using namespace testsupport;

namespace {

const auto owner = QLatin1String("n234567");
const auto field = QLatin1String("Password");

int mode(const QString& file)
{
    struct stat info;
    return ::stat(QFile::encodeName(file).constData(), &info) == 0 ? int(info.st_mode & 07777) : -1;
}

QByteArray content(const QString& file)
{
    QFile reader(file);
    return reader.open(QIODevice::ReadOnly) ? reader.readAll() : QByteArray();
}

/// A hundred that no other text holds, with what passwords are made of.
QStringList knownPasswords()
{
    QStringList all;
    QRandomGenerator random(4711);
    const QString signs = QString::fromUtf8("@#!^/:%&?=+\"'\\<>,; \xC3\xA4\xE2\x82\xAC\xF0\x9F\x94\x91");
    for (int i = 0; i < 100; ++i) {
        QString password = QString::fromLatin1("Kq%1z").arg(random.generate(), 8, 16, QLatin1Char('0'));
        if (i % 2 == 1)
            password.insert(5, signs.mid(random.bounded(int(signs.size()) - 4), 1 + i % 3));
        all.append(password);
    }
    return all;
}

QVector<QByteArray> utf16(const QString& text)
{
    QByteArray little;
    QByteArray big;
    for (const QChar c : text) {
        little += char(c.cell());
        little += char(c.row());
        big += char(c.row());
        big += char(c.cell());
    }
    return {little, big};
}

/// base64 in each of the three places that the bytes may have in what was encoded, without what depends on
/// the neighbours.
QVector<QByteArray> base64(const QByteArray& bytes)
{
    QVector<QByteArray> forms;
    for (int shift = 0; shift < 3; ++shift) {
        const QByteArray encoded = (QByteArray(shift, 'x') + bytes).toBase64(QByteArray::OmitTrailingEquals);
        forms.append(encoded.mid(shift == 0 ? 0 : 4, (shift + bytes.size()) / 3 * 4 - (shift == 0 ? 0 : 4)));
    }
    return forms;
}

/// "%2F" as "%2f".
QByteArray withLowerHex(QByteArray percentEncoded)
{
    for (int at = percentEncoded.indexOf('%'); at >= 0; at = percentEncoded.indexOf('%', at + 1))
        percentEncoded.replace(at, 3, percentEncoded.mid(at, 3).toLower());
    return percentEncoded;
}

QVector<QByteArray> formsOf(const QString& password)
{
    const QByteArray utf8 = password.toUtf8();
    const QByteArray percent = QUrl::toPercentEncoding(password);
    QVector<QByteArray> forms = {utf8, percent, withLowerHex(percent)};
    forms += base64(utf8);
    const QVector<QByteArray> wide = utf16(password);
    for (const QByteArray& bytes : wide)
        forms += QVector<QByteArray>{bytes} + base64(bytes);
    return forms;
}

/// The files below \a folder in which one of the passwords stands in any form.
QStringList filesWith(const QStringList& passwords, const QString& folder)
{
    QStringList found;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        const QByteArray bytes = content(file);
        for (const QString& password : passwords) {
            const QVector<QByteArray> forms = formsOf(password);
            if (std::any_of(forms.begin(), forms.end(),
                            [&](const QByteArray& form) { return bytes.contains(form); }))
                found.append(file + QLatin1String(": ") + password);
        }
    }
    return found;
}

} // namespace

class tst_Secrets : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensWhatItSealed();
    void changedTextsDoNotOpen();
    void movedTextsDoNotOpen();
    void otherKeysDoNotOpen();
    void onlySealedTextsLookSealed();

    void keyFileIsPrivateAndKept();
    void halfWrittenKeyFileIsNone();
    void unreadableKeyFileIsNotReplaced();
    void keyFileThatIsAPipe();
    void keyInAKeychainThatIsNotThere();
    void withoutAKeyNothingIsStored();
    void editorOpenWhileTheKeyComesBack();
    void listsNeedTheKey();
    void twoProcessesMakeOneKey();
    void keychain();
    void keychainThatNeverAnswers();

    void nodesHandOutSealedPasswords();
    void samePasswordIsNoChange();
    void movedInTheDatabase();
    void alteredPasswordIsNone_data();
    void alteredPasswordIsNone();
    void unopenedPasswordStays();
    void globalProxy();
    void oldDatabaseIsSealed();
    void oldDatabaseWaitsForItsKey();
    void databasesKeepTheirRules();
    void salvagedOldDatabaseIsSealed();
    void filesArePrivateWhateverTheUmask();
    void everyPasswordComesBack();
    void passwordsAreFoundNowhere();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    InstallationKey::Places places() const;
    void checkOpenKeychain(const InstallationKey::Places& chain);
    void checkLockedKeychain(const InstallationKey::Places& chain);
    void useNewKey(const char* file);
    QString stored(const QString& id, const char* key) const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void tst_Secrets::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("db")));
    m_file = path("db/nodes.db");
    Keyring::ofInstallation().setPlaces(places());
}

void tst_Secrets::cleanup()
{
    m_folder.reset();
}

InstallationKey::Places tst_Secrets::places() const
{
    InstallationKey::Places places;
    places.keyFile = path("config/key");
    return places;
}

void tst_Secrets::useNewKey(const char* file)
{
    InstallationKey::Places other = places();
    other.keyFile = path(file);
    Keyring::ofInstallation().setPlaces(other);
}

QString tst_Secrets::stored(const QString& id, const char* key) const
{
    return PlainSql(m_file)
        .run(QString::fromLatin1(
                 "SELECT value FROM properties JOIN nodes ON n = node WHERE id = '%1' AND key = '%2'")
                 .arg(id, QLatin1String(key)))
        .toString();
}

void tst_Secrets::opensWhatItSealed()
{
    const Sealer sealer({Sealer::newKey()});
    QString text;
    for (int length = 0; length < 300; ++length) {
        const QString sealed = sealer.seal(text, owner, field);
        QVERIFY(Sealer::isSealed(sealed));
        const auto opened = sealer.open(sealed, owner, field);
        QVERIFY(opened);
        QCOMPARE(*opened, text);
        QVERIFY(sealer.seal(text, owner, field) != sealed);
        text += QChar(ushort(length * 251 + 1)); // also halves of pairs, which are no Unicode
    }
    text = QString(1000000, QChar(0x20ac)) + QChar(0) + QLatin1String("end");
    QCOMPARE(*sealer.open(sealer.seal(text, owner, field), owner, field), text);
}

void tst_Secrets::changedTextsDoNotOpen()
{
    const Sealer sealer({Sealer::newKey()});
    const QString sealed = sealer.seal(QLatin1String("s3cret"), owner, field);
    const int prefix = int(sealed.indexOf(QLatin1Char(':'))) + 1;
    const QByteArray bytes = QByteArray::fromBase64(sealed.mid(prefix).toLatin1());
    for (int bit = 0; bit < int(bytes.size()) * 8; ++bit) {
        QByteArray changed = bytes;
        changed[bit / 8] = char(changed.at(bit / 8) ^ (1 << bit % 8));
        QVERIFY(!sealer.open(sealed.left(prefix) + QString::fromLatin1(changed.toBase64()), owner, field));
    }
    for (int length = 0; length < sealed.size(); ++length)
        QVERIFY(!sealer.open(sealed.left(length), owner, field));
    QVERIFY(!sealer.open(sealed + QLatin1String("AAAA"), owner, field));
}

void tst_Secrets::movedTextsDoNotOpen()
{
    const Sealer sealer({Sealer::newKey()});
    const QString sealed = sealer.seal(QLatin1String("s3cret"), owner, field);
    QVERIFY(!sealer.open(sealed, QLatin1String("n234568"), field));
    QVERIFY(!sealer.open(sealed, owner, QLatin1String("ProxyPassword")));
    QVERIFY(!sealer.open(sealed, QString(owner) + field, QString()));
    QVERIFY(sealer.open(sealed, owner, field));
}

void tst_Secrets::otherKeysDoNotOpen()
{
    const QByteArray first = Sealer::newKey();
    const QByteArray second = Sealer::newKey();
    QCOMPARE(int(first.size()), Sealer::KeySize);
    QVERIFY(first != second);
    const QString sealed = Sealer({first}).seal(QLatin1String("s3cret"), owner, field);
    QVERIFY(!Sealer({second}).open(sealed, owner, field));
    QVERIFY(!Sealer().open(sealed, owner, field));
    QVERIFY(!Sealer().canSeal());
    QVERIFY(!Sealer({QByteArray("short")}).canSeal());
    const Sealer both({second, first});
    QCOMPARE(*both.open(sealed, owner, field), QLatin1String("s3cret"));
    QVERIFY(!Sealer({first}).open(both.seal(QLatin1String("x"), owner, field), owner, field));
}

void tst_Secrets::onlySealedTextsLookSealed()
{
    for (const char* text : {"", "s3cret", "sealed1:", "sealed1:AAAA",
                             "sealed1:not base64 at all, but long enough for "
                             "one, one should think, of all the texts"})
        QVERIFY2(!Sealer::isSealed(QLatin1String(text)), text);
}

void tst_Secrets::keyFileIsPrivateAndKept()
{
    const mode_t old = ::umask(0);
    const InstallationKey made = InstallationKey::load(places());
    ::umask(old);
    QVERIFY(made.sealer.canSeal());
    QCOMPARE(made.problem, QString());
    QCOMPARE(mode(places().keyFile), 0600);
    QCOMPARE(mode(path("config")), 0700);
    const QString sealed = made.sealer.seal(QLatin1String("s3cret"), owner, field);
    const QByteArray before = digest(places().keyFile);
    QCOMPARE(*InstallationKey::load(places()).sealer.open(sealed, owner, field), QLatin1String("s3cret"));
    QCOMPARE(digest(places().keyFile), before);
}

void tst_Secrets::halfWrittenKeyFileIsNone()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("config")));
    const QString draft = places().keyFile + QLatin1String(".new");
    QFile file(draft);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("half") > 0);
    file.close();
    QVERIFY(InstallationKey::load(places()).sealer.canSeal());
    QCOMPARE(mode(places().keyFile), 0600);
    QVERIFY(!QFile::exists(draft));
}

void tst_Secrets::unreadableKeyFileIsNotReplaced()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("config")));
    QFile file(places().keyFile);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("no key\n") > 0);
    file.close();
    const InstallationKey key = InstallationKey::load(places());
    QVERIFY(!key.sealer.canSeal());
    QVERIFY(!key.problem.isEmpty());
    QCOMPARE(content(places().keyFile), QByteArray("no key\n"));
}

void tst_Secrets::keyFileThatIsAPipe()
{
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("config")));
    QCOMPARE(::mkfifo(QFile::encodeName(places().keyFile).constData(), 0600), 0);
    const InstallationKey key = InstallationKey::load(places()); // comes back
    QVERIFY(!key.sealer.canSeal());
    QVERIFY(!key.problem.isEmpty());
}

void tst_Secrets::keyInAKeychainThatIsNotThere()
{
    InstallationKey::Places chain = places();
    chain.keychain = QLatin1String("konodeui-test"); // the bus of tests has none
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("config")));
    QFile marker(chain.keyFile + QLatin1String(".keychain"));
    QVERIFY(marker.open(QIODevice::WriteOnly));
    const InstallationKey none = InstallationKey::load(chain);
    QVERIFY(!none.sealer.canSeal());
    QVERIFY2(none.problem.contains(marker.fileName()), qPrintable(none.problem));
    QVERIFY(!QFile::exists(chain.keyFile));
    QVERIFY(marker.remove());
    QVERIFY(InstallationKey::load(chain).sealer.canSeal());
    QVERIFY(QFile::exists(chain.keyFile));
}

void tst_Secrets::withoutAKeyNothingIsStored()
{
    QString id;
    {
        const auto db = openDatabase(m_file);
        id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        setText(*db, id, "Password", QLatin1String("before"));
    }
    const QString before = stored(id, "Password");
    // The folder of the key cannot be made: a file has its name.
    QVERIFY(QFile::rename(path("config"), path("kept")));
    QFile obstacle(path("config"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    Keyring::ofInstallation().setPlaces(places());
    const auto db = openDatabase(m_file);
    QVERIFY(db);
    QSignalSpy failed(db.get(), SIGNAL(storeFailed(ko::StoreError)));
    setText(*db, id, "Password", QLatin1String("s3cret"));
    const QString added = addCamera(*db, QLatin1String("b"), QLatin1String("10.0.0.2"));
    setText(*db, added, "Password", QLatin1String("s3cret2"));
    db->globalProxy().setSaveProxyPassword(true);
    db->globalProxy().setProxyUser(QLatin1String("joe"), QLatin1String("pr0xy"));
    QVERIFY(!db->flush());
    QCOMPARE(failed.last().at(0).value<StoreError>().kind, StoreError::KeyNotKept);
    // What was confirmed is there, and nowhere else.
    QCOMPARE(text(*db, id, "Password"), QLatin1String("s3cret"));
    QCOMPARE(text(*db, added, "Password"), QLatin1String("s3cret2"));
    QVERIFY(db->hasUnstoredChanges());
    QCOMPARE(stored(id, "Password"), before);
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 1);
    QVERIFY(!filesWith({QLatin1String("s3cret"), QLatin1String("pr0xy")}, path("db")).size());
    // The folder is back: trying again looks for the key again.
    QVERIFY(obstacle.remove());
    QVERIFY(QFile::rename(path("kept"), path("config")));
    QVERIFY(db->flush());
    QVERIFY(!db->hasUnstoredChanges());
    const auto other = openDatabase(m_file);
    QCOMPARE(text(*other, id, "Password"), QLatin1String("s3cret"));
    QCOMPARE(text(*other, added, "Password"), QLatin1String("s3cret2"));
    QCOMPARE(other->globalProxy().proxyPassword(), QLatin1String("pr0xy"));
    QVERIFY(Sealer::isSealed(stored(id, "Password")));
    setText(*db, id, "Name", QLatin1String("renamed")); // what was held in memory goes on standing for it
    QCOMPARE(text(*db, id, "Password"), QLatin1String("s3cret"));
    QVERIFY(db->flush());
    QCOMPARE(text(*openDatabase(m_file), id, "Password"), QLatin1String("s3cret"));
}

/// An editor that was opened while the key was away writes the empty password back that it shows.
void tst_Secrets::editorOpenWhileTheKeyComesBack()
{
    QString id;
    {
        const auto db = openDatabase(m_file);
        id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        setText(*db, id, "Password", QLatin1String("s3cret"));
        db->globalProxy().setSaveProxyPassword(true);
        db->globalProxy().setProxyUser(QLatin1String("joe"), QLatin1String("pr0xy"));
    }
    QVERIFY(QFile::rename(path("config"), path("kept")));
    QFile obstacle(path("config"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    Keyring::ofInstallation().setPlaces(places());
    const auto db = openDatabase(m_file);
    const QString shown = text(*db, id, "Password");
    QCOMPARE(shown, QString());
    QCOMPARE(db->globalProxy().proxyPassword(), QString());
    addCamera(*db, QLatin1String("b"), QLatin1String("10.0.0.2"));
    setText(*db, db->nodeIdList(IPDeviceType).constLast(), "Password", QLatin1String("other"));
    QVERIFY(!db->flush());
    QVERIFY(obstacle.remove());
    QVERIFY(QFile::rename(path("kept"), path("config")));
    QVERIFY(db->flush());
    QCOMPARE(db->globalProxy().proxyPassword(), QLatin1String("pr0xy"));
    QCOMPARE(text(*db, id, "Password"), QLatin1String("s3cret"));
    setText(*db, id, "Password", shown);
    db->globalProxy().setUseProxy(true);
    QVERIFY(db->flush());
    const auto other = openDatabase(m_file);
    QCOMPARE(text(*other, id, "Password"), QLatin1String("s3cret"));
    QCOMPARE(other->globalProxy().proxyPassword(), QLatin1String("pr0xy"));
}

void tst_Secrets::listsNeedTheKey()
{
    QFile list(path("cameras.csv"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,password\nGate,10.0.0.1,s3cret\nYard,10.0.0.2,\n");
    list.close();
    {
        const auto db = openDatabase(m_file);
        QCOMPARE(CameraSurvey::importCameras(list.fileName()).added, 2);
    }
    const QString sealed = PlainSql(m_file)
                               .run(QLatin1String("SELECT value FROM properties WHERE key = 'Password' AND "
                                                  "value <> ''"))
                               .toString();
    InstallationKey::Places nowhere;
    nowhere.keyFile = QLatin1String("/proc/no such folder/key");
    Keyring::ofInstallation().setPlaces(nowhere);
    const auto db = openDatabase(m_file);
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,password\nDock,10.0.0.3,\nGate,10.0.0.1,other\n");
    list.close();
    const auto imported = CameraSurvey::importCameras(list.fileName());
    QVERIFY2(imported.error.contains(QLatin1String("line 3")), qPrintable(imported.error));
    QVERIFY(!imported.error.contains(QLatin1String("other")));
    QCOMPARE(imported.added + imported.updated, 0);
    const auto exported = CameraSurvey::exportCameras(path("out.csv"), CameraSurvey::Passwords::Write);
    QVERIFY2(exported.error.contains(QLatin1String("Gate")), qPrintable(exported.error));
    QVERIFY(!exported.error.contains(QLatin1String("Yard")));
    QVERIFY(!QFile::exists(path("out.csv")));
    // What has no passwords needs no key.
    QCOMPARE(CameraSurvey::exportCameras(path("out.csv"), CameraSurvey::Passwords::LeaveOut).error,
             QString());
    const auto again = CameraSurvey::importCameras(path("out.csv"));
    QCOMPARE(again.error, QString());
    QCOMPARE(again.unchanged, 2);
    QVERIFY(db->flush());
    QCOMPARE(PlainSql(m_file).run(QLatin1String("SELECT count(*) FROM nodes")).toInt(), 2);
    QCOMPARE(PlainSql(m_file)
                 .run(QLatin1String("SELECT value FROM properties WHERE key = 'Password' AND value <> ''"))
                 .toString(),
             sealed);
}

void tst_Secrets::twoProcessesMakeOneKey()
{
    // Each process is the program, which seals a password for its own database.
    const QString program = QCoreApplication::applicationDirPath() + QLatin1String("/../client/koclient");
    QVERIFY2(QFile::exists(program), "koclient is not built");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("XDG_CONFIG_HOME"), path("config"));
    QFile list(path("cameras.csv"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,password\nGate,10.0.0.1,s3cret\n");
    list.close();
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < 8; ++i) {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(environment);
        process->start(program, {QLatin1String("--db"), path("db/") + QString::number(i),
                                 QLatin1String("--import"), list.fileName()});
        processes.push_back(std::move(process));
    }
    for (const auto& process : processes) {
        QVERIFY(process->waitForFinished(60000));
        QCOMPARE(process->exitCode(), 0);
    }
    InstallationKey::Places standard = places();
    standard.keyFile = path("config/konodeui/installation.key");
    QCOMPARE(mode(standard.keyFile), 0600);
    Keyring::ofInstallation().setPlaces(standard);
    for (int i = 0; i < 8; ++i) {
        const auto db = openDatabase(path("db/") + QString::number(i));
        const QString id = db->nodeIdList(IPDeviceType).value(0);
        QCOMPARE(text(*db, id, "Password"), QLatin1String("s3cret"));
    }
}

/// Where the keychain is open.
void tst_Secrets::checkOpenKeychain(const InstallationKey::Places& chain)
{
    const InstallationKey made = InstallationKey::load(chain);
    QCOMPARE(made.problem, QString());
    QVERIFY(made.sealer.canSeal());
    QVERIFY(!QFile::exists(chain.keyFile)); // the keychain has it
    const QString marker = chain.keyFile + QLatin1String(".keychain");
    QVERIFY(QFile::remove(marker)); // of a version that left none
    const QString sealed = made.sealer.seal(QLatin1String("s3cret"), owner, field);
    const InstallationKey again = InstallationKey::load(chain);
    QCOMPARE(again.sealer.open(sealed, owner, field).value_or(QString()), QLatin1String("s3cret"));
    // A file that was used while there was no keychain still opens; the keychain's key seals.
    QVERIFY(QFile::remove(marker));
    const QString fromFile = InstallationKey::load(places()).sealer.seal(QLatin1String("old"), owner, field);
    const InstallationKey both = InstallationKey::load(chain);
    QCOMPARE(both.sealer.open(fromFile, owner, field).value_or(QString()), QLatin1String("old"));
    QVERIFY(made.sealer.open(both.sealer.seal(QLatin1String("new"), owner, field), owner, field));
    QVERIFY(QFile::remove(chain.keyFile) && QFile::remove(marker));
}

/// Where it stays locked, which the library calls a missing entry; also without the marker, as of old.
void tst_Secrets::checkLockedKeychain(const InstallationKey::Places& chain)
{
    const QStringList lock = {QLatin1String("--session"),
                              QLatin1String("--print-reply=literal"),
                              QLatin1String("--dest=org.freedesktop.secrets"),
                              QLatin1String("/org/freedesktop/secrets"),
                              QLatin1String("org.freedesktop.Secret.Service.Lock"),
                              QLatin1String("array:objpath:/org/freedesktop/secrets/collection/login")};
    QCOMPARE(QProcess::execute(QLatin1String("dbus-send"), lock), 0);
    const InstallationKey locked = InstallationKey::load(chain);
    QVERIFY(!locked.sealer.canSeal());
    QVERIFY(!locked.problem.isEmpty());
    QVERIFY(!QFile::exists(chain.keyFile));
    // Where the keychain surely has none and takes none, it is made in the file.
    InstallationKey::Places other = chain;
    other.keychain = QLatin1String("konodeui-other");
    QVERIFY(InstallationKey::load(other).sealer.canSeal());
    QVERIFY(QFile::exists(chain.keyFile));
    QVERIFY(!QFile::exists(chain.keyFile + QLatin1String(".keychain")));
}

/// In a session of its own with an unlocked keychain, this test runs again as another process.
void tst_Secrets::keychain()
{
    const QByteArray bus = qgetenv("KO_TEST_KEYCHAIN");
    if (!bus.isEmpty()) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", bus);
        InstallationKey::Places chain = places();
        chain.keychain = QLatin1String("konodeui-test");
        checkOpenKeychain(chain);
        checkLockedKeychain(chain);
        return;
    }
    QVERIFY2(!QStandardPaths::findExecutable(QLatin1String("gnome-keyring-daemon")).isEmpty(),
             "gnome-keyring is not installed");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String("HOME"), m_folder->path());
    environment.insert(QLatin1String("XDG_RUNTIME_DIR"), m_folder->path());
    environment.remove(QLatin1String("DBUS_SESSION_BUS_ADDRESS"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(
        QLatin1String("dbus-run-session"),
        {QLatin1String("--"), QLatin1String("sh"), QLatin1String("-c"),
         QLatin1String("printf x | gnome-keyring-daemon --unlock --components=secrets >/dev/null && "
                       "KO_TEST_KEYCHAIN=$DBUS_SESSION_BUS_ADDRESS exec \"$0\" keychain"),
         QCoreApplication::applicationFilePath()});
    QVERIFY(process.waitForFinished(60000));
    QVERIFY2(process.exitCode() == 0, process.readAll().constData());
}

void tst_Secrets::keychainThatNeverAnswers()
{
    // A bus on which nobody answers: a socket that accepts.
    QLocalServer server;
    QVERIFY(server.listen(path("bus")));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(path("bus")));
    InstallationKey::Places chain = places();
    chain.keychain = QLatin1String("konodeui-test");
    chain.keychainPatience = 300;
    const InstallationKey key = InstallationKey::load(chain);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
    QVERIFY(!key.sealer.canSeal()); // it may have one
    QVERIFY(!key.problem.isEmpty());
    QVERIFY(!QFile::exists(chain.keyFile));
}

void tst_Secrets::nodesHandOutSealedPasswords()
{
    const auto db = openDatabase(m_file);
    const kom::smart<NodeHint> hint = db->nodeDriver(IPDeviceType)->createNodeHint(IPDeviceType);
    auto& device = dynamic_cast<NodeHintIPDevice&>(*hint);
    device.address = QLatin1String("10.0.0.1");
    device.password = QLatin1String("s3cret");
    device.proxy.setProxyUser(QLatin1String("joe"), QLatin1String("pr0xy"));
    db->newNodeHint(*hint);
    const QString camera = db->nodeIdList(IPDeviceType).value(0);
    const QString folder = addNode(*db, RecordingFolderType, QLatin1String("f"), QLatin1String("/srv"));
    setText(*db, folder, "Password", QLatin1String("f0lder"));
    setText(*db, folder, "RecordingTransponderPassword", QLatin1String("rem0te"));

    const auto check = [&] {
        const auto read = db->node(camera).cast<const IPDeviceNode>();
        QCOMPARE(read->password(0), QLatin1String("s3cret"));
        QCOMPARE(read->proxy().proxyPassword(), QLatin1String("pr0xy"));
        QCOMPARE(text(*db, camera, "Password"), QLatin1String("s3cret"));
        QCOMPARE(text(*db, camera, "ProxyPassword"), QLatin1String("pr0xy"));
        QCOMPARE(text(*db, folder, "Password"), QLatin1String("f0lder"));
        QCOMPARE(text(*db, folder, "RecordingTransponderPassword"), QLatin1String("rem0te"));
        for (const QString& id : {camera, folder}) {
            int sealed = 0;
            const kom::smart<const Node> listed = db->node(id);
            for (const auto& entry : listed->properties()) {
                const QString value = entry.second->value().toString();
                for (const char* secret : {"s3cret", "pr0xy", "f0lder", "rem0te"})
                    QVERIFY2(!value.contains(QLatin1String(secret)), qPrintable(entry.first));
                sealed += Sealer::isSealed(value) ? 1 : 0;
            }
            QCOMPARE(sealed, 2);
        }
    };
    check();
    QVERIFY(db->flush());
    for (const char* key : {"Password", "ProxyPassword"})
        QVERIFY(Sealer::isSealed(stored(camera, key)));
    for (const char* key : {"Password", "RecordingTransponderPassword"})
        QVERIFY(Sealer::isSealed(stored(folder, key)));
    db->discardUnstoredChanges();
    check();

    // A writable copy shows what was written to it, and an empty password is none.
    auto* copy = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(camera, -1));
    copy->setUser(QLatin1String("u"), QString());
    copy->proxy().setProxyUser(QLatin1String("joe"), QLatin1String("other"));
    QCOMPARE(copy->password(0), QString());
    QCOMPARE(copy->stringProperty(QLatin1String("ProxyPassword"), QString()), QLatin1String("other"));
    db->endUpdateNode(copy);
    QCOMPARE(text(*db, camera, "Password"), QString());
    QCOMPARE(text(*db, camera, "ProxyPassword"), QLatin1String("other"));
}

void tst_Secrets::samePasswordIsNoChange()
{
    const auto db = openDatabase(m_file);
    const QString id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
    setText(*db, id, "Password", QLatin1String("s3cret"));
    QVERIFY(db->flush());
    QSignalSpy updated(db.get(), SIGNAL(nodeUpdated(ko::NodeID)));
    setText(*db, id, "Password", QLatin1String("s3cret"));
    QCOMPARE(updated.count(), 0);
    QVERIFY(!db->hasUnstoredChanges());
}

void tst_Secrets::movedInTheDatabase()
{
    QString first;
    QString second;
    {
        const auto db = openDatabase(m_file);
        first = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        second = addCamera(*db, QLatin1String("b"), QLatin1String("10.0.0.2"));
        setText(*db, first, "Password", QLatin1String("s3cret"));
        setText(*db, second, "Password", QLatin1String("other"));
    }
    PlainSql(m_file).run(
        QLatin1String("UPDATE properties SET value = (SELECT value FROM properties WHERE node = 1 AND "
                      "key = 'Password') WHERE node = 2 AND key = 'Password'"));
    const auto db = openDatabase(m_file);
    QSignalSpy damaged(db.get(), SIGNAL(storeDamaged(ko::StoreError)));
    QCOMPARE(text(*db, first, "Password"), QLatin1String("s3cret"));
    QCOMPARE(text(*db, second, "Password"), QString());
    QCoreApplication::processEvents();
    QCOMPARE(damaged.count(), 1);
    QCOMPARE(damaged.at(0).at(0).value<StoreError>().kind, StoreError::SealedElsewhere);
}

void tst_Secrets::alteredPasswordIsNone_data()
{
    QTest::addColumn<QString>("altered"); // in SQL, of what is sealed
    QTest::newRow("clear") << QString::fromLatin1("'planted'");
    QTest::newRow("cut off") << QString::fromLatin1("substr(value, 1, length(value) - 1)");
    QTest::newRow("no prefix") << QString::fromLatin1("substr(value, 9)");
    QTest::newRow("longer") << QString::fromLatin1("value || 'x'");
    QTest::newRow("another version") << QString::fromLatin1("replace(value, 'sealed1:', 'sealed2:')");
    QTest::newRow("held") << QString::fromLatin1("'held:' || value");
    QTest::newRow("a number") << QString::fromLatin1("4711");
    QTest::newRow("a flag") << QString::fromLatin1("1");
}

void tst_Secrets::alteredPasswordIsNone()
{
    QFETCH(QString, altered);
    QString id;
    {
        const auto db = openDatabase(m_file);
        id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        auto* device = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(id, -1));
        device->setUser(QLatin1String("u"), QLatin1String("s3cret"));
        device->proxy().setProxyUser(QLatin1String("joe"), QLatin1String("pr0xy"));
        db->endUpdateNode(device);
        db->globalProxy().setSaveProxyPassword(true);
        db->globalProxy().setProxyUser(QLatin1String("g"), QLatin1String("gl0bal"));
    }
    for (const char* where : {"properties SET value = %1 WHERE key IN ('Password', 'ProxyPassword')",
                              "settings SET value = %1 WHERE key = 'proxy.password'"})
        PlainSql(m_file).run(QLatin1String("UPDATE ") + QString::fromLatin1(where).arg(altered));
    const bool otherType = altered == QLatin1String("1");
    if (otherType)
        PlainSql(m_file).run(QLatin1String("UPDATE properties SET type = 1 WHERE key = 'Password'"));
    const QString before = stored(id, "Password");
    {
        const auto db = openDatabase(m_file);
        QSignalSpy damaged(db.get(), SIGNAL(storeDamaged(ko::StoreError)));
        const auto seen = db->node(id).cast<const IPDeviceNode>();
        QCOMPARE(seen->password(0), QString());
        QCOMPARE(seen->proxy().proxyPassword(), QString());
        QCOMPARE(db->globalProxy().proxyPassword(), QString());
        QCoreApplication::processEvents();
        QCOMPARE(damaged.count(), 1);
        QCOMPARE(damaged.at(0).at(0).value<StoreError>().kind, StoreError::NotSealed);
        // A page writes back what it showed: it stays, and is not sealed.
        auto* device = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(id, -1));
        device->setUser(QLatin1String("new user"), QString());
        device->proxy().setProxyAddress(QLatin1String("proxy"), 1);
        db->endUpdateNode(device);
        db->globalProxy().setUseProxy(true);
        QVERIFY(db->flush());
        QVERIFY(otherType || stored(id, "Password") == before);
        QCOMPARE(text(*db, id, "Password"), QString());
        // A new one replaces it.
        setText(*db, id, "Password", QLatin1String("typed"));
    }
    QCOMPARE(text(*openDatabase(m_file), id, "Password"), QLatin1String("typed"));
}

void tst_Secrets::unopenedPasswordStays()
{
    QString id;
    {
        const auto db = openDatabase(m_file);
        id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        auto* device = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(id, -1));
        device->setUser(QLatin1String("u"), QLatin1String("s3cret"));
        device->proxy().setProxyUser(QLatin1String("joe"), QLatin1String("pr0xy"));
        db->endUpdateNode(device);
        db->globalProxy().setProxyUser(QLatin1String("g"), QLatin1String("gl0bal"));
        db->globalProxy().setSaveProxyPassword(true);
    }
    const QString before = stored(id, "Password");
    const QString proxyBefore = stored(id, "ProxyPassword");
    useNewKey("config/other");
    {
        const auto db = openDatabase(m_file);
        QSignalSpy damaged(db.get(), SIGNAL(storeDamaged(ko::StoreError)));
        const auto seen = db->node(id).cast<const IPDeviceNode>();
        QCOMPARE(seen->password(0), QString());
        // A page writes back the user and the password that it showed.
        auto* device = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(id, -1));
        device->setUser(QLatin1String("new user"), QString());
        device->proxy().setProxyAddress(QLatin1String("proxy"), 1);
        db->endUpdateNode(device);
        db->globalProxy().setProxyAddress(QLatin1String("proxy"), 1);
        QVERIFY(db->flush());
        QCOMPARE(stored(id, "User"), QLatin1String("new user"));
        QCOMPARE(stored(id, "ProxyAddress"), QLatin1String("proxy"));
        QCOMPARE(stored(id, "Password"), before);
        QCOMPARE(stored(id, "ProxyPassword"), proxyBefore);
        QCoreApplication::processEvents();
        QCOMPARE(damaged.count(), 1);
    }
    Keyring::ofInstallation().setPlaces(places());
    {
        const auto db = openDatabase(m_file);
        QCOMPARE(text(*db, id, "Password"), QLatin1String("s3cret"));
        QCOMPARE(text(*db, id, "ProxyPassword"), QLatin1String("pr0xy"));
        QCOMPARE(db->globalProxy().proxyPassword(), QLatin1String("gl0bal"));
    }
    // What is typed anew replaces it.
    useNewKey("config/other");
    const auto db = openDatabase(m_file);
    setText(*db, id, "Password", QLatin1String("typed"));
    QCOMPARE(text(*db, id, "Password"), QLatin1String("typed"));
}

void tst_Secrets::globalProxy()
{
    const QString password = QString::fromUtf8("p@ss:/\xC3\xA4");
    const auto storedPassword = [this] {
        return PlainSql(m_file)
            .run(QLatin1String("SELECT value FROM settings WHERE key = 'proxy.password'"))
            .toString();
    };
    auto db = openDatabase(m_file);
    db->globalProxy().setSaveProxyPassword(true);
    db->globalProxy().setProxyUser(QLatin1String("joe"), password);
    QVERIFY(db->flush());
    const QString sealed = storedPassword();
    QVERIFY(Sealer::isSealed(sealed));
    db->globalProxy().setUseProxy(true); // does not seal it anew
    QVERIFY(db->flush());
    QCOMPARE(storedPassword(), sealed);
    db = openDatabase(m_file);
    QCOMPARE(db->globalProxy().proxyPassword(), password);
}

namespace {

/// A database of the version before passwords were sealed, as that version wrote it, with its log beside it.
void writeOldDatabase(const QString& file, const QStringList& passwords)
{
    StoreError error;
    const auto store =
        SqliteStore::open(file, &error, SqliteStore::Check::First, StoreSchema::FirstSealed - 1);
    QVERIFY2(store, qPrintable(error.message));
    Transaction transaction(*store, Transaction::Write);
    for (int i = 0; i < passwords.size(); ++i) {
        store->run("INSERT INTO nodes VALUES (?, ?, 2, 'camera', '', -1, '')",
                   {i + 1, QString::fromLatin1("n%1").arg(i)});
        const char* const key = i % 3 == 0   ? "Password"
                                : i % 3 == 1 ? "ProxyPassword"
                                             : "RecordingTransponderPassword";
        // First another one, which leaves its traces.
        for (const QString& value : {passwords.at(passwords.size() - 1 - i), passwords.at(i)})
            store->run("INSERT OR REPLACE INTO properties VALUES (?, ?, 0, ?)",
                       {i + 1, QLatin1String(key), value});
    }
    store->run("INSERT INTO settings VALUES ('proxy.password', ?), ('proxy.savePassword', '1')",
               {passwords.value(0)});
    transaction.commit();
}

} // namespace

void tst_Secrets::oldDatabaseIsSealed()
{
    const QStringList passwords = knownPasswords();
    writeOldDatabase(m_file, passwords);
    QVERIFY(!filesWith(passwords, path("db")).isEmpty()); // the search finds what is there
    const auto db = openDatabase(m_file);
    QVERIFY(db);
    QCOMPARE(filesWith(passwords, path("db")), QStringList()); // the copy of the old version included
    QCOMPARE(db->globalProxy().proxyPassword(), passwords.at(0));
    for (int i = 0; i < passwords.size(); ++i) {
        const char* const key = i % 3 == 0   ? "Password"
                                : i % 3 == 1 ? "ProxyPassword"
                                             : "RecordingTransponderPassword";
        QCOMPARE(text(*db, QString::fromLatin1("n%1").arg(i), key), passwords.at(i));
    }
    QCOMPARE(PlainSql(m_file)
                 .run(QLatin1String("SELECT count(*) FROM settings WHERE key = 'secrets.toSeal'"))
                 .toInt(),
             0);
    // The copy is of the old version, and leads here again.
    const QStringList copies = QDir(path("db")).entryList({QLatin1String("*.backup-v2-*")});
    QCOMPARE(copies.size(), 1);
    const QString copy = QDir(path("db")).filePath(copies.constFirst());
    QCOMPARE(mode(copy), 0600);
    QCOMPARE(PlainSql(copy).run(QLatin1String("PRAGMA user_version")).toInt(), StoreSchema::FirstSealed - 1);
    const QString restored = path("db/restored.db");
    QVERIFY(QFile::copy(copy, restored));
    QCOMPARE(text(*openDatabase(restored), QLatin1String("n0"), "Password"), passwords.at(0));
}

void tst_Secrets::oldDatabaseWaitsForItsKey()
{
    const QStringList passwords = knownPasswords();
    writeOldDatabase(m_file, passwords);
    InstallationKey::Places nowhere;
    nowhere.keyFile = QLatin1String("/proc/no such folder/key");
    Keyring::ofInstallation().setPlaces(nowhere);
    {
        const auto db = openDatabase(m_file);
        QVERIFY(db);
        QCOMPARE(text(*db, QLatin1String("n0"), "Password"), passwords.at(0));
    }
    Keyring::ofInstallation().setPlaces(places());
    const auto db = openDatabase(m_file);
    QCOMPARE(text(*db, QLatin1String("n0"), "Password"), passwords.at(0));
    QVERIFY(Sealer::isSealed(stored(QLatin1String("n0"), "Password")));
    QFile::remove(
        QDir(path("db")).filePath(QDir(path("db")).entryList({QLatin1String("*.backup-v2-*")}).value(0)));
    QCOMPARE(filesWith(passwords, path("db")), QStringList());
}

/// One of an older version, which may have passwords in the clear, opened beside another one.
void tst_Secrets::databasesKeepTheirRules()
{
    QString id;
    {
        const auto db = openDatabase(m_file);
        id = addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
        setText(*db, id, "Password", QLatin1String("s3cret"));
    }
    PlainSql(m_file).run(QLatin1String("UPDATE properties SET value = 'put there' WHERE key = 'Password'"));
    const QStringList passwords = knownPasswords();
    writeOldDatabase(path("db/old.db"), passwords);
    InstallationKey::Places nowhere;
    nowhere.keyFile = QLatin1String("/proc/no such folder/key");
    Keyring::ofInstallation().setPlaces(nowhere);
    const auto db = openDatabase(m_file);
    QSignalSpy damaged(db.get(), SIGNAL(storeDamaged(ko::StoreError)));
    const auto old = openDatabase(path("db/old.db"));
    QCOMPARE(text(*old, QLatin1String("n0"), "Password"), passwords.at(0));
    QCOMPARE(text(*db, id, "Password"), QString());
    QCoreApplication::processEvents();
    QCOMPARE(damaged.count(), 1);
}

void tst_Secrets::salvagedOldDatabaseIsSealed()
{
    const QStringList passwords = knownPasswords().mid(0, 6);
    writeOldDatabase(m_file, passwords);
    const Salvage salvage(m_file);
    QVERIFY2(!salvage.error(), qPrintable(salvage.error().detail));
    QCOMPARE(text(*openDatabase(salvage.file()), QLatin1String("n0"), "Password"), passwords.at(0));
    QVERIFY(QDir(m_folder->path()).mkdir(QLatin1String("apart")));
    QVERIFY(QFile::rename(salvage.file(), path("apart/nodes.db")));
    QCOMPARE(filesWith(passwords, path("apart")), QStringList());
}

void tst_Secrets::filesArePrivateWhateverTheUmask()
{
    for (const mode_t mask : {mode_t(0), mode_t(0777)}) {
        const QString folder = path("db/") + QString::number(mask);
        QVERIFY(QDir().mkpath(folder));
        const QString file = folder + QLatin1String("/nodes.db");
        const mode_t old = ::umask(mask);
        const auto db = openDatabase(file);
        if (db) {
            addCamera(*db, QLatin1String("a"), QLatin1String("10.0.0.1"));
            db->flush();
        }
        StoreError error;
        const QString backup = StoreBackup::add(file, &error);
        const auto exported =
            CameraSurvey::exportCameras(folder + QLatin1String("/out.csv"), CameraSurvey::Passwords::Write);
        ::umask(old);
        QVERIFY(db);
        QVERIFY2(!backup.isEmpty(), qPrintable(error.detail));
        QCOMPARE(exported.error, QString());
        for (const QString& name : {file, file + QLatin1String("-wal"), file + QLatin1String("-shm"), backup,
                                    folder + QLatin1String("/out.csv")})
            QVERIFY2(mode(name) == 0600,
                     qPrintable(QString::fromLatin1("%1: %2").arg(name).arg(mode(name), 0, 8)));
        QCOMPARE(mode(StoreBackup::folderOf(file)), 0700);
    }
}

void tst_Secrets::everyPasswordComesBack()
{
    const QStringList passwords = knownPasswords();
    auto db = openDatabase(m_file);
    for (int i = 0; i < passwords.size(); ++i) {
        const QString id = addCamera(*db, QString::number(i), QString::fromLatin1("10.0.0.%1").arg(i));
        setText(*db, id, "Password", passwords.at(i));
    }
    QCOMPARE(CameraSurvey::exportCameras(path("out.csv"), CameraSurvey::Passwords::Write).written, 100);
    db.reset();
    db = openDatabase(path("db/other.db"));
    const auto imported = CameraSurvey::importCameras(path("out.csv"));
    QCOMPARE(imported.added, 100);
    const QStringList ids = db->nodeIdList(IPDeviceType);
    for (const QString& id : ids) {
        const auto device = db->node(id).cast<const IPDeviceNode>();
        QCOMPARE(device->password(0), passwords.at(device->name().toInt()));
    }
}

void tst_Secrets::passwordsAreFoundNowhere()
{
    const QStringList passwords = knownPasswords();
    {
        const auto db = openDatabase(m_file);
        const ProgramLog log(db->logStore());
        for (int i = 0; i < passwords.size(); ++i) {
            const QString id = addCamera(*db, QString::number(i), QString::fromLatin1("10.0.0.%1").arg(i));
            auto* device = dynamic_cast<IPDeviceNode*>(db->beginUpdateNode(id, -1));
            device->setUser(QLatin1String("u"), passwords.at(i));
            device->proxy().setProxyUser(QLatin1String("joe"), passwords.at(i));
            device->setStringProperty(QLatin1String("RecordingTransponderPassword"), passwords.at(i));
            db->endUpdateNode(device);
            db->globalProxy().setSaveProxyPassword(true);
            db->globalProxy().setProxyUser(QLatin1String("joe"), passwords.at(i));
            const QString encoded = QString::fromLatin1(QUrl::toPercentEncoding(passwords.at(i)));
            LogQt::line(LogQt::Error,
                        QString::fromLatin1("Opening rtsp://u:%1@10.0.0.1/ failed").arg(encoded));
            LogQt::line(LogQt::Error, QString::fromLatin1("http://h/?user=u&password=%1&x=1").arg(encoded));
            QVERIFY(db->flush());
        }
        StoreError error;
        QVERIFY(!StoreBackup::add(m_file, &error).isEmpty());
        QCOMPARE(CameraSurvey::exportCameras(path("db/out.csv"), CameraSurvey::Passwords::LeaveOut).written,
                 100);
        QVERIFY(QFile::exists(m_file + QLatin1String("-wal")));
        QCOMPARE(filesWith(passwords, path("db")), QStringList());
        QVERIFY(log.count() >= 200);
    }
    QCOMPARE(filesWith(passwords, path("db")), QStringList());
    // The same search finds them where they are.
    const auto db = openDatabase(m_file);
    CameraSurvey::exportCameras(path("db/out.csv"), CameraSurvey::Passwords::Write);
    QVERIFY(filesWith(passwords, path("db")).size() >= 90);
}

KO_TEST_MAIN(tst_Secrets)
#include "tst_secrets.moc"
