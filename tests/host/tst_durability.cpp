#include "StoreTesting.h"
#include "audit/AuditLog.h"
#include "audit/ProgramLogEntry.h"
#include "ko/Environments.h"
#include "store/SqliteStore.h"
#include "support/TestMain.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>

using namespace ko;
using namespace testsupport;

namespace {

const QLatin1String mainCamera("main");

/// Edit number i of an endless row: whole, it leaves i in six places and the nodes "i", "i-1" and "i-2".
class Editor : public QObject
{
public:
    explicit Editor(std::unique_ptr<HostNodeDB> db)
        : m_db(std::move(db))
        , m_number(m_db->globalRecordingFolderPath().toInt())
        , m_camera(named(*m_db, mainCamera))
    {
        if (m_camera.isEmpty())
            m_camera = addCamera(*m_db, mainCamera, QLatin1String("0"));
        next();
    }

    static QString named(const HostNodeDB& db, const QString& name)
    {
        const QVector<NodeSummary> all = db.summaries();
        for (const NodeSummary& summary : all) {
            if (summary.name == name)
                return summary.id;
        }
        return QString();
    }

private:
    void next()
    {
        QMetaObject::invokeMethod(
            this,
            [this] {
                edit(++m_number);
                QMetaObject::invokeMethod(
                    this, [this] { confirm(); }, Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
    }

    void edit(int i)
    {
        const QString text = QString::number(i);
        Node* node = m_db->beginUpdateNode(m_camera, -1);
        node->setStringProperty(QLatin1String("Address"), text);
        node->setStringProperty(QLatin1String("Model"), text + QString(500, QLatin1Char('.')));
        node->setIntProperty(QLatin1String("Port"), i);
        m_db->endUpdateNode(node);
        m_db->auditLog().log(ProgramLogEntry(1, text));
        const QString added = addNode(*m_db, RecordingFolderType, text, text);
        m_db->addNodeRelation(m_camera, added, RecordingFolderRelation);
        m_db->removeNode(named(*m_db, QString::number(i - 3)));
        m_db->setGlobalRecordingFolderPath(text);
    }

    /// The event loop has come round; this call was put into its queue after the one that stores.
    void confirm()
    {
        std::printf("%d\n", m_number);
        std::fflush(stdout);
        next();
    }

    const std::unique_ptr<HostNodeDB> m_db;
    int m_number;
    QString m_camera;
};

} // namespace

class TestDurability : public QObject
{
    Q_OBJECT

private slots:
    void confirmedEditsSurviveKills();
    void firstStartSurvivesKills();
    void migrationSurvivesKills();
    void changesAreStoredAtTheEnd();

private:
    static void start(QProcess& process, const QString& mode, const QString& file);
    static int expectWhole(const QString& file);
};

void TestDurability::start(QProcess& process, const QString& mode, const QString& file)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {mode, file});
    QVERIFY(process.waitForStarted());
}

/// The number of the last edit; everything it did must be there and nothing of another one.
int TestDurability::expectWhole(const QString& file)
{
    const std::unique_ptr<HostNodeDB> db = openDatabase(file);
    if (!db)
        return -1;
    const int number = db->globalRecordingFolderPath().toInt();
    const QString camera = Editor::named(*db, mainCamera);
    if (number == 0)
        return db->summaries().count() <= 1 ? 0 : -2;
    const QString text = QString::number(number);
    const kom::smart<const Node> node = db->node(camera);
    QStringList names(mainCamera);
    for (int i = qMax(1, number - 2); i <= number; ++i)
        names.append(QString::number(i));
    QStringList found;
    const QVector<NodeSummary> all = db->summaries();
    for (const NodeSummary& summary : all)
        found.append(summary.name);
    const bool whole = node->stringProperty(QLatin1String("Address"), QString()) == text &&
                       db->summary(camera).location == text &&
                       node->stringProperty(QLatin1String("Model"), QString()).startsWith(text + '.') &&
                       node->intProperty(QLatin1String("Port"), 0) == number && found == names &&
                       db->relatedNodes(camera, RecordingFolderRelation).count() == names.count() - 1 &&
                       db->auditLog().count() == number;
    return whole ? number : -3;
}

void TestDurability::confirmedEditsSurviveKills()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    int confirmed = 0;
    int lost = 0;
    for (int round = 0; round < 40; ++round) {
        QProcess editor;
        start(editor, QLatin1String("--edit"), file);
        const int atLeast = round % 4; // some are killed before they have confirmed anything
        QElapsedTimer timer;
        timer.start();
        while (atLeast > 0 && !editor.canReadLine() && timer.elapsed() < 20000)
            editor.waitForReadyRead(1000);
        QThread::msleep(QRandomGenerator::global()->bounded(60));
        editor.kill();
        QVERIFY(editor.waitForFinished());
        QCOMPARE(editor.exitStatus(), QProcess::CrashExit);
        const QList<QByteArray> lines = editor.readAllStandardOutput().split('\n');
        for (const QByteArray& line : lines)
            confirmed = qMax(confirmed, line.toInt());
        QCOMPARE(PlainSql(file).run(QLatin1String("PRAGMA integrity_check")).toString(), QLatin1String("ok"));
        const int stored = expectWhole(file);
        QVERIFY2(stored == confirmed || stored == confirmed + 1,
                 qPrintable(QString::fromLatin1("confirmed %1, stored %2").arg(confirmed).arg(stored)));
        lost += stored == confirmed ? 0 : 1;
        confirmed = stored;
    }
    QVERIFY2(confirmed > 100, qPrintable(QString::number(confirmed)));
    qInfo("%d edits, %d of 40 kills came between a commit and its confirmation", confirmed, lost);
}

void TestDurability::firstStartSurvivesKills()
{
    for (int round = 0; round < 20; ++round) {
        const QTemporaryDir folder;
        const QString file = folder.filePath(QLatin1String("nodes.db"));
        QProcess editor;
        start(editor, QLatin1String("--edit"), file);
        QElapsedTimer timer;
        timer.start();
        while (!QFile::exists(file) && timer.elapsed() < 20000)
            QThread::usleep(100);
        QThread::usleep(QRandomGenerator::global()->bounded(3000));
        editor.kill();
        QVERIFY(editor.waitForFinished());
        QVERIFY(expectWhole(file) >= 0);
        QCOMPARE(openDatabase(file)->environments().getList().count(), 1);
    }
}

void TestDurability::migrationSurvivesKills()
{
    const QTemporaryDir folder;
    const QString original = folder.filePath(QLatin1String("original.db"));
    {
        StoreError error;
        const std::unique_ptr<SqliteStore> store =
            SqliteStore::open(original, &error, SqliteStore::Check::First, 1);
        QVERIFY(store);
        Transaction transaction(*store, Transaction::Write);
        for (int i = 1; i <= 30000; ++i)
            store->run("INSERT INTO nodes VALUES (?, ?, 2, 'camera', '', -1, ?)",
                       {i, QString::number(i), QString::number(i)});
        transaction.commit();
    }
    int old = 0;
    for (int round = 0; round < 20; ++round) {
        const QString file = folder.filePath(QString::fromLatin1("%1.db").arg(round));
        QVERIFY(QFile::copy(original, file));
        QProcess editor;
        start(editor, QLatin1String("--edit"), file);
        QElapsedTimer timer;
        timer.start();
        const QStringList backup = {QFileInfo(file).fileName() + QLatin1String(".backup*")};
        while (QDir(folder.path()).entryList(backup).isEmpty() && timer.elapsed() < 20000)
            QThread::usleep(100);
        QThread::usleep(QRandomGenerator::global()->bounded(40000));
        editor.kill();
        QVERIFY(editor.waitForFinished());
        QString version;
        {
            PlainSql plain(file);
            QCOMPARE(plain.run(QLatin1String("PRAGMA integrity_check")).toString(), QLatin1String("ok"));
            version = plain.run(QLatin1String("PRAGMA user_version")).toString();
            QVERIFY(plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt() >= 30000);
            const int indexes = plain
                                    .run(QLatin1String("SELECT count(*) FROM sqlite_master WHERE name IN "
                                                       "('nodes_lookup', 'relations_destination')"))
                                    .toInt();
            QCOMPARE(indexes, version == QLatin1String("1") ? 0 : 2);
        }
        old += version == QLatin1String("1") ? 1 : 0;
        QVERIFY(openDatabase(file));
    }
    qInfo("%d of 20 kills came before the commit of the migration", old);
}

void TestDurability::changesAreStoredAtTheEnd()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    const QString id = addCamera(*openDatabase(file), QLatin1String("a"), QLatin1String("10.0.0.1"));
    QCOMPARE(openDatabase(file)->nodeIdList(AllNodeTypes), QStringList(id));
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--edit")) {
        std::unique_ptr<HostNodeDB> db = openDatabase(arguments.value(2));
        if (!db)
            return 1;
        const Editor editor(std::move(db));
        return QApplication::exec();
    }
    testsupport::prepareApplication();
    TestDurability test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_durability.moc"
