#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/TestMain.h"

#include "../sharing/DeskTesting.h"

#include "ConnectDialog.h"
#include "KnownSites.h"
#include "MainWindow.h"
#include "NodeListView.h"
#include "SharingStatus.h"
#include "SiteCatchUp.h"
#include "SiteOpening.h"
#include "SiteSharing.h"
#include "sharing/SiteAddress.h"
#include "sharing/SiteConnection.h"
#include "sharing/SiteCopy.h"
#include "sharing/SitePresence.h"
#include "sharing/SiteVerification.h"
#include "store/LogThinning.h"
#include "store/SqliteFile.h"

#include <QAction>
#include <QCheckBox>
#include <QDateTime>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>

using namespace ko;
using namespace testsupport;

namespace {

struct Outcome
{
    int exitCode = -1;
    QString output;
    QString errors;
};

/// The program, for a user whose files are in \a home.
void start(QProcess* process, const QString& home, const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_CACHE_HOME"})
        environment.insert(QLatin1String(name), home + QLatin1Char('/') + QLatin1String(name));
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral(KO_KOCLIENT), arguments);
}

Outcome run(const QString& home, const QStringList& arguments)
{
    QProcess process;
    start(&process, home, arguments);
    if (!process.waitForFinished(2 * Patience))
        return {};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
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
        window.show();
    }

    bool isUpToDate() const { return sharing.state().kind == SharingState::UpToDate; }

    const std::unique_ptr<HostNodeDB> db;
    SiteSharing sharing;
    MainWindow window;
    SharingStatus status;
};

} // namespace

/// What a user sees of a shared database, with a real server.
class tst_SharedSite : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void bringsAFileAndItsHistory();
    void goesOnAfterKills();
    void refusesWhatCannotBeBrought();
    void copyWritesNothingOfItsOwn();
    void addressesOfOneSiteShareACopy();
    void startsAndGoesOnWithoutTheServer();
    void viewerIsToldBeforeADialogOpens();
    void editorsAtOtherDesksAreNamed();
    void otherSiteAtTheSameAddressGetsNothing();
    void whatCouldNotBeMadeIsKeptUntilDismissed();
    void copyThatIsGivenUpStays();
    void connectDialogTriesAnAddress();
    void historyIsKeptWhole();

private:
    QString home(const char* name) const { return m_folder->filePath(QLatin1String(name)); }
    QString makeFile(int cameras);
    void share(const QString& file);
    QString sql(const QString& statement) { return m_server.run(m_database, statement); }
    void verify(const QString& file);

    PostgresServer m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_database;
    QString m_url;
    int m_count = 0;
};

void tst_SharedSite::initTestCase()
{
    QVERIFY2(m_server.start(), qPrintable(m_server.error()));
}

void tst_SharedSite::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QSettings().clear();
    m_database = QStringLiteral("client%1").arg(++m_count);
    m_url = m_server.url(m_database);
    QVERIFY2(m_server.createDatabase(m_database), qPrintable(m_server.error()));
}

/// With cameras in change sets of their own, edits, a removal, relations and settings.
QString tst_SharedSite::makeFile(int cameras)
{
    const QString file = m_folder->filePath(QStringLiteral("before.kodb"));
    const auto db = openDatabase(file);
    std::mt19937 random{unsigned(cameras)};
    for (int i = 0; i < cameras; ++i) {
        addCamera(*db, QStringLiteral("Camera %1").arg(i), QStringLiteral("10.0.0.%1").arg(i));
        if (i % 10 == 0)
            db->flush();
    }
    for (int i = 0; i < 100; ++i) {
        randomEdit(*db, random);
        QTest::qWait(1); // what is done in one turn is one change set
    }
    return file;
}

void tst_SharedSite::share(const QString& file)
{
    const Outcome done = run(home("sharer"), {QStringLiteral("--share"), file, m_url});
    QVERIFY2(done.exitCode == 0, qPrintable(done.errors));
}

void tst_SharedSite::verify(const QString& file)
{
    StoreError error;
    const auto log = SharedLog::open(file, describe, &error);
    QVERIFY(log);
    SiteConnection connection;
    QVERIFY(!connection.open(m_url));
    SiteVerification verification(*log, connection, [](qint64) { return true; });
    QVERIFY(verification.run() == SiteVerification::Verdict::Same);
    QVERIFY(verification.rows() > 0);
}

void tst_SharedSite::bringsAFileAndItsHistory()
{
    const QString file = makeFile(50);
    const QStringList before = changeSetsOf(file);
    const Outcome done = run(home("sharer"), {QStringLiteral("--share"), file, m_url});
    QVERIFY2(done.exitCode == 0, qPrintable(done.errors));
    QVERIFY2(done.output.contains(QLatin1String("the same there as here")), qPrintable(done.output));
    const QString state = sql(QStringLiteral("SELECT ko.state()"));
    QCOMPARE(deskState(file), siteState(QJsonDocument::fromJson(state.toUtf8()).object()));
    const QString sets = sql(QStringLiteral("SELECT count(*) FROM ko.change_sets"));
    QVERIFY(before.size() > 60 && sets.toInt() > 60);

    // Another desk makes its copy, and has the history, too.
    const Outcome listed = run(home("other"), {QStringLiteral("--db"), m_url, QStringLiteral("--export"),
                                               m_folder->filePath(QStringLiteral("list.csv"))});
    QVERIFY2(listed.exitCode == 0, qPrintable(listed.errors));
    const QStringList copies =
        QDir(home("other") + QStringLiteral("/XDG_DATA_HOME/Ko Node UI/koclient/sites"))
            .entryList({QStringLiteral("*.kodb")});
    QCOMPARE(copies, QStringList(sql(QStringLiteral("SELECT id FROM ko.site")) + QStringLiteral(".kodb")));
    const QString copy =
        home("other") + QStringLiteral("/XDG_DATA_HOME/Ko Node UI/koclient/sites/") + copies.first();
    verify(copy);
    QCOMPARE(QString::number(changeSetsOf(copy).size()), sets);

    // And what is different is found.
    sql(QStringLiteral(
        "UPDATE ko.nodes SET name = name || 'x' WHERE place = (SELECT max(place) FROM ko.nodes)"));
    const Outcome again = run(home("sharer"), {QStringLiteral("--share"), file, m_url});
    QCOMPARE(again.exitCode, 2);
    QVERIFY2(again.errors.contains(QLatin1String("differs")), qPrintable(again.errors));
}

void tst_SharedSite::goesOnAfterKills()
{
    const QString file = makeFile(600);
    std::mt19937 random(5);
    int kills = 0;
    for (int i = 0; i < 12; ++i) {
        QProcess process;
        start(&process, home("sharer"), {QStringLiteral("--share"), file, m_url});
        QVERIFY(process.waitForStarted());
        if (process.waitForFinished(20 + int(random() % 200) + 10 * i))
            break;
        process.kill();
        QVERIFY(process.waitForFinished());
        ++kills;
    }
    QVERIFY(kills > 3);
    share(file);
    verify(file);
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM (SELECT set_id, line FROM ko.lines"
                                " GROUP BY 1, 2 HAVING count(*) > 1) twice")),
             QStringLiteral("0"));
}

void tst_SharedSite::refusesWhatCannotBeBrought()
{
    const QString file = makeFile(3);
    const auto sharing = [&](const QString& what, const QString& where) {
        return run(home("sharer"), {QStringLiteral("--share"), what, where});
    };
    QCOMPARE(sharing(m_folder->filePath(QStringLiteral("none.kodb")), m_url).exitCode, 3);
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("none.kodb"))));
    QCOMPARE(sharing(file, QStringLiteral("elsewhere")).exitCode, 64);
    QCOMPARE(sharing(file, QStringLiteral("postgresql://me@/db?colour=red")).exitCode, 64);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--share"), file}).exitCode, 64);
    QCOMPARE(run(home("sharer"), {QStringLiteral("--db"), m_url, QStringLiteral("--restore"), file}).exitCode,
             64);
    const Outcome away = sharing(file, QStringLiteral("postgresql://me@/db?host=/nonexistent"));
    QCOMPARE(away.exitCode, 2);
    QVERIFY2(away.errors.contains(QLatin1String("cannot be reached")), qPrintable(away.errors));
    const Outcome empty = run(home("other"), {QStringLiteral("--db"), m_url, QStringLiteral("--export"),
                                              m_folder->filePath(QStringLiteral("list.csv"))});
    QCOMPARE(empty.exitCode, 3); // a database in which nobody made a site
    QVERIFY2(empty.errors.contains(QLatin1String("holds no site")), qPrintable(empty.errors));
    share(file);
    const QString other = m_folder->filePath(QStringLiteral("second.kodb"));
    QVERIFY(openDatabase(other));
    const Outcome full = sharing(other, m_url);
    QCOMPARE(full.exitCode, 2);
    QVERIFY2(full.errors.contains(QLatin1String("is not empty")), qPrintable(full.errors));
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.nodes")),
             QString::number(openDatabase(file)->nodeIdList(AllNodeTypes).size()));
}

void tst_SharedSite::copyWritesNothingOfItsOwn()
{
    SiteConnection connection;
    QVERIFY(!connection.open(m_url));
    QVERIFY(!connection.prepareSite());
    Desk desk(m_url);
    KO_TRY_VERIFY(desk.isUpToDate());
    QCOMPARE(desk.db->environments().getList().size(), 0);
    desk.db->flush();
    QCOMPARE(sql(QStringLiteral("SELECT number FROM ko.site")), QStringLiteral("0"));
    const QString camera = addCamera(*desk.db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    QVERIFY(!camera.isEmpty());
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT string_agg(purpose, ' ') FROM ko.change_sets")),
                   QStringLiteral("add"));
}

void tst_SharedSite::addressesOfOneSiteShareACopy()
{
    share(makeFile(3));
    const QString file = SiteOpening(m_url, SiteOpening::Way::Line).file();
    QVERIFY(QFile::exists(file));
    sql(QStringLiteral("CREATE ROLE anna%1 LOGIN SUPERUSER").arg(m_count));
    const QString second = m_server.url(m_database, QStringLiteral("anna%1").arg(m_count));
    QCOMPARE(SiteOpening(second, SiteOpening::Way::Line).file(), file);
    const QStringList recent = {second, m_url};
    QCOMPARE(KnownSites::recent(), recent);

    // No copy of that site is taken for one, whatever its name; it stays.
    StoreError error;
    QVERIFY(SiteCopy::keepAside(file, &error));
    openDatabase(file).reset();
    QVERIFY(SiteCopy::prepare(file, QFileInfo(file).completeBaseName(), &error));
    QCOMPARE(openDatabase(file)->environments().getList().size(), 0);
    QCOMPARE(QFileInfo(file).dir().entryList({QStringLiteral("*.damaged-????????T?????????Z")}).size(), 2);
}

void tst_SharedSite::startsAndGoesOnWithoutTheServer()
{
    share(makeFile(3));
    QVERIFY(!SiteOpening(m_url, SiteOpening::Way::Line).file().isEmpty());
    m_server.stop();
    Desk desk(m_url);
    const int count = int(desk.db->nodeIdList(AllNodeTypes).size());
    QVERIFY(count > 0);
    KO_TRY_VERIFY(desk.status.text().startsWith(QLatin1String("Server away since")));
    addCamera(*desk.db, QStringLiteral("Basement"), QStringLiteral("10.0.0.99"));
    KO_TRY_VERIFY(desk.status.text().contains(QLatin1String("1 change(s) waiting")));
    QVERIFY(m_server.start());
    KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected"));
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.nodes")), QString::number(count + 1));
}

void tst_SharedSite::viewerIsToldBeforeADialogOpens()
{
    share(makeFile(3));
    const QString name = QStringLiteral("viewer%1").arg(m_count);
    sql(QStringLiteral("CREATE ROLE %1 LOGIN IN ROLE ko_viewer").arg(name));
    Desk desk(m_server.url(m_database, name));
    KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected, read-only"));
    QVERIFY(desk.db->isReadOnly());
    const QString state = sql(QStringLiteral("SELECT ko.state()"));
    const QString id = desk.db->nodeIdList(IPDeviceType).value(0);
    desk.window.findChild<NodeListView*>()->selectNode(id);
    for (const char* action :
         {"actionImport", "actionPreferences", "actionAdd", "actionEdit", "actionRemove", "actionCredentials",
          "actionRecording", "actionFillIn", "actionDuplicate", "actionProxy", "actionEnvironments",
          "actionOverview", "actionAddressChanges", "actionAcceptDevices", "actionAllowClearPasswords"}) {
        bool isTold = false;
        const ModalAnswer answer([&isTold](QDialog* dialog) {
            const auto* box = qobject_cast<QMessageBox*>(dialog);
            isTold = box && box->text().contains(QLatin1String("ko_editor"));
            dialog->reject();
        });
        child<QAction>(&desk.window, action)->trigger();
        QVERIFY2(answer.fired() && isTold, action);
    }
    // And by whatever way: nothing is written.
    QVERIFY(!desk.db->beginUpdateNode(id, -1));
    desk.db->removeNode(id);
    desk.db->setBandwidth(SlowRemote);
    desk.db->environments().setList({{QStringLiteral("x"), QStringLiteral("X")}});
    QVERIFY(addCamera(*desk.db, QStringLiteral("No"), QStringLiteral("10.0.0.9")).isEmpty());
    QVERIFY(desk.db->flush());
    QVERIFY(!desk.db->hasUnstoredChanges());
    QCOMPARE(deskState(desk.db->fileName()), siteState(QJsonDocument::fromJson(state.toUtf8()).object()));

    // What others do still comes, and with another role the desk may write.
    sql(QStringLiteral("GRANT ko_editor TO %1").arg(name));
    desk.sharing.tryAgain();
    KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected"));
    setText(*desk.db, id, "Model", QStringLiteral("new"));
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.lines WHERE after::text LIKE '%\"new\"%'")),
                   QStringLiteral("1"));
}

void tst_SharedSite::editorsAtOtherDesksAreNamed()
{
    share(makeFile(3));
    Desk here(m_url);
    const QString id = here.db->nodeIdList(IPDeviceType).value(0);
    SitePresence presence; // of another desk, whose copy would be the same file here
    SiteConnection there;
    QVERIFY(!there.open(m_url));
    presence.setOpen({id}, true);
    presence.connected();
    QVERIFY(!presence.look(there));
    here.window.findChild<NodeListView*>()->selectNode(id);
    QString shown;
    const ModalAnswer answer([&](QDialog* dialog) {
        const QLabel* label = child<QLabel>(dialog, "changedMeanwhileLabel");
        KO_TRY_VERIFY(label->isVisible());
        shown = label->text();
        presence.noticed();
        const auto seen = presence.look(there);
        QVERIFY(seen && seen->size() == 1 && seen->constFirst().node == id);
        there.close();
        KO_TRY_VERIFY(!label->isVisible());
        dialog->reject();
    });
    child<QAction>(&here.window, "actionEdit")->trigger();
    QVERIFY(answer.fired());
    QCOMPARE(shown, QStringLiteral("Also being edited now by %1 at %2.")
                        .arg(Cause::currentUser(), Cause::currentStation()));
    KO_TRY_COMPARE(sql(QStringLiteral("SELECT count(*) FROM ko.editing WHERE ko.is_connected(session)")),
                   QStringLiteral("0"));
}

void tst_SharedSite::otherSiteAtTheSameAddressGetsNothing()
{
    share(makeFile(3));
    QVERIFY(!SiteOpening(m_url, SiteOpening::Way::Line).file().isEmpty());
    sql(QStringLiteral("UPDATE ko.site SET id = gen_random_uuid()"));
    const QString before = sql(QStringLiteral("SELECT number FROM ko.site"));
    Desk desk(m_url);
    addCamera(*desk.db, QStringLiteral("Gate"), QStringLiteral("10.0.0.1"));
    KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Not shared any more..."));
    QVERIFY(desk.status.toolTip().contains(QLatin1String("another site")));
    QCOMPARE(sql(QStringLiteral("SELECT number FROM ko.site")), before);
    ModalAnswer answer([&](QDialog* dialog) {
        QVERIFY(child<QLabel>(dialog, "stateLabel")->text().contains(QLatin1String("another site")));
        QVERIFY(child<QPushButton>(dialog, "tryAgainButton")->isVisible());
        dialog->reject();
    });
    desk.status.click();
    QVERIFY(answer.fired());
}

void tst_SharedSite::whatCouldNotBeMadeIsKeptUntilDismissed()
{
    share(makeFile(3));
    QString camera;
    {
        Desk desk(m_url);
        KO_TRY_VERIFY(desk.isUpToDate());
        m_server.stop();
        camera = addCamera(*desk.db, QStringLiteral("Gate"), QStringLiteral("10.0.0.50"));
    }
    QVERIFY(m_server.start());
    const auto idle = [](const SharingState&) {};
    {
        Desk desk(m_url);
        KO_TRY_VERIFY(desk.isUpToDate());
        m_server.stop();
        setText(*desk.db, camera, "Model", QStringLiteral("too late"));
    }
    QVERIFY(m_server.start());
    const QString other = m_folder->filePath(QStringLiteral("other.kodb"));
    StoreError error;
    QVERIFY(SiteCopy::prepare(other, sql(QStringLiteral("SELECT id FROM ko.site")), &error));
    QVERIFY(SiteCatchUp(other, m_url, -1).run(idle) == SiteCatchUp::End::UpToDate);
    openDatabase(other)->removeNode(camera);
    QVERIFY(SiteCatchUp(other, m_url, -1).run(idle) == SiteCatchUp::End::UpToDate);

    Desk desk(m_url);
    KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Connected, 1 change(s) could not be made"));
    QVERIFY(desk.db->node(camera).null());
    const ModalAnswer answer([](QDialog* dialog) {
        auto* table = child<QTableWidget>(dialog, "undoneTableWidget");
        QCOMPARE(table->rowCount(), 1);
        QCOMPARE(table->item(0, 2)->text(), QStringLiteral("Gate"));
        QVERIFY(table->item(0, 3)->text().contains(Cause::currentUser()));
        auto* dismiss = child<QPushButton>(dialog, "dismissButton");
        QVERIFY(!dismiss->isEnabled());
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Space);
        table->selectRow(0);
        QTest::mouseClick(dismiss, Qt::LeftButton);
        QCOMPARE(table->rowCount(), 0);
        dialog->reject();
    });
    desk.status.click();
    QVERIFY(answer.fired());
    QCOMPARE(desk.status.text(), QStringLiteral("Connected"));
}

void tst_SharedSite::copyThatIsGivenUpStays()
{
    share(makeFile(3));
    const QString file = SiteOpening(m_url, SiteOpening::Way::Line).file();
    {
        m_server.stop();
        Desk desk(m_url);
        addCamera(*desk.db, QStringLiteral("Not sent"), QStringLiteral("10.0.0.60"));
    }
    QVERIFY(m_server.start());
    const QString name = QStringLiteral("reader%1").arg(m_count);
    sql(QStringLiteral("CREATE ROLE %1 LOGIN IN ROLE ko_viewer").arg(name));
    const QString address = m_server.url(m_database, name);
    {
        Desk desk(address);
        KO_TRY_COMPARE(desk.status.text(), QStringLiteral("Not shared any more..."));
        QVERIFY(desk.db->isReadOnly());
        QSignalSpy wanted(&desk.sharing, &SiteSharing::newCopyWanted);
        const ModalAnswer answer([](QDialog* dialog) {
            const ModalAnswer yes(ModalAnswer::press(QStringLiteral("Yes")));
            QTest::mouseClick(child<QPushButton>(dialog, "newCopyButton"), Qt::LeftButton);
            QVERIFY(yes.fired());
        });
        desk.status.click();
        QVERIFY(answer.fired());
        QCOMPARE(wanted.count(), 1);
    }
    QCOMPARE(SiteOpening(address, SiteOpening::Way::Line).file(file), file);
    verify(file);
    const QStringList kept =
        QFileInfo(file).dir().entryList({QFileInfo(file).fileName() + QStringLiteral(".damaged-*Z")});
    QCOMPARE(kept.size(), 1);
    const auto old = openDatabase(QFileInfo(file).dir().filePath(kept.first()));
    const QVector<NodeSummary> nodes = old->summaries();
    QCOMPARE(nodes.last().name, QStringLiteral("Not sent"));
}

void tst_SharedSite::connectDialogTriesAnAddress()
{
    share(makeFile(3));
    ConnectDialog dialog(nullptr);
    dialog.show();
    const auto enter = [&dialog](const char* field, const QString& text) {
        auto* edit = child<QLineEdit>(&dialog, field);
        edit->clear();
        QTest::keyClicks(edit, text);
    };
    auto* result = child<QLabel>(&dialog, "resultLabel");
    auto* test = child<QPushButton>(&dialog, "testButton");
    enter("hostLineEdit", SiteAddress::parse(m_url).host);
    enter("databaseLineEdit", QStringLiteral("nothing"));
    enter("userLineEdit", QStringLiteral("postgres"));
    enter("passwordLineEdit", QStringLiteral("s p&c?%"));
    QTest::mouseClick(test, Qt::LeftButton);
    KO_TRY_VERIFY(result->text() != QLatin1String("Connecting..."));
    QVERIFY2(result->text().contains(QLatin1String("cannot be reached")), qPrintable(result->text()));
    QVERIFY2(result->text().contains(QLatin1String("\"nothing\"")), qPrintable(result->text()));
    enter("databaseLineEdit", m_database);
    QTest::mouseClick(test, Qt::LeftButton);
    KO_TRY_VERIFY(result->text() != QLatin1String("Connecting..."));
    QCOMPARE(result->text(), QStringLiteral("The database can be read and changed."));
    child<QCheckBox>(&dialog, "keepCheckBox")->click();
    QTest::keyClick(child<QLineEdit>(&dialog, "userLineEdit"), Qt::Key_Return);
    KO_TRY_VERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(SiteAddress::parse(dialog.address()).password, QStringLiteral("s p&c?%"));

    // It was kept, and not so that anybody could read it.
    KnownSites::remember({dialog.address(), QString(), true});
    QFile settings(QSettings().fileName());
    QSettings().sync();
    QVERIFY(settings.open(QIODevice::ReadOnly));
    const QByteArray stored = settings.readAll();
    QVERIFY(stored.contains("sealed1:") && !stored.contains("s p&c") && !stored.contains("s%20p"));
    ConnectDialog again(nullptr);
    QCOMPARE(again.address(), dialog.address());
    child<QCheckBox>(&again, "keepCheckBox")->click();
    again.accept();
    KO_TRY_COMPARE(again.result(), int(QDialog::Accepted));
    QCOMPARE(SiteAddress::parse(ConnectDialog(nullptr).address()).password, QString());

    // What has no field is kept, as long as nothing else is entered.
    const QString service = QStringLiteral("postgresql://?service=control_room");
    KnownSites::remember({service, QString(), true});
    ConnectDialog third(nullptr);
    QCOMPARE(third.address(), service);
    QTest::keyClicks(child<QLineEdit>(&third, "databaseLineEdit"), QStringLiteral("x"));
    QVERIFY(!third.address().contains(QLatin1String("service")));
}

void tst_SharedSite::historyIsKeptWhole()
{
    const QString file = makeFile(3);
    const qint64 later = QDateTime::currentMSecsSinceEpoch() + 100 * 86400000LL;
    const auto lastToGo = [&] {
        SqliteFile opened(file, SqliteFile::ReadOnly);
        const Sealer sealer;
        return LogThinning(opened, sealer).last({1, 0}, later);
    };
    QVERIFY(lastToGo() > 0);
    share(file);
    QCOMPARE(lastToGo(), qint64(0));
}

KO_TEST_MAIN(tst_SharedSite)

#include "tst_sharedsite.moc"
