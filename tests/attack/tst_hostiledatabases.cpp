#include "../host/Workloads.h"
#include "Attack.h"
#include "BoxCloser.h"
#include "Programs.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "audit/AuditLog.h"
#include "store/StoreBackup.h"

#include <QTimer>

#include <sqlite3.h>
#include <sys/stat.h>

using namespace ko;
using namespace testsupport;
using namespace attack;

/// Database files that are damaged, or made to do harm, meet each command and the window: nothing crashes or
/// hangs, and what is refused stays as it is.
class TestHostileDatabases : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void eachCommand();

private:
    void checkRound(Random& random, const QByteArray& round);

    QTemporaryDir m_folder;
    QVector<QString> m_models; ///< sound databases, each in a folder with what is beside it
};

namespace {

/// A client on this database for a while, as its user sees it; run in a process of its own.
int runClient(const QString& file)
{
    const BoxCloser boxes;
    StoreError error;
    const std::unique_ptr<HostNodeDB> db = HostNodeDB::open(file, &error, HostNodeDB::Check::Behind);
    if (!db)
        return 3;
    bool isUsable = true;
    QObject::connect(db.get(), &HostNodeDB::checked, qApp, [&isUsable](const StoreError& found) {
        isUsable = !found;
        if (found)
            QApplication::exit();
    });
    MainWindow window(*db);
    window.show();
    QTimer::singleShot(100, &window, [&] {
        const QStringList ids = db->nodeIdList(AllNodeTypes);
        for (const QString& id : ids)
            db->node(id);
        db->auditLog().count();
        addCamera(*db, QLatin1String("added"), QLatin1String("10.9.9.9"));
        QTimer::singleShot(50, qApp, &QApplication::quit);
    });
    QApplication::exec();
    return isUsable ? 0 : 3;
}

void copyFolder(const QString& from, const QString& to)
{
    QDir().mkpath(to);
    const QStringList names = QDir(from).entryList(QDir::Files);
    for (const QString& name : names)
        QFile::copy(from + QLatin1Char('/') + name, to + QLatin1Char('/') + name);
}

/// Contents of all files of the folder that a refusal must leave: all but the index of a log, which is made
/// anew.
QMap<QString, QByteArray> contents(const QString& folder)
{
    QMap<QString, QByteArray> found;
    const QStringList names = QDir(folder).entryList(QDir::Files);
    for (const QString& name : names) {
        if (!name.endsWith(QLatin1String("-shm")))
            found.insert(name, digest(folder + QLatin1Char('/') + name));
    }
    return found;
}

QByteArray changedFiles(const QMap<QString, QByteArray>& before, const QMap<QString, QByteArray>& after)
{
    QMap<QString, QByteArray> names = before;
    for (auto it = after.begin(); it != after.end(); ++it)
        names.insert(it.key(), it.value());
    QByteArray changed;
    for (auto it = names.begin(); it != names.end(); ++it) {
        const QString& name = it.key();
        if (before.value(name) != after.value(name))
            changed += name.toUtf8() + (!before.contains(name)  ? " came, "
                                        : !after.contains(name) ? " went, "
                                                                : ", ");
    }
    return changed;
}

/// Spoils a file by one of some rules.
class Spoiler
{
public:
    Spoiler(Random& random, const QString& file)
        : m_random(random)
        , m_file(file)
    {
    }

    void spoil()
    {
        switch (below(m_random, 10)) {
        case 0:
            return flip(1 + below(m_random, 3), m_file);
        case 1:
            return flip(1 + below(m_random, 300), m_file);
        case 2:
            return truncate();
        case 3:
            return movePages();
        case 4:
            return fill();
        case 5:
            return header();
        case 6:
            return beside();
        case 7:
            return otherSchema();
        case 8:
            return otherRows();
        default:
            return otherKind();
        }
    }

private:
    QByteArray read()
    {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void write(const QString& name, const QByteArray& content)
    {
        QFile file(name);
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(name));
    }

    QByteArray noise(int size)
    {
        QByteArray bytes(size, '\0');
        for (char& byte : bytes)
            byte = char(m_random());
        return bytes;
    }

    void flip(int count, const QString& name)
    {
        QByteArray content = read();
        // Where the tables are described, as often as anywhere.
        const int size = oneIn(m_random, 2) ? int(content.size()) : qMin(4096, int(content.size()));
        for (int i = 0; i < count && size > 0; ++i)
            content[below(m_random, size)] = char(m_random());
        write(name, content);
    }

    void truncate()
    {
        const QByteArray content = read();
        write(m_file, content.left(oneIn(m_random, 4) ? 0 : below(m_random, int(content.size()) + 1)));
    }

    void movePages()
    {
        constexpr int page = 4096;
        QByteArray content = read();
        const int pages = int(content.size()) / page;
        for (int i = 1 + below(m_random, 4); i > 0 && pages > 1; --i) {
            const int from = below(m_random, pages) * page;
            const int to = below(m_random, pages) * page;
            const QByteArray moved = content.mid(from, page);
            if (oneIn(m_random, 2))
                content.replace(from, page, content.mid(to, page));
            content.replace(to, page, moved);
        }
        write(m_file, content);
    }

    void fill()
    {
        QByteArray content = read();
        const int size = 1 + below(m_random, 20000);
        const int at = below(m_random, qMax(1, int(content.size()) - size));
        content.replace(at, size, oneIn(m_random, 2) ? QByteArray(size, '\0') : noise(size));
        write(m_file, content);
    }

    void header()
    {
        QByteArray content = read();
        static const int places[] = {16, 18, 19, 20, 21, 24, 28, 32, 36, 40,
                                     44, 48, 52, 56, 60, 64, 68, 92, 96};
        const int place = anyOf(m_random, places);
        static const char* const values[] = {"\0\0\0\0", "\xff\xff\xff\xff", "\0\0\0\1", "\x7f\xff\xff\xff",
                                             "\0\0\0\2"};
        content.replace(place, 4, QByteArray(anyOf(m_random, values), 4));
        write(m_file, content);
    }

    void beside()
    {
        static const char* const ends[] = {"-wal", "-shm", "-journal"};
        const QString name = m_file + QLatin1String(anyOf(m_random, ends));
        if (oneIn(m_random, 3))
            return flip(1 + below(m_random, 50), name); // the database itself, spoilt
        QByteArray content = noise(below(m_random, 20000));
        static const char* const starts[] = {"\x37\x7f\x06\x82\0\x2d\xe2\x18\0\0\x10\0",
                                             "\xd9\xd5\x05\xf9\x20\xa1\x63\xd7"};
        content.prepend(QByteArray(anyOf(m_random, starts), 8));
        write(name, content);
        if (oneIn(m_random, 4))
            write(m_file, QByteArray());
    }

    void sql(const QByteArray& statements)
    {
        sqlite3* handle = nullptr;
        sqlite3_open(QFile::encodeName(m_file).constData(), &handle);
        sqlite3_exec(handle, statements.constData(), nullptr, nullptr, nullptr);
        sqlite3_close(handle);
    }

    void otherSchema()
    {
        static const char endless[] = "WITH RECURSIVE e(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM e)";
        static const char* const tables[] = {"nodes",        "node_properties", "relations",   "settings",
                                             "environments", "audit",           "program_log", "changes"};
        const QByteArray table = anyOf(m_random, tables);
        switch (below(m_random, 9)) {
        case 0:
            return sql("DROP TABLE " + table);
        case 1:
            return sql("PRAGMA foreign_keys = OFF; DROP TABLE " + table + "; CREATE VIEW " + table + " AS " +
                       endless +
                       " SELECT x AS n, x AS id, 2 AS type, x AS name, x AS location, 0 AS recording, x AS "
                       "lookup, x AS "
                       "key, x AS value, x AS node, x AS seq, x AS kind, x AS position, x AS time, x AS line "
                       "FROM e");
        case 2:
            return sql("CREATE TRIGGER t BEFORE INSERT ON " + table + " BEGIN " + "INSERT INTO settings " +
                       endless + " SELECT x, x FROM e; END");
        case 3:
            return sql("CREATE TRIGGER t AFTER UPDATE ON " + table + " BEGIN DELETE FROM nodes; END");
        case 4:
            return sql("ALTER TABLE " + table + " ADD COLUMN extra DEFAULT 5");
        case 5:
            return sql(
                "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = replace(sql, 'NOT NULL', '') "
                "WHERE name = '" +
                table + "'");
        case 6:
            return sql(
                "PRAGMA writable_schema = ON; UPDATE sqlite_schema SET rootpage = abs(random() % 20) WHERE "
                "name = '" +
                table + "'");
        case 7:
            return sql("CREATE VIEW other AS " + QByteArray(endless) +
                       " SELECT x FROM e; CREATE TABLE more (x)");
        default:
            return sql("PRAGMA writable_schema = ON; UPDATE sqlite_schema SET sql = 'CREATE TABLE " + table +
                       " (a, b)' WHERE name = '" + table + "'");
        }
    }

    void otherRows()
    {
        static const char* const statements[] = {
            "UPDATE nodes SET id = CAST(id AS BLOB)",
            "UPDATE nodes SET id = x'ff' || id",
            "UPDATE nodes SET n = 9223372036854775807 - n",
            "UPDATE nodes SET n = -n",
            "UPDATE nodes SET type = 9223372036854775807, name = x'00ff', recording = 'x', lookup = x'80'",
            "UPDATE node_properties SET properties = zeroblob(20000000) WHERE rowid = 1",
            "UPDATE node_properties SET properties = x'ff'",
            "UPDATE node_properties SET properties = replace(properties, '[0,', '[1,')",
            "UPDATE node_properties SET properties = replace(properties, ':[', ':[[[[')",
            "UPDATE node_properties SET properties = "
            "'{\"Name\":[0,-9223372036854775808],\"Port\":[2,1e999]}'",
            "PRAGMA foreign_keys = OFF; UPDATE node_properties SET node = node + 1000",
            "PRAGMA foreign_keys = OFF; UPDATE relations SET source = source + 1000",
            "UPDATE node_properties SET properties = replace(properties, '[0,', '[77,'), mac = x'ff', "
            "extension = -1",
            "UPDATE node_properties SET properties = properties || properties",
            "UPDATE sqlite_sequence SET seq = 9223372036854775807",
            "UPDATE sqlite_sequence SET seq = 'x'",
            "DELETE FROM sqlite_sequence",
            "UPDATE settings SET value = value || value",
            "INSERT OR REPLACE INTO settings VALUES ('proxy.port', '-99999999999999'), ('bandwidth', 'x')",
            "INSERT OR REPLACE INTO settings VALUES ('environment.active', 'x'), ('secrets.toSeal', '1')",
            "DELETE FROM environments",
            "INSERT INTO environments VALUES (900, 'x', 'x'), (901, 'x', 'x')",
            "UPDATE audit SET time = -9223372036854775808, code = -1, data = '{'",
            "INSERT INTO audit VALUES (NULL, 1, 'u', 'h', 4294967295, '[[[[')",
            "UPDATE program_log SET level = 99, line = x'ff00'",
            "PRAGMA user_version = 1",
            "PRAGMA user_version = 2",
            "PRAGMA user_version = 0",
            "PRAGMA user_version = 99",
            "PRAGMA user_version = -1",
            "PRAGMA journal_mode = DELETE; PRAGMA page_size = 512; VACUUM",
            "PRAGMA journal_mode = DELETE; PRAGMA page_size = 65536; VACUUM",
            "PRAGMA journal_mode = DELETE; PRAGMA auto_vacuum = 1; VACUUM",
        };
        sql(anyOf(m_random, statements));
    }

    void otherKind()
    {
        switch (below(m_random, 4)) {
        case 0:
            return write(m_file, noise(below(m_random, 100000)));
        case 1:
            return write(m_file, "SQLite format 3" + QByteArray(1, '\0') + noise(8000));
        case 2:
            QFile::remove(m_file);
            return sql(
                "CREATE TABLE nodes (n, id); PRAGMA application_id = 1265255490; PRAGMA user_version = 3");
        default:
            QFile::remove(m_file);
            ::mkfifo(QFile::encodeName(m_file).constData(), 0600);
        }
    }

    Random& m_random;
    const QString m_file;
};

} // namespace

void TestHostileDatabases::initTestCase()
{
    // One that was closed, one that a crash has left with its log, and one of the first version.
    for (const char* name : {"closed", "crashed", "old"}) {
        const QString folder = m_folder.filePath(QLatin1String(name));
        const QString file = folder + QLatin1String("/nodes.kodb");
        QVERIFY(QDir().mkpath(folder));
        m_models.append(folder);
        if (folder.endsWith(QLatin1String("old"))) {
            makeOldDatabase(file, 40);
            continue;
        }
        Edits work;
        std::unique_ptr<HostNodeDB> db = openDatabase(file);
        for (int i = 0; i < 40; ++i)
            addCamera(*db, QString::fromLatin1("Camera %1").arg(i), QString::fromLatin1("10.0.0.%1").arg(i));
        work.prepare(*db);
        for (int i = 1; i < 6; ++i) {
            work.step(*db, i);
            QVERIFY(db->flush());
        }
        if (folder.endsWith(QLatin1String("crashed"))) {
            copyFolder(folder, folder + QLatin1String("-copy"));
            m_models.last() += QLatin1String("-copy");
        }
    }
}

void TestHostileDatabases::eachCommand()
{
    for (Rounds rounds("hostiledatabases", 25); rounds.next();) {
        checkRound(rounds.random(), rounds.name());
        if (QTest::currentTestFailed())
            return;
    }
}

void TestHostileDatabases::checkRound(Random& random, const QByteArray& round)
{
    const QTemporaryDir folder;
    const QString hostileFolder = folder.filePath(QLatin1String("hostile"));
    const QString soundFolder = folder.filePath(QLatin1String("sound"));
    copyFolder(anyOf(random, m_models), hostileFolder);
    copyFolder(m_models.first(), soundFolder);
    const QString hostile = hostileFolder + QLatin1String("/nodes.kodb");
    const QString sound = soundFolder + QLatin1String("/nodes.kodb");
    Spoiler(random, hostile).spoil();

    const QString list = folder.filePath(QLatin1String("list.csv"));
    QFile writer(list);
    QVERIFY(writer.open(QIODevice::WriteOnly) && writer.write("address,name\n10.8.0.1,new\n") > 0);
    writer.close();
    const QString out = folder.filePath(QLatin1String("out"));
    const QVector<QStringList> commands = {
        {"client", hostile},
        {"--db", hostile, "--import", list},
        {"--db", hostile, "--export", out},
        {"--db", hostile, "--backup", out},
        {"--db", sound, "--backup", hostile},
        {"--db", sound, "--restore", hostile},
        {"--db", hostile, "--restore", sound},
    };
    const QStringList command = anyOf(random, commands);
    const auto hostileBefore = contents(hostileFolder);
    const auto soundBefore = contents(soundFolder);
    int exitCode = 0;
    QByteArray output;
    const QByteArray wrong = runProgram(command, &exitCode, &output);
    const QByteArray what = round + ' ' + command.join(QLatin1Char(' ')).toUtf8() + ": " + output + wrong;
    QVERIFY2(wrong.isEmpty(), what.constData());
    const bool isCopy =
        command.contains(QLatin1String("--backup")) || command.contains(QLatin1String("--restore"));
    // 2 of the others: the database is good, and what is in it cannot be exported.
    if (exitCode == 3 || (exitCode == 2 && isCopy)) {
        const QByteArray changed = changedFiles(hostileBefore, contents(hostileFolder)) +
                                   changedFiles(soundBefore, contents(soundFolder));
        QVERIFY2(changed.isEmpty(), ("changed, although refused: " + changed + what).constData());
    } else if (exitCode == 0 && command.contains(QLatin1String("--backup"))) {
        StoreError error;
        QVERIFY2(StoreBackup::verify(command.last(), &error), (what + error.detail.toUtf8()).constData());
    }
}

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    prepareApplication();
    if (argc == 3 && QByteArray(argv[1]) == "client")
        return runClient(QFile::decodeName(argv[2]));
    TestHostileDatabases test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_hostiledatabases.moc"
