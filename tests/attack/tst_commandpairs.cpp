#include "../host/Workloads.h"
#include "Attack.h"
#include "Programs.h"
#include "support/TestMain.h"

#include "audit/ProgramLog.h"
#include "discovery/DeviceIntake.h"
#include "discovery/Scanners.h"
#include "store/BackupKeeper.h"
#include "store/StoreBackup.h"

#include <QSet>
#include <QThread>
#include <QTimer>

#include <utime.h>

using namespace ko;
using namespace testsupport;
using namespace attack;

/// Two commands at once, on one database, each killed at any moment or not: what was confirmed is there,
/// once, what was not is there as a whole or not at all, and every copy is good.
class TestCommandPairs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void nothingConfirmedIsLost();

private:
    void round(Random& random);
    void checkDatabase(const QString& file, bool restored);
    void checkCopies();
    void checkNothingIsLeft();

    QTemporaryDir m_models;
    std::unique_ptr<QTemporaryDir> m_folder;
    QByteArray m_round;
    QStringList m_confirmed; ///< addresses that must be in the database or in a backup of it
    bool m_old = false;
};

namespace {

enum { Cameras = 30, RestoredCameras = 20, Lines = 60 };

const char ClearPassword[] = "geheim";

/// A client whose user adds cameras, while a backup of the day is made; run in a process of its own.
int runClient(const QString& file)
{
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error, HostNodeDB::Check::Behind);
    if (!db) {
        std::printf("%s\n", qPrintable(error.message));
        return 3;
    }
    const ProgramLog log(db->logStore());
    BackupKeeper backups(file);
    int number = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (number == 1)
            backups.makeNow();
        const QString address =
            QString::fromLatin1("10.6.%1.%2").arg(QCoreApplication::applicationPid()).arg(number);
        setText(*db, addCamera(*db, address, address), "Model", address);
        if (!db->flush()) {
            QCoreApplication::exit(2);
            return;
        }
        std::printf("stored %s\n", qPrintable(address));
        std::fflush(stdout);
        if (++number == 20)
            QCoreApplication::exit(0);
    });
    timer.start(10);
    return QCoreApplication::exec();
}

QString lineAddress(int list, int i)
{
    return QString::fromLatin1("10.7.%1.%2").arg(list).arg(i);
}

/// A client that scans a network with the devices of the first list; run in a process of its own.
int runScan(const QString& file)
{
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error);
    if (!db)
        return 3;
    QVector<DiscoveredDevice> devices;
    for (int i = 0; i < Lines; ++i) {
        DiscoveredDevice device;
        device.address = device.name = device.model = lineAddress(0, i);
        device.port = 80;
        device.service = QLatin1String("_http._tcp");
        devices.append(device);
    }
    Scanners::of(*db).intake().take(devices);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&db] {
        if (Scanners::of(*db).intake().isIdle())
            QCoreApplication::exit(db->flush() ? 0 : 2);
    });
    timer.start(10);
    return QCoreApplication::exec();
}

QString baseAddress(int i)
{
    return QString::fromLatin1("10.0.0.%1").arg(i);
}

void makeList(const QString& name, int list)
{
    QFile writer(name);
    if (!writer.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(name));
    writer.write("address,port,type,name,model\n");
    for (int i = 0; i < Lines; ++i) {
        const QByteArray text = lineAddress(list, i).toUtf8();
        writer.write(text + ",80,IP device," + text + ',' + text + '\n');
    }
}

/// Every file of the folder and its folders, by path.
QStringList allFiles(const QString& folder)
{
    QStringList found;
    const QFileInfoList infos = QDir(folder).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo& info : infos) {
        if (info.isDir())
            found += allFiles(info.filePath());
        else
            found.append(info.filePath());
    }
    return found;
}

/// What a database file holds, read past the host: address and name of each camera.
QMultiHash<QString, QString> camerasIn(const QString& file)
{
    QMultiHash<QString, QString> found;
    const QString connection = QLatin1String("cameras");
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QLatin1String("QSQLITE"), connection);
        database.setDatabaseName(file);
        if (!database.open())
            qFatal("cannot open %s", qPrintable(file));
        QSqlQuery query(database);
        query.exec(QLatin1String("SELECT location, name FROM nodes WHERE type = 2"));
        while (query.next())
            found.insert(query.value(0).toString(), query.value(1).toString());
    }
    QSqlDatabase::removeDatabase(connection);
    return found;
}

} // namespace

void TestCommandPairs::initTestCase()
{
    const QString file = m_models.filePath(QLatin1String("nodes.kodb"));
    StoreError error;
    std::unique_ptr<HostNodeDB> db = openDatabase(file);
    for (int i = 0; i < Cameras; ++i) {
        if (i == RestoredCameras) {
            QVERIFY(db->flush());
            QVERIFY(StoreBackup::write(file, m_models.filePath(QLatin1String("earlier.kodb")), &error));
        }
        setText(*db, addCamera(*db, baseAddress(i), baseAddress(i)), "Model", baseAddress(i));
    }
    QVERIFY(db->flush());
    db.reset();
    // As an older version left it, with passwords in the clear.
    const QString old = m_models.filePath(QLatin1String("old.kodb"));
    const auto store =
        SqliteStore::open(old, &error, SqliteStore::Check::First, StoreSchema::FirstSealed - 1);
    QVERIFY(store);
    for (int i = 0; i < Cameras; ++i) {
        const QString address = baseAddress(i);
        store->run("INSERT INTO nodes VALUES (?, ?, 2, ?, ?, -1, ?)",
                   {i + 1, QString::fromLatin1("old%1").arg(i), address, address, address});
        const QMap<QString, QString> properties = {
            {QLatin1String("Address"), address},
            {QLatin1String("Model"), address},
            {QLatin1String("Password"), QLatin1String(ClearPassword)},
        };
        for (auto it = properties.begin(); it != properties.end(); ++it)
            store->run("INSERT INTO properties VALUES (?, ?, 0, ?)", {i + 1, it.key(), it.value()});
    }
}

void TestCommandPairs::nothingConfirmedIsLost()
{
    for (Rounds rounds("commandpairs", 14); rounds.next();) {
        m_round = rounds.name() + ": ";
        round(rounds.random());
        if (QTest::currentTestFailed())
            return;
    }
}

void TestCommandPairs::round(Random& random)
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_confirmed.clear();
    const auto path = [this](const char* name) { return m_folder->filePath(QLatin1String(name)); };
    m_old = oneIn(random, 4);
    const QString file = path("nodes.kodb");
    QFile::copy(m_models.filePath(QLatin1String(m_old ? "old.kodb" : "nodes.kodb")), file);
    for (const char* copy : {"earlier.kodb", "other.kodb"})
        QFile::copy(m_models.filePath(QLatin1String("earlier.kodb")), path(copy));
    makeList(path("0.csv"), 0);
    makeList(path("1.csv"), 1);
    const QVector<QStringList> commands = {
        {"client", file},
        {"scan", file},
        {"--db", file, "--import", path("0.csv")},
        {"--db", file, "--import", path("0.csv")},
        {"--db", file, "--import", path("1.csv")},
        {"--db", file, "--export", path("out.csv")},
        {"--db", file, "--backup", path("new.kodb")},
        {"--db", file, "--backup", path("other.kodb")},
        {"--db", path("other.kodb"), "--import", path("0.csv")},
        {"--db", file, "--restore", path("earlier.kodb")},
    };
    const QStringList pair[] = {anyOf(random, commands), anyOf(random, commands)};
    std::unique_ptr<Program> programs[2];
    bool killed = false;
    for (int i = 0; i < 2; ++i) {
        m_round += pair[i].join(QLatin1Char(' ')).remove(m_folder->path() + '/').toUtf8() + "; ";
        programs[i] = std::make_unique<Program>(pair[i]);
        QThread::msleep(ulong(below(random, 150)));
    }
    for (const auto& program : programs) {
        if (oneIn(random, 3)) {
            QThread::msleep(ulong(below(random, 150)));
            program->kill();
            killed = true;
        }
    }
    bool restored = false;
    bool replaced = false;
    for (int i = 0; i < 2; ++i) {
        const QByteArray wrong = programs[i]->finish();
        const QByteArray what =
            m_round + pair[i].join(QLatin1Char(' ')).toUtf8() + ": " + programs[i]->output;
        QVERIFY2(wrong.isEmpty(), (what + wrong).constData());
        const int code = programs[i]->exitCode;
        const bool onOther = pair[i].last() == path("other.kodb");
        // The other one may have it open.
        QVERIFY2(killed || code == 0 || (onOther && code == 2),
                 (what + QByteArray::number(code)).constData());
        restored |= pair[i].contains(QLatin1String("--restore")) && code <= 0;
        replaced |= onOther && code <= 0;
        const bool imports =
            pair[i].contains(QLatin1String("--import")) || pair[i].contains(QLatin1String("scan"));
        for (int line = 0; imports && code == 0 && line < Lines && pair[i].contains(file); ++line)
            m_confirmed.append(lineAddress(pair[i].last() == path("1.csv"), line));
        const QList<QByteArray> said = programs[i]->output.split('\n');
        for (const QByteArray& word : said) {
            if (word.startsWith("stored "))
                m_confirmed.append(QString::fromUtf8(word.mid(7)));
        }
        if (code == 0 && pair[i].contains(QLatin1String("--export"))) {
            QFile list(path("out.csv"));
            QVERIFY(list.open(QIODevice::ReadOnly));
            const QByteArray text = list.readAll();
            for (int camera = 0; camera < RestoredCameras; ++camera)
                QVERIFY2(text.count(',' + baseAddress(camera).toUtf8() + ',') >= 1, what.constData());
        }
    }
    checkCopies();
    const auto other = camerasIn(path("other.kodb"));
    QVERIFY2(other.size() >= RestoredCameras, m_round.constData());
    for (int i = 0; i < 2 && !replaced; ++i) {
        for (int line = 0; line < Lines && pair[i].contains(path("other.kodb")) && programs[i]->exitCode == 0;
             ++line)
            QVERIFY2(other.count(lineAddress(0, line)) == 1, m_round.constData());
    }
    checkDatabase(file, restored);
    checkNothingIsLeft();
}

void TestCommandPairs::checkDatabase(const QString& file, bool restored)
{
    // What killed programs left belongs to nobody after a while.
    const QStringList before = allFiles(m_folder->path());
    for (const QString& name : before) {
        const struct utimbuf longAgo = {1, 1};
        ::utime(QFile::encodeName(name).constData(), &longAgo);
    }
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    QVERIFY2(db, m_round.constData());
    QVERIFY2(isSound(file), m_round.constData());
    const QMultiHash<QString, QString> cameras = camerasIn(file);
    const QStringList addresses = cameras.uniqueKeys();
    for (const QString& address : addresses) {
        QVERIFY2(cameras.count(address) == 1, (m_round + "twice: " + address.toUtf8()).constData());
        QCOMPARE(cameras.value(address), address);
    }
    const QStringList ids = db->nodeIdList(IPDeviceType);
    for (const QString& id : ids)
        QVERIFY2(text(*db, id, "Model") == db->node(id)->name(),
                 (m_round + "half: " + id.toUtf8()).constData());
    QSet<QString> kept(addresses.begin(), addresses.end());
    const QVector<StoreBackup::Backup> backups = StoreBackup::backups(file);
    for (const StoreBackup::Backup& backup : backups) {
        const QStringList inBackup = camerasIn(backup.file).uniqueKeys();
        kept += QSet<QString>(inBackup.begin(), inBackup.end());
    }
    for (int i = 0; i < Cameras; ++i)
        QVERIFY2(i < RestoredCameras || restored ? kept.contains(baseAddress(i))
                                                 : cameras.contains(baseAddress(i)),
                 (m_round + "lost: " + baseAddress(i).toUtf8()).constData());
    for (const QString& address : std::as_const(m_confirmed))
        QVERIFY2(restored ? kept.contains(address) : cameras.contains(address),
                 (m_round + "lost: " + address.toUtf8()).constData());
}

void TestCommandPairs::checkCopies()
{
    const QStringList files = allFiles(m_folder->path());
    for (const QString& file : files) {
        const bool isCopy = file.endsWith(QLatin1String("/new.kodb")) ||
                            file.contains(QLatin1String(".backup-v")) ||
                            file.contains(QLatin1String(".backups/"));
        StoreError error;
        if (isCopy && !file.contains(QLatin1String(".new-")))
            QVERIFY2(StoreBackup::verify(file, &error),
                     (m_round + file.toUtf8() + error.detail.toUtf8()).constData());
    }
}

void TestCommandPairs::checkNothingIsLeft()
{
    const QStringList files = allFiles(m_folder->path());
    for (const QString& file : files) {
        QVERIFY2(!file.contains(QLatin1String("nodes.kodb")) || !file.contains(QLatin1String(".new-")),
                 (m_round + "left: " + file.toUtf8()).constData());
        QFile reader(file);
        QVERIFY(reader.open(QIODevice::ReadOnly));
        const bool isMine = file.contains(QLatin1String("nodes.kodb"));
        QVERIFY2(!m_old || !isMine || !reader.readAll().contains(ClearPassword),
                 (m_round + "a password in the clear: " + file.toUtf8()).constData());
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc == 3 && QByteArray(argv[1]) == "client")
        return runClient(QFile::decodeName(argv[2]));
    if (argc == 3 && QByteArray(argv[1]) == "scan")
        return runScan(QFile::decodeName(argv[2]));
    prepareApplication();
    TestCommandPairs test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_commandpairs.moc"
