#include "DeskTesting.h"
#include "sharing/SharingWorker.h"
#include "store/NodeStore.h"
#include "support/Patience.h"
#include "support/PostgresServer.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include <QProcess>

#include <algorithm>

using namespace ko;
using namespace testsupport;

namespace {

const char asDesk[] = "--desk";
const int meanPause = 40; // ms between the edits of a desk

QByteArrayList linesOf(const QString& file)
{
    QFile reader(file);
    QByteArrayList lines = reader.open(QIODevice::ReadOnly) ? reader.readAll().split('\n') : QByteArrayList();
    lines.removeAll(QByteArray());
    return lines;
}

} // namespace

/// Processes that edit, and are killed, at one server, which is killed too.
class tst_SharingSoak : public QObject
{
    Q_OBJECT

private slots:
    void everyChangeSetIsThereOnce();

private:
    QString fileOf(int desk, const char* kind) const
    {
        return m_folder.filePath(QStringLiteral("desk%1.%2").arg(desk).arg(QLatin1String(kind)));
    }
    void begin(int desk);
    bool isAllDone(int edits) const;
    void check();
    QString sql(const QString& statement) { return m_server.run(QStringLiteral("site"), statement); }

    PostgresServer m_server;
    QTemporaryDir m_folder;
    std::vector<std::unique_ptr<QProcess>> m_processes;
    int m_desks = soakOr(20, 5);
    int m_edits = soakOr(200, 20);
};

void tst_SharingSoak::begin(int desk)
{
    auto& process = m_processes.at(size_t(desk));
    process = std::make_unique<QProcess>();
    process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process->start(QCoreApplication::applicationFilePath(),
                   {QLatin1String(asDesk), fileOf(desk, "kodb"), m_server.address(QStringLiteral("site")),
                    fileOf(desk, "confirmed"), QString::number(m_edits), QString::number(desk)});
}

bool tst_SharingSoak::isAllDone(int edits) const
{
    for (int desk = 0; desk < m_desks; ++desk) {
        if (linesOf(fileOf(desk, "confirmed")).size() < edits)
            return false;
    }
    return true;
}

void tst_SharingSoak::everyChangeSetIsThereOnce()
{
    QVERIFY2(m_server.start() && m_server.createDatabase(QStringLiteral("site")),
             qPrintable(m_server.error()));
    SiteConnection connection;
    QVERIFY(!connection.open(m_server.address(QStringLiteral("site"))) && !connection.prepareSite());
    m_processes.resize(size_t(m_desks));
    for (int desk = 0; desk < m_desks; ++desk)
        begin(desk);
    std::mt19937 random(8);
    int serverKills = 0;
    int kills = 0;
    const int mostServerKills = soakOr(20, 2);
    const int mostKills = soakOr(40, 6);
    while (serverKills < mostServerKills || kills < mostKills || !isAllDone(m_edits)) {
        QTest::qWait(300 + int(random() % 500));
        if (kills < mostKills) {
            const int desk = int(random() % unsigned(m_desks));
            m_processes.at(size_t(desk))->kill();
            m_processes.at(size_t(desk))->waitForFinished();
            begin(desk);
            ++kills;
        }
        if (random() % 2 == 0 && serverKills < mostServerKills) {
            m_server.kill();
            QTest::qWait(int(random() % 300));
            QVERIFY2(m_server.start(), qPrintable(m_server.error()));
            ++serverKills;
        } else if (random() % 4 == 0) {
            m_server.pause();
            QTest::qWait(int(random() % 1000));
            m_server.resume();
        } else if (random() % 4 == 0) {
            sql(QStringLiteral("SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
                               " WHERE pid <> pg_backend_pid() AND random() < 0.3"));
        }
        for (const auto& process : m_processes)
            QVERIFY(process->state() != QProcess::NotRunning);
    }
    for (const auto& process : m_processes) {
        process->kill();
        QVERIFY(process->waitForFinished());
    }
    check();
    qInfo("%d desks, %d edits each, %d SIGKILLs of the server, %d of desks: %s parcels, %s deadlocks since "
          "the last",
          m_desks, m_edits, serverKills, kills,
          qPrintable(sql(QStringLiteral("SELECT max(number) FROM ko.parcels"))),
          qPrintable(sql(QStringLiteral("SELECT sum(deadlocks) FROM pg_stat_database"))));
}

void tst_SharingSoak::check()
{
    for (int round = 0; round < 2; ++round) { // what the last one sends, the first one has to take
        for (int desk = 0; desk < m_desks; ++desk) {
            SharingWorker worker(fileOf(desk, "kodb"), m_server.address(QStringLiteral("site")), describe);
            SharingState state;
            connect(&worker, &SharingWorker::stateChanged, this,
                    [&state](const SharingState& now) { state = now; });
            KO_TRY_VERIFY(state.kind == SharingState::UpToDate);
        }
    }
    const QString text = sql(QStringLiteral("SELECT ko.state()"));
    const QByteArray expected = siteState(QJsonDocument::fromJson(text.toUtf8()).object());
    const QStringList sets =
        sql(QStringLiteral("SELECT id FROM ko.change_sets")).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    const QSet<QString> known(sets.constBegin(), sets.constEnd());
    QCOMPARE(known.size(), sets.size());
    for (int desk = 0; desk < m_desks; ++desk) {
        QCOMPARE(deskState(fileOf(desk, "kodb")), expected);
        const QStringList here = changeSetsOf(fileOf(desk, "kodb"));
        for (const QString& id : here)
            QVERIFY2(known.contains(id), qPrintable(id));
        const QByteArrayList confirmed = linesOf(fileOf(desk, "confirmed"));
        QVERIFY(confirmed.size() >= m_edits);
        for (const QByteArray& id : confirmed)
            QVERIFY2(id == "-" || known.contains(QString::fromLatin1(id)), id.constData());
    }
    QCOMPARE(sql(QStringLiteral("SELECT count(*) FROM (SELECT FROM ko.lines WHERE line IS NOT NULL"
                                " GROUP BY set_id, line HAVING count(*) > 1) twice")),
             QStringLiteral("0"));
}

namespace {

/// The same of many nodes at once, in one change set.
void assignToMany(HostNodeDB& db, const QString& value)
{
    const QStringList ids = db.nodeIdList(IPDeviceType).mid(0, 20);
    for (const QString& id : ids)
        setText(db, id, "Model", value);
    db.flush();
}

/// The other process: writes down the change set of each edit when it is stored.
int edit(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QString file = QFile::decodeName(argv[2]);
    const auto db = openDatabase(file);
    if (!db)
        return 1;
    QString last = QStringLiteral("-");
    QObject::connect(&db->history(), &StoredHistory::stored, db.get(), [&](const QVector<StoredSet>& sets) {
        for (const StoredSet& set : sets) {
            const std::optional<ChangeSet> stored = db->history().changeSet(set.number);
            last = stored ? stored->cause.id : last;
        }
    });
    SharingWorker worker(file, QString::fromLocal8Bit(argv[3]), describe);
    QObject::connect(&worker, &SharingWorker::received, db.get(), &HostNodeDB::syncForeignChanges);
    QFile confirmed(QFile::decodeName(argv[4]));
    const int most = QByteArray(argv[5]).toInt();
    int done = int(linesOf(confirmed.fileName()).size());
    std::mt19937 random(unsigned(QByteArray(argv[6]).toUInt()) * 1000 + unsigned(done));
    if (!confirmed.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return 1;
    for (; done < most; ++done) {
        last = QStringLiteral("-"); // nothing changed
        if (random() % 15 == 0)
            assignToMany(*db, QString::number(random()));
        else
            randomEdit(*db, random);
        QTest::qWait(1 + int(random() % (2 * meanPause)));
        confirmed.write(last.toLatin1() + '\n');
    }
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    if (argc > 6 && qstrcmp(argv[1], asDesk) == 0)
        return edit(argc, argv);
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    tst_SharingSoak test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sharingsoak.moc"
