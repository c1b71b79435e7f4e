#include "StoreTesting.h"
#include "support/TestMain.h"

#include "store/Salvage.h"
#include "store/SqliteStore.h"
#include "store/StoreBackup.h"
#include "store/StoreSchema.h"

#include <QDir>

#include <functional>

#include <sys/stat.h>

using namespace ko;
using namespace testsupport;

namespace {

constexpr int Cameras = 2000;
constexpr int PageSize = 4096;

void fill(QFile& file, qint64 from, qint64 size, char with)
{
    file.seek(from);
    file.write(QByteArray(int(size), with));
}

} // namespace

/// What is left of a database after different kinds of damage.
class tst_Salvage : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void damage_data();
    void damage();
    void truncated_data();
    void truncated();
    void logIsReadToo();
    void olderVersions_data();
    void olderVersions();
    void lostChangeSets();
    void nothingIsLeftBehind();
    void nothingToRead_data();
    void nothingToRead();
    void viewsAreNotRun();
    void pipeIsNotWaitedFor();

private:
    void spoil(const std::function<void(QFile&)>& change);
    QStringList files() const
    {
        return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    QByteArray m_sound;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
};

void tst_Salvage::initTestCase()
{
    init();
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        for (int i = 0; i < Cameras; ++i)
            addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.0.%1.1").arg(i));
        QVERIFY(db->flush());
    }
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    m_sound = file.readAll();
}

void tst_Salvage::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QLatin1String("nodes.kodb"));
    QFile file(m_file);
    QVERIFY(m_sound.isEmpty() || (file.open(QIODevice::WriteOnly) && file.write(m_sound) == m_sound.size()));
}

void tst_Salvage::spoil(const std::function<void(QFile&)>& change)
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadWrite));
    change(file);
}

void tst_Salvage::damage_data()
{
    QTest::addColumn<qint64>("from");
    QTest::addColumn<qint64>("size");
    QTest::addColumn<int>("least");
    const qint64 size = m_sound.size();
    QTest::newRow("nothing") << qint64(0) << qint64(0) << Cameras;
    QTest::newRow("in the middle") << size / 2 << qint64(6000) << Cameras - 100;
    QTest::newRow("magic of the header") << qint64(0) << qint64(16) << Cameras;
    QTest::newRow("page size") << qint64(16) << qint64(2) << Cameras;
    QTest::newRow("count of pages") << qint64(28) << qint64(4) << Cameras;
    QTest::newRow("free pages") << qint64(32) << qint64(8) << Cameras;
    QTest::newRow("application and version") << qint64(60) << qint64(12) << Cameras;
    QTest::newRow("header") << qint64(0) << qint64(100) << Cameras;
    QTest::newRow("first page") << qint64(0) << qint64(PageSize) << Cameras;
}

void tst_Salvage::damage()
{
    QFETCH(qint64, from);
    QFETCH(qint64, size);
    QFETCH(int, least);
    spoil([=](QFile& file) { fill(file, from, size, 'x'); });
    const QByteArray before = digest(m_file);
    const Salvage salvage(m_file);
    QVERIFY2(!salvage.error(), qPrintable(salvage.error().detail));
    QCOMPARE(digest(m_file), before);
    QVERIFY2(salvage.nodeCount() >= least, qPrintable(QString::number(salvage.nodeCount())));
    StoreError error;
    QVERIFY2(StoreBackup::verify(salvage.file(), &error), qPrintable(error.detail));
    const std::unique_ptr<HostNodeDB> db = openDatabase(salvage.file());
    const QStringList ids = db->nodeIdList(IPDeviceType);
    QCOMPARE(ids.size(), salvage.nodeCount());
    // From both ends of the tables.
    QCOMPARE(db->node(ids.constFirst())->name(), QLatin1String("Camera 0"));
    QCOMPARE(db->node(ids.constLast())->name(), QLatin1String("Camera 1999"));
    QCOMPARE(db->node(ids.constFirst()).cast<const IPDeviceNode>()->address(), QLatin1String("10.0.0.1"));
    QCOMPARE(db->node(ids.constLast()).cast<const IPDeviceNode>()->address(), QLatin1String("10.0.1999.1"));
}

void tst_Salvage::truncated_data()
{
    QTest::addColumn<qint64>("kept");
    const qint64 size = m_sound.size();
    QTest::newRow("a byte") << size - 1;
    QTest::newRow("a page") << size - PageSize;
    QTest::newRow("a third") << size * 2 / 3;
    QTest::newRow("in a page") << size / 2 / PageSize * PageSize + 1000;
}

/// The tables grow together, so about that part of the rows is in that part of the file.
void tst_Salvage::truncated()
{
    QFETCH(qint64, kept);
    spoil([=](QFile& file) { file.resize(kept); });
    const Salvage salvage(m_file);
    QVERIFY2(!salvage.error(), qPrintable(salvage.error().detail));
    const qint64 least = (Cameras - 100) * kept / m_sound.size();
    QVERIFY2(salvage.nodeCount() >= least, qPrintable(QString::number(salvage.nodeCount())));
    StoreError error;
    QVERIFY(StoreBackup::verify(salvage.file(), &error));
    QCOMPARE(openDatabase(salvage.file())->nodeIdList(IPDeviceType).size(), salvage.nodeCount());
}

/// After a crash the last commits are in the log only.
void tst_Salvage::logIsReadToo()
{
    const QString crashed = m_folder->filePath(QLatin1String("crashed.kodb"));
    {
        const std::unique_ptr<HostNodeDB> db = openDatabase(m_file);
        addCamera(*db, QLatin1String("last"), QLatin1String("10.9.0.1"));
        QVERIFY(db->flush());
        QVERIFY(QFile::copy(m_file, crashed));
        QVERIFY(QFile::copy(m_file + QLatin1String("-wal"), crashed + QLatin1String("-wal")));
    }
    m_file = crashed;
    spoil([](QFile& file) { fill(file, 0, 100, 'x'); });
    const QByteArray log = digest(m_file + QLatin1String("-wal"));
    const Salvage salvage(m_file);
    QCOMPARE(salvage.nodeCount(), qint64(Cameras + 1));
    QCOMPARE(digest(m_file + QLatin1String("-wal")), log);
}

void tst_Salvage::olderVersions_data()
{
    QTest::addColumn<int>("version");
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("size");
    for (int version = 1; version <= StoreSchema::latest(); ++version) {
        QTest::addRow("version %d, header", version) << version << 0 << 100;
        QTest::addRow("version %d, first page", version) << version << 0 << PageSize;
    }
}

/// Their tables have fewer columns, and others where ours have theirs.
void tst_Salvage::olderVersions()
{
    QFETCH(int, version);
    QFETCH(int, from);
    QFETCH(int, size);
    constexpr int rows = 300;
    QFile::remove(m_file);
    {
        StoreError error;
        const auto store = SqliteStore::open(m_file, &error, SqliteStore::Check::First, version);
        QVERIFY2(store, qPrintable(error.detail));
        Transaction transaction(*store, Transaction::Write);
        for (int i = 0; i < rows; ++i) {
            const QString id = QString::fromLatin1("n%1").arg(i);
            store->run("INSERT INTO nodes VALUES (?, ?, 2, 'camera', '', -1, '')", {i + 1, id});
            store->run("INSERT INTO audit (time, user, host, code, data) VALUES (?, 'u', 'h', 1, ?)",
                       {i, id});
            store->run("INSERT INTO changes (kind, id) VALUES ('n', ?)", {id});
        }
        transaction.commit();
    }
    spoil([=](QFile& file) { fill(file, from, size, 'x'); });
    const Salvage salvage(m_file);
    QVERIFY2(!salvage.error(), qPrintable(salvage.error().detail));
    QCOMPARE(salvage.nodeCount(), qint64(rows));
    StoreError error;
    QVERIFY2(StoreBackup::verify(salvage.file(), &error), qPrintable(error.detail));
    const std::unique_ptr<HostNodeDB> db = openDatabase(salvage.file());
    QVERIFY(db);
    PlainSql sql(salvage.file());
    QCOMPARE(
        sql.run(QLatin1String("SELECT count(*) FROM audit WHERE user = 'u' AND data = 'n' || time")).toInt(),
        rows);
    QCOMPARE(sql.run(QLatin1String("SELECT count(*) FROM changes WHERE kind = 'n'")).toInt(), rows);
    QCOMPARE(sql.run(QLatin1String("SELECT count(*) FROM change_sets WHERE purpose <> 'start'")).toInt(), 0);
}

/// What happened stays in the logs, though nothing says any more who did it.
void tst_Salvage::lostChangeSets()
{
    const auto count = [](const QString& file, const char* table) {
        return PlainSql(file).run(QLatin1String("SELECT count(*) FROM ") + QLatin1String(table)).toInt();
    };
    const int changes = count(m_file, "changes");
    const int audit = count(m_file, "audit");
    const int page = PlainSql(m_file)
                         .run(QLatin1String("SELECT rootpage FROM sqlite_schema WHERE name = 'change_sets'"))
                         .toInt();
    spoil([=](QFile& file) { fill(file, qint64(page - 1) * PageSize, PageSize, 'x'); });
    const Salvage salvage(m_file);
    QCOMPARE(salvage.nodeCount(), qint64(Cameras));
    StoreError error;
    QVERIFY2(StoreBackup::verify(salvage.file(), &error), qPrintable(error.detail));
    QCOMPARE(count(salvage.file(), "changes"), changes);
    QCOMPARE(count(salvage.file(), "audit"), audit);
    QCOMPARE(count(salvage.file(), "change_sets"), 0);
}

void tst_Salvage::nothingIsLeftBehind()
{
    spoil([](QFile& file) { fill(file, 0, 100, 'x'); });
    {
        const Salvage salvage(m_file);
        struct stat info;
        QCOMPARE(::stat(QFile::encodeName(QFileInfo(salvage.file()).path()).constData(), &info), 0);
        QCOMPARE(int(info.st_mode & 0777), 0700);
        QCOMPARE(files().size(), 2);
    }
    QCOMPARE(files(), QStringList(QLatin1String("nodes.kodb")));
}

void tst_Salvage::nothingToRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("name,address\n");
    QTest::newRow("half a header") << m_sound.left(50);
    QTest::newRow("one page") << m_sound.left(PageSize);
    QTest::newRow("large and something else") << QByteArray(1000000, 'x');
}

void tst_Salvage::nothingToRead()
{
    QFETCH(QByteArray, content);
    spoil([=](QFile& file) {
        file.resize(0);
        file.write(content);
    });
    {
        const Salvage salvage(m_file);
        QCOMPARE(salvage.error().kind, StoreError::Damaged);
        QCOMPARE(salvage.file(), QString());
    }
    QCOMPARE(files(), QStringList(QLatin1String("nodes.kodb")));
}

void tst_Salvage::viewsAreNotRun()
{
    PlainSql sql(m_file);
    sql.run(QLatin1String("ALTER TABLE audit RENAME TO other"));
    sql.run(
        QLatin1String("CREATE VIEW audit AS WITH RECURSIVE c(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM c)"
                      " SELECT x, x AS time, 'u' AS user, 'h' AS host, 1 AS code, 'd' AS data FROM c"));
    const Salvage salvage(m_file);
    QCOMPARE(salvage.nodeCount(), qint64(Cameras));
    QCOMPARE(PlainSql(salvage.file()).run(QLatin1String("SELECT count(*) FROM audit")).toInt(), 0);
}

void tst_Salvage::pipeIsNotWaitedFor()
{
    m_file = m_folder->filePath(QLatin1String("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(m_file).constData(), 0600), 0);
    QVERIFY(Salvage(m_file).error());
}

KO_TEST_MAIN(tst_Salvage)
#include "tst_salvage.moc"
