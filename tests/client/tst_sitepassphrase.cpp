#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TerminalSession.h"
#include "support/TestMain.h"

#include "../host/StoreTesting.h"

#include "KnownSites.h"
#include "MainWindow.h"
#include "SharingDialog.h"
#include "SharingStatus.h"
#include "SiteKeyPrompt.h"
#include "SiteOpening.h"
#include "SitePassphraseDialog.h"
#include "SiteSharing.h"
#include "ko/IPDeviceNode.h"
#include "secrets/Keyring.h"
#include "secrets/SiteKeyring.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteKeyTable.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTimer>

using namespace ko;
using namespace testsupport;

namespace {

const QString phrase = QStringLiteral("seven brown horses");
const QString newPhrase = QStringLiteral("nine grey elephants");

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

QProcessEnvironment environmentOf(const QString& home)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        environment.insert(QLatin1String(name), home + QLatin1Char('/') + QLatin1String(name));
    return environment;
}

void start(QProcess* process, const QString& home, const QStringList& arguments, const QString& passphrase)
{
    QProcessEnvironment environment = environmentOf(home);
    if (!passphrase.isEmpty())
        environment.insert(QStringLiteral("KO_SITE_PASSPHRASE"), passphrase);
    process->setProcessEnvironment(environment);
    // Without a terminal, whatever starts the test.
    process->start(QStringLiteral("setsid"),
                   QStringList{QStringLiteral("--wait"), QStringLiteral(KO_KOCLIENT)} + arguments);
}

Outcome run(const QString& home, const QStringList& arguments, const QString& passphrase = QString())
{
    QProcess process;
    start(&process, home, arguments, passphrase);
    if (!process.waitForFinished(2 * Patience))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString password(const HostNodeDB& db, const QString& id)
{
    const auto node = db.node(id).cast<const IPDeviceNode>();
    return node.null() ? QStringLiteral("(no node)") : node->password(0);
}

/// A window on a copy of a site, as the program has it.
struct Desk
{
    explicit Desk(const QString& address)
        : db(openDatabase(SiteOpening(address, SiteOpening::Way::Line).file()))
        , sharing(*db, address)
        , window(*db)
        , status(*db, sharing)
    {
        SiteKeyPrompt::watch(*db, sharing, &window);
        window.show();
    }

    bool isUpToDate() const { return sharing.state().kind == SharingState::UpToDate; }

    const std::unique_ptr<HostNodeDB> db;
    SiteSharing sharing;
    MainWindow window;
    SharingStatus status;
};

/// What the next window is given, as a user does it; it stays as long as \a isLeft says.
void fillIn(QDialog* dialog, const char* field, const QString& text)
{
    auto* edit = child<QLineEdit>(dialog, field);
    edit->clear();
    QTest::keyClicks(edit, text);
}

void confirm(QDialog* dialog)
{
    QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok), Qt::LeftButton);
}

} // namespace

/// The passphrase of a site: what users see of it, and who reads which password, with a real server.
class tst_SitePassphrase : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void desksReadEachOthersPasswords();
    void withoutThePassphraseNothingIsSent();
    void wrongOrNoPassphrase();
    void typedAtTheTerminal();
    void viewerReadsThem();
    void nobodyElseFindsThem();
    void deskIsAskedOnce();
    void firstKeyIsMadeInAWindow();
    void newKeyIsAskedForAndSealsAll();
    void keyIsTakenWhileItSealsAnew();
    void killedWhileItSealsAnew();

private:
    QString home(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }
    QString writeList(const char* name, int from, int count);
    QString makeFile(const char* owner, int cameras);
    QStringList exported(const char* name, const QString& url, const QString& passphrase);
    SiteKeyOutcome perform(SiteKeyTask::Kind kind, const QString& passphrase,
                           const QString& fresh = QString());
    int sealedWithPresentKey();

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
    QString m_url;
    int m_count = 0;
};

void tst_SitePassphrase::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void tst_SitePassphrase::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings().clear();
    m_database = QStringLiteral("phrase%1").arg(++m_count);
    m_url = m_server.url(m_database);
    QVERIFY2(m_server.createDatabase(m_database), qPrintable(m_server.error()));
    InstallationKey::Places places;
    places.keyFile = path("here/installation.key");
    Keyring::ofInstallation().setPlaces(places);
    SiteKeyring::ofProcess().setFolder(path("here/sites"));
}

QString tst_SitePassphrase::writeList(const char* name, int from, int count)
{
    QFile list(path(name));
    if (!list.open(QIODevice::WriteOnly))
        return QString();
    list.write("name,address,user,password\n");
    for (int i = from; i < from + count; ++i)
        list.write(QStringLiteral("Camera %1,10.0.%2.%3,viewer,s3cret-of-%1\n")
                       .arg(i)
                       .arg(i / 250)
                       .arg(i % 250 + 1)
                       .toUtf8());
    return list.fileName();
}

/// With passwords, sealed by the installation of \a owner.
QString tst_SitePassphrase::makeFile(const char* owner, int cameras)
{
    const QString file = path("before.kodb");
    const Outcome made = run(home(owner), {QStringLiteral("--db"), file, QStringLiteral("--import"),
                                           writeList("first.csv", 0, cameras)});
    return made.exitCode == 0 ? file : made.errors;
}

/// The passwords that a desk reads.
QStringList tst_SitePassphrase::exported(const char* name, const QString& url, const QString& passphrase)
{
    const QString file = path("exported.csv");
    QFile::remove(file);
    const Outcome done =
        run(home(name), {QStringLiteral("--db"), url, QStringLiteral("--export"), file}, passphrase);
    QFile list(file);
    if (done.exitCode != 0 || !list.open(QIODevice::ReadOnly))
        return {QString::number(done.exitCode), done.errors};
    QStringList passwords;
    const QRegularExpression password(QStringLiteral("s3cret-of-[0-9]+"));
    auto found = password.globalMatch(QString::fromUtf8(list.readAll()));
    while (found.hasNext())
        passwords.append(found.next().captured());
    return passwords;
}

SiteKeyOutcome tst_SitePassphrase::perform(SiteKeyTask::Kind kind, const QString& passphrase,
                                           const QString& fresh)
{
    SiteConnection connection;
    SiteKeyOutcome outcome;
    outcome.failure = connection.open(m_url);
    return ko::perform({sql(QStringLiteral("SELECT id FROM ko.site")), kind, passphrase, fresh, {1, 8192}},
                       connection);
}

/// Of the passwords at the site those that open with its key alone, if each is what it was.
int tst_SitePassphrase::sealedWithPresentKey()
{
    const Sealer sealer =
        SiteKeyring::ofProcess().keys(sql(QStringLiteral("SELECT id FROM ko.site")))->sealer();
    int count = 0;
    const QStringList rows =
        sql(QStringLiteral("SELECT n.id, n.name, p.value->>1 FROM ko.nodes n"
                           " JOIN ko.properties p ON p.node = n.place AND p.key = 'Password'"))
            .split(QLatin1Char('\n'));
    for (const QString& row : rows) {
        const QStringList columns = row.split(QLatin1Char('|'));
        const QString expected = QStringLiteral("s3cret-of-") + columns.value(1).section(QLatin1Char(' '), 1);
        count +=
            sealer.open(columns.value(2), columns.value(0), QStringLiteral("Password")) == expected ? 1 : 0;
    }
    return count;
}

void tst_SitePassphrase::desksReadEachOthersPasswords()
{
    const QString file = makeFile("sharer", 30);
    const Outcome shared = run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase);
    QVERIFY2(shared.exitCode == 0 && shared.output.contains(QLatin1String("the same there as here")),
             qPrintable(shared.errors + file));
    QVERIFY(perform(SiteKeyTask::Open, phrase).isHere);
    QCOMPARE(sealedWithPresentKey(), 30);
    QCOMPARE(exported("other", m_url, phrase).size(), 30);
    QCOMPARE(exported("other", m_url, QString()).size(), 30); // it was asked once

    // What one desk gives, all read; so does the one whose file it was, also in the copy that is a file.
    const Outcome added = run(home("other"), {QStringLiteral("--db"), m_url, QStringLiteral("--import"),
                                              writeList("second.csv", 30, 20)});
    QVERIFY2(added.exitCode == 0, qPrintable(added.errors));
    QCOMPARE(sealedWithPresentKey(), 50);
    QCOMPARE(exported("sharer", m_url, QString()).size(), 50);
    QCOMPARE(exported("sharer", file, QString()).size(), 30);
    QCOMPARE(exported("third", m_url, phrase).size(), 50);

    // As do backups of a copy, also in a file that is none.
    const QString backup = path("backup.kodb");
    QCOMPARE(run(home("third"), {QStringLiteral("--db"), m_url, QStringLiteral("--backup"), backup}).exitCode,
             0);
    QCOMPARE(exported("third", backup, QString()).size(), 50);
    const QString restored = path("restored.kodb");
    QCOMPARE(
        run(home("third"), {QStringLiteral("--db"), restored, QStringLiteral("--restore"), backup}).exitCode,
        0);
    QCOMPARE(exported("third", restored, QString()).size(), 50);
}

void tst_SitePassphrase::withoutThePassphraseNothingIsSent()
{
    const QString file = makeFile("sharer", 3);
    for (const QString& given : {QString(), QStringLiteral("short")}) {
        const Outcome refused = run(home("sharer"), {QStringLiteral("--share"), file, m_url}, given);
        QCOMPARE(refused.exitCode, 2);
        QVERIFY2(refused.errors.contains(QLatin1String("Nothing was sent")), qPrintable(refused.errors));
        QVERIFY2(given.isEmpty() ? refused.errors.contains(QLatin1String("KO_SITE_PASSPHRASE"))
                                 : refused.errors.contains(QLatin1String("at least 12 character")),
                 qPrintable(refused.errors));
        QCOMPARE(sql(QStringLiteral("SELECT (SELECT number FROM ko.site), (SELECT count(*) FROM ko.keys)")),
                 QStringLiteral("0|0"));
    }
    const Outcome shared = run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase);
    QVERIFY2(shared.exitCode == 0, qPrintable(shared.errors));
    QVERIFY(perform(SiteKeyTask::Open, phrase).isHere);
    QCOMPARE(sealedWithPresentKey(), 3);
}

void tst_SitePassphrase::wrongOrNoPassphrase()
{
    const QString file = makeFile("sharer", 3);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    const QStringList wrong = exported("other", m_url, QStringLiteral("eight brown horses"));
    QCOMPARE(wrong.value(0), QStringLiteral("2"));
    QVERIFY2(wrong.value(1).contains(QLatin1String("not the passphrase")), qPrintable(wrong.value(1)));
    const QStringList none = exported("other", m_url, QString());
    QCOMPARE(none.value(0), QStringLiteral("2"));
    QVERIFY2(none.value(1).contains(QLatin1String("KO_SITE_PASSPHRASE")), qPrintable(none.value(1)));
    const Outcome without =
        run(home("other"), {QStringLiteral("--db"), m_url, QStringLiteral("--without-passwords"),
                            QStringLiteral("--export"), path("list.csv")});
    QVERIFY2(without.exitCode == 0 && !without.errors.contains(QLatin1String("passphrase")),
             qPrintable(without.errors));
    const Outcome import = run(home("other"), {QStringLiteral("--db"), m_url, QStringLiteral("--import"),
                                               writeList("second.csv", 3, 2)});
    QCOMPARE(import.exitCode, 2);
    QVERIFY2(import.errors.contains(QLatin1String("Nothing was imported")), qPrintable(import.errors));
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.nodes WHERE name LIKE 'Camera%'")),
             QStringLiteral("3"));
}

void tst_SitePassphrase::typedAtTheTerminal()
{
    const QString program = QStringLiteral(KO_KOCLIENT);
    const QByteArray typed = phrase.toUtf8() + '\n';
    const QString file = makeFile("sharer", 3);
    TerminalSession sharer(program, {QStringLiteral("--share"), file, m_url}, environmentOf(home("sharer")));
    QVERIFY(sharer.waitFor("A new passphrase for the site") && !sharer.isEchoing());
    sharer.type(typed);
    QVERIFY(sharer.waitFor("Again:"));
    sharer.type(newPhrase.toUtf8() + '\n');
    QVERIFY(sharer.waitFor("The two passphrases are not the same.") &&
            sharer.waitFor("A new passphrase for the site"));
    sharer.type(typed);
    QVERIFY(sharer.waitFor("Again:"));
    sharer.type(typed);
    QCOMPARE(sharer.exitCode(), 0);
    QVERIFY2(!sharer.shown().contains("horses") && !sharer.shown().contains("elephants") &&
                 !sharer.shown().contains("at least"),
             sharer.shown().constData());

    const QString list = path("list.csv");
    const QStringList exporting = {QStringLiteral("--db"), m_url, QStringLiteral("--export"), list};
    TerminalSession left(program, exporting, environmentOf(home("other")));
    QVERIFY(left.waitFor("The passphrase of the site") && !left.isEchoing());
    left.type("seven\x03"); // Ctrl+C
    QVERIFY(left.waitFor("is not given") && left.isEchoing());
    QCOMPARE(left.exitCode(), 2);
    QVERIFY(!QFile::exists(list));

    TerminalSession other(program, exporting, environmentOf(home("other")));
    QVERIFY(other.waitFor("The passphrase of the site"));
    other.type(newPhrase.toUtf8() + '\n');
    QVERIFY(other.waitFor("That is not the passphrase") && other.waitFor("The passphrase of the site"));
    other.type(typed);
    QCOMPARE(other.exitCode(), 0);
    QVERIFY2(!other.shown().contains("horses"), other.shown().constData());
    QCOMPARE(exported("other", m_url, QString()).size(), 3);
}

void tst_SitePassphrase::viewerReadsThem()
{
    const QString file = makeFile("sharer", 3);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    const QString name = QStringLiteral("viewer%1").arg(m_count);
    sql(QStringLiteral("CREATE ROLE %1 LOGIN IN ROLE ko_viewer").arg(name));
    QCOMPARE(exported("other", m_server.url(m_database, name), phrase).size(), 3);
}

/// Whoever has the server, its backup, or the files of a desk without its keychain.
void tst_SitePassphrase::nobodyElseFindsThem()
{
    const QString file = makeFile("sharer", 20);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    QCOMPARE(exported("other", m_url, phrase).size(), 20);
    QVERIFY(perform(SiteKeyTask::ChangeKey, phrase, newPhrase).isHere);
    SiteConnection connection;
    QVERIFY(!connection.open(m_url));
    SiteKeyRecord record;
    QVERIFY(!SiteKeyTable::fetch(connection, &record));
    const QString site = sql(QStringLiteral("SELECT id FROM ko.site"));
    QByteArray key;
    QVERIFY(record.envelope.open(newPhrase, site, &key) == KeyEnvelope::Opened::Good);
    const QByteArray former = KeyEnvelope::fromUnderKey(record.former.value(0), key, site);
    QCOMPARE(former.size(), int(Sealer::KeySize));

    QVector<QByteArray> sought;
    for (const QString& text : {QStringLiteral("s3cret-of-"), phrase, newPhrase}) {
        const QByteArray wide(reinterpret_cast<const char*>(text.utf16()), int(text.size()) * 2);
        for (const QByteArray& bytes : {text.toUtf8(), wide})
            sought << bytes << bytes.toHex() << bytes.toBase64().left(bytes.size() / 3 * 4);
    }
    for (const QByteArray& bytes : {key, former})
        sought << bytes << bytes.toHex() << bytes.toBase64();

    const QByteArray dump = m_server.dump(m_database);
    QVERIFY2(dump.contains("Camera 19") && dump.contains("sealed1:"), qPrintable(m_server.error()));
    QVector<QByteArray> places = {dump};
    QStringList names = {QStringLiteral("the dump")};
    QDirIterator files(m_folder->path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    int databases = 0;
    while (files.hasNext()) {
        QFile each(files.next());
        if (each.fileName().endsWith(QLatin1String(".csv")))
            continue; // where they came from
        QVERIFY(each.open(QIODevice::ReadOnly));
        places.append(each.readAll());
        names.append(each.fileName());
        databases +=
            each.fileName().contains(QLatin1String(".kodb")) && places.constLast().contains("sealed1:");
    }
    QVERIFY2(databases >= 2, qPrintable(names.join(QLatin1Char(' '))));
    for (int i = 0; i < places.size(); ++i) {
        for (const QByteArray& bytes : std::as_const(sought))
            QVERIFY2(!places.at(i).contains(bytes),
                     qPrintable(names.at(i) + QLatin1Char(' ') + QString::fromLatin1(bytes.toHex())));
    }
    QVERIFY(QByteArray("x s3cret-of-1 x").contains(sought.at(0))); // it would be found
}

/// In a window: wrong, then Cancel, then good, and not again.
void tst_SitePassphrase::deskIsAskedOnce()
{
    const QString file = makeFile("sharer", 3);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    QString said;
    {
        const ModalAnswer cancel([&said](QDialog* dialog) {
            fillIn(dialog, "presentLineEdit", QStringLiteral("eight brown horses"));
            confirm(dialog);
            auto* result = child<QLabel>(dialog, "resultLabel");
            KO_TRY_VERIFY(!result->text().isEmpty() && result->text() != QLatin1String("One moment..."));
            said = result->text();
            QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel),
                              Qt::LeftButton);
        });
        Desk desk(m_url);
        KO_TRY_VERIFY(cancel.fired() && !said.isEmpty());
        QCOMPARE(said, QStringLiteral("That is not the passphrase of the site."));
        const QString id = desk.db->nodeIdList(IPDeviceType).value(0);
        KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected, passphrase needed..."));
        SharingDialog sharing(*desk.db, desk.sharing, &desk.window);
        sharing.show();
        QVERIFY(
            child<QLabel>(&sharing, "stateLabel")->text().contains(QLatin1String("does not have the key")));
        const ModalAnswer again([](QDialog* dialog) {
            child<QLineEdit>(dialog, "presentLineEdit");
            dialog->reject();
        });
        child<QPushButton>(&sharing, "passphraseButton")->click();
        QVERIFY(again.fired());
        sharing.close();
        QString told;
        QStringList warnings;
        QTimer user;
        connect(&user, &QTimer::timeout, &user, [&] {
            auto* dialog = qobject_cast<SitePassphraseDialog*>(QApplication::activeModalWidget());
            const auto* box = desk.window.findChild<QMessageBox*>(QStringLiteral("storeFailedBox"));
            auto* front = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (front && front != box) {
                warnings.append(front->text());
                front->reject();
            }
            if (!dialog || !box || !told.isEmpty())
                return;
            told = box->text();
            fillIn(dialog, "presentLineEdit", phrase);
            QTest::keyClick(child<QLineEdit>(dialog, "presentLineEdit"), Qt::Key_Return);
        });
        user.start(20);
        QCOMPARE(password(*desk.db, id), QString());
        QVERIFY(!desk.db->canStorePasswords());

        // A password that is given waits, and is stored when the key is there.
        setText(*desk.db, id, "Password", QStringLiteral("given meanwhile"));
        KO_TRY_VERIFY(!told.isEmpty());
        QVERIFY2(warnings.size() == 1 && warnings.at(0).contains(QLatin1String("cannot be read")),
                 qPrintable(warnings.join(QLatin1Char(' '))));
        QVERIFY2(told.contains(QLatin1String("passphrase")), qPrintable(told));
        KO_TRY_VERIFY(!desk.db->hasUnstoredChanges());
        KO_TRY_VERIFY(!QApplication::activeModalWidget());
        KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected"));
        QVERIFY(desk.db->canStorePasswords());
        QCOMPARE(password(*desk.db, id), QStringLiteral("given meanwhile"));
        QVERIFY(password(*desk.db, desk.db->nodeIdList(IPDeviceType).value(1))
                    .startsWith(QLatin1String("s3cret-of-")));
        KO_TRY_COMPARE(sealedWithPresentKey(), 2);
    }
    SiteKeyring::ofProcess().setFolder(path("here/sites")); // as after a start
    const ModalAnswer none([](QDialog* dialog) { dialog->reject(); });
    Desk again(m_url);
    KO_TRY_VERIFY(again.isUpToDate() && again.sharing.key().isHere);
    QVERIFY(!none.fired());
    QVERIFY(!password(*again.db, again.db->nodeIdList(IPDeviceType).value(2)).isEmpty());
}

/// At a site with passwords of a time before it had one: they get it, too.
void tst_SitePassphrase::firstKeyIsMadeInAWindow()
{
    SiteConnection connection;
    QVERIFY(!connection.open(m_url));
    QVERIFY(!connection.prepareSite());
    const ModalAnswer answer([](QDialog* dialog) {
        QVERIFY(!dialog->findChild<QLineEdit*>(QStringLiteral("presentLineEdit")));
        fillIn(dialog, "freshLineEdit", phrase);
        fillIn(dialog, "againLineEdit", newPhrase);
        confirm(dialog);
        QCOMPARE(child<QLabel>(dialog, "resultLabel")->text(),
                 QStringLiteral("The two new passphrases are not the same."));
        fillIn(dialog, "againLineEdit", phrase);
        confirm(dialog);
        KO_TRY_VERIFY(!dialog->isVisible());
    });
    Desk desk(m_url);
    KO_TRY_VERIFY(answer.fired() && desk.sharing.key().isHere && desk.isUpToDate());
    const QString id = addCamera(*desk.db, QStringLiteral("Camera 7"), QStringLiteral("10.0.0.7"));
    setText(*desk.db, id, "Password", QStringLiteral("s3cret-of-7"));
    KO_TRY_COMPARE(sealedWithPresentKey(), 1);
    QCOMPARE(exported("other", m_url, phrase), QStringList(QStringLiteral("s3cret-of-7")));
}

void tst_SitePassphrase::newKeyIsAskedForAndSealsAll()
{
    const int count = 250; // more than is sealed at once
    const QString file = makeFile("sharer", count);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    QCOMPARE(exported("other", m_url, phrase).size(), count);
    QVERIFY(perform(SiteKeyTask::Open, phrase).isHere);
    Desk desk(m_url);
    KO_TRY_VERIFY(desk.isUpToDate() && desk.sharing.key().isHere);
    SharingDialog sharing(*desk.db, desk.sharing, &desk.window);
    sharing.show();
    const ModalAnswer answer([](QDialog* dialog) {
        fillIn(dialog, "presentLineEdit", phrase);
        fillIn(dialog, "freshLineEdit", newPhrase);
        fillIn(dialog, "againLineEdit", newPhrase);
        child<QCheckBox>(dialog, "newKeyCheckBox")->click();
        confirm(dialog);
        KO_TRY_VERIFY(!dialog->isVisible());
    });
    child<QPushButton>(&sharing, "passphraseButton")->click();
    QVERIFY(answer.fired());
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.keys")), QStringLiteral("2"));
    KO_TRY_COMPARE(sealedWithPresentKey(), count);
    KO_TRY_COMPARE(
        sql(QStringLiteral("SELECT count(DISTINCT id) FROM ko.change_sets WHERE purpose = 'reseal'")),
        QStringLiteral("1"));
    QVERIFY(password(*desk.db, desk.db->nodeIdList(IPDeviceType).value(5))
                .startsWith(QLatin1String("s3cret-of-")));

    // The other desk has the key of before, and neither reads nor stores passwords until it is asked.
    const QStringList stale = exported("other", m_url, QString());
    QCOMPARE(stale.value(0), QStringLiteral("2"));
    QCOMPARE(exported("other", m_url, phrase).value(0), QStringLiteral("2"));
    QCOMPARE(exported("other", m_url, newPhrase).size(), count);
}

/// The site tells of its new key before the window is closed in which it was made.
void tst_SitePassphrase::keyIsTakenWhileItSealsAnew()
{
    const int count = 250;
    const QString file = makeFile("sharer", count);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    QVERIFY(perform(SiteKeyTask::Open, phrase).isHere);
    const auto db = openDatabase(SiteOpening(m_url, SiteOpening::Way::Line).file());
    SiteSharing sharing(*db, m_url);
    KO_TRY_VERIFY(sharing.state().kind == SharingState::UpToDate && sharing.key().isHere);
    SiteConnection slow;
    QByteArray nothing;
    QVERIFY(!slow.open(m_url) && !slow.value("BEGIN", {}, &nothing) &&
            !slow.value("LOCK TABLE ko.change_sets IN SHARE MODE", {}, &nothing));
    QVERIFY(perform(SiteKeyTask::ChangeKey, phrase, newPhrase).isHere);
    sql(QStringLiteral("NOTIFY ko, 'key'")); // the first one may have come before the key
    KO_TRY_VERIFY(sharing.state().kind == SharingState::CatchingUp);
    sharing.takeNewKey();
    QVERIFY(!slow.value("COMMIT", {}, &nothing));
    KO_TRY_COMPARE(sealedWithPresentKey(), count);
    QCOMPARE(sql(QStringLiteral("SELECT count(DISTINCT id) FROM ko.change_sets WHERE purpose = 'reseal'")),
             QStringLiteral("1"));
}

/// Whatever is left is sealed by the next start; no password is lost, and no change comes twice.
void tst_SitePassphrase::killedWhileItSealsAnew()
{
    const int count = 1500;
    const QString file = makeFile("sharer", count);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file, m_url}, phrase).exitCode, 0);
    QCOMPARE(exported("other", m_url, phrase).size(), count);
    QVERIFY(perform(SiteKeyTask::ChangeKey, phrase, newPhrase).isHere);
    QCOMPARE(sealedWithPresentKey(), 0);
    int inTheMiddle = 0;
    double patience = 200; // ms; longer by less than the sealing takes, on a fast machine and on a slow one
    for (; patience < 60000 && sealedWithPresentKey() < count; patience *= 1.15) {
        QProcess process;
        QProcessEnvironment environment = environmentOf(home("other"));
        environment.insert(QStringLiteral("KO_SITE_PASSPHRASE"), newPhrase);
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KO_KOCLIENT), {QStringLiteral("--db"), m_url});
        QVERIFY(process.waitForStarted());
        process.waitForFinished(int(patience));
        process.kill();
        QVERIFY(process.waitForFinished());
        const int sealed = sealedWithPresentKey();
        inTheMiddle += sealed > 0 && sealed < count ? 1 : 0;
    }
    QVERIFY2(inTheMiddle > 0, "never in the middle");
    QCOMPARE(sealedWithPresentKey(), count);
    QCOMPARE(exported("other", m_url, QString()).size(), count);
    QCOMPARE(
        sql(QStringLiteral("SELECT count(*) FROM (SELECT set_id, line FROM ko.lines WHERE line IS NOT NULL"
                           " GROUP BY 1, 2 HAVING count(*) > 1) twice")),
        QStringLiteral("0"));
}

KO_TEST_MAIN(tst_SitePassphrase)
#include "tst_sitepassphrase.moc"
