#include "client/AsClient.h"
#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/PlainTexts.h"

#include "DatabaseRecovery.h"
#include "store/StoreBackup.h"

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTimer>

#include <cstdio>

using namespace ko;

namespace {

const char chosenVariable[] = "KO_TEST_CHOSEN_DATABASE";

/// The user of the client: chooses the other file, notes what window comes then, and closes it.
void sitDown()
{
    const QString chosen = qEnvironmentVariable(chosenVariable);
    auto* look = new QTimer(QCoreApplication::instance());
    QObject::connect(look, &QTimer::timeout, look, [chosen] {
        QWidget* modal = QApplication::activeModalWidget();
        QMainWindow* window = nullptr;
        const QWidgetList all = QApplication::topLevelWidgets();
        for (QWidget* each : all)
            window = each->isVisible() && !window ? qobject_cast<QMainWindow*>(each) : window;
        if (auto* chooser = qobject_cast<QFileDialog*>(modal)) {
            testsupport::child<QLineEdit>(chooser, "fileNameEdit")->setText(chosen);
            static_cast<QDialog*>(chooser)->accept();
        } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            testsupport::ModalAnswer::press(QStringLiteral("Open Another..."))(box);
        } else if (window) {
            std::printf("%s\n", qPrintable(window->windowTitle()));
            std::fflush(stdout);
            window->close();
        }
    });
    if (!chosen.isEmpty())
        look->start(5);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(sitDown)

/// A database that cannot be opened at the start: what the user is offered, and what becomes of it.
class tst_DatabaseRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void backupIsOfferedFirst();
    void savedDataCanBeUsed();
    void savedDataOfATruncatedDatabase();
    void quitChangesNothing();
    void nothingToOffer();
    void overwrittenHeader_data();
    void overwrittenHeader();
    void fileOfAnotherKind();
    void failedRestoreIsTold();
    void lockedDatabaseCanBeTriedAgain();
    void anotherCanBeOpened_data();
    void anotherCanBeOpened();
    void cancelledChoiceAsksAgain();
    void clientGoesOnWithAnother();
    void namesAreShownAsTheyAre();

private:
    void makeDatabase(const QString& file, int cameras);
    void damage();
    int camerasIn(const QString& file) const;
    void overwrite(qint64 from, int size);
    QByteArray content() const;
    QStringList files() const;
    void noteBox(QMessageBox* box);
    bool offerAndPress(const char* button);
    bool offerAndChoose(const QString& name);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
    QString m_told;
    QStringList m_buttons;
    QStringList m_notPlain;
    int m_asked = 0;
};

void tst_DatabaseRecovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QStringLiteral("nodes.kodb"));
    m_notPlain.clear();
    m_asked = 0;
}

void tst_DatabaseRecovery::makeDatabase(const QString& file, int cameras)
{
    const auto db = HostNodeDB::open(file, &m_error);
    QVERIFY(db);
    for (int i = 0; i < cameras; ++i) {
        const auto hint = NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType);
        hint->setName(QStringLiteral("Camera %1").arg(i));
        db->newNodeHint(*hint);
    }
    QVERIFY(db->flush());
}

void tst_DatabaseRecovery::overwrite(qint64 from, int size)
{
    QFile writer(m_file);
    QVERIFY(writer.open(QIODevice::ReadWrite));
    writer.seek(from);
    QCOMPARE(writer.write(QByteArray(size, 'x')), qint64(size));
    writer.close();
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
}

void tst_DatabaseRecovery::damage()
{
    overwrite(QFileInfo(m_file).size() / 2, 6000);
    QCOMPARE(m_error.kind, StoreError::Damaged);
}

QByteArray tst_DatabaseRecovery::content() const
{
    QFile file(m_file);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList tst_DatabaseRecovery::files() const
{
    return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

int tst_DatabaseRecovery::camerasIn(const QString& file) const
{
    StoreError error;
    const auto db = HostNodeDB::open(file, &error);
    return db ? int(db->nodeIdList(IPDeviceType).size()) : -1;
}

/// Keeps what a box says and offers, and which of its texts would not be shown as they are.
void tst_DatabaseRecovery::noteBox(QMessageBox* box)
{
    ++m_asked;
    m_told = box->text() + QLatin1Char('\n') + box->informativeText();
    m_buttons.clear();
    const QList<QAbstractButton*> buttons = box->buttons();
    for (const QAbstractButton* each : buttons)
        m_buttons.append(each->text().remove(QLatin1Char('&')));
    m_notPlain += testsupport::textsNotShownAsTheyAre(box);
}

bool tst_DatabaseRecovery::offerAndPress(const char* button)
{
    testsupport::ModalAnswer answer([this, button](QDialog* dialog) {
        noteBox(qobject_cast<QMessageBox*>(dialog));
        testsupport::ModalAnswer::press(QLatin1String(button))(dialog);
    });
    return DatabaseRecovery::offer(&m_file, m_error, nullptr);
}

/// Presses "Open Another..." and chooses \a name; without one cancels, and quits when asked again.
bool tst_DatabaseRecovery::offerAndChoose(const QString& name)
{
    bool cancelled = false;
    QTimer user;
    connect(&user, &QTimer::timeout, this, [&] {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* chooser = qobject_cast<QFileDialog*>(modal)) {
            testsupport::child<QLineEdit>(chooser, "fileNameEdit")->setText(name);
            cancelled = name.isEmpty();
            QDialog* dialog = chooser;
            cancelled ? dialog->reject() : dialog->accept();
        } else if (auto* box = qobject_cast<QMessageBox*>(modal)) {
            noteBox(box);
            const char* button = cancelled ? "Quit" : "Open Another...";
            testsupport::ModalAnswer::press(QLatin1String(button))(box);
        }
    });
    user.start(5);
    return DatabaseRecovery::offer(&m_file, m_error, nullptr);
}

void tst_DatabaseRecovery::backupIsOfferedFirst()
{
    makeDatabase(m_file, 300);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    damage();
    QVERIFY(offerAndPress("Restore the Backup"));
    QVERIFY(m_told.contains(QLatin1String("The newest good backup was made at ")));
    QCOMPARE(camerasIn(m_file), 300);
    QCOMPARE(QDir(m_folder->path()).entryList({QStringLiteral("*.damaged-*")}).size(), 1);
}

void tst_DatabaseRecovery::savedDataCanBeUsed()
{
    makeDatabase(m_file, 3000);
    damage();
    QVERIFY(offerAndPress("Use What Can Be Read"));
    QVERIFY(m_told.contains(QLatin1String("There is no good backup.")));
    QVERIFY(!m_buttons.contains(QLatin1String("Restore the Backup")));
    QVERIFY(camerasIn(m_file) > 2500);
    QVERIFY(m_told.contains(QStringLiteral(" node(s) in it can still be read.")));
    QCOMPARE(files().filter(QStringLiteral(".recovery")), QStringList());
}

void tst_DatabaseRecovery::savedDataOfATruncatedDatabase()
{
    makeDatabase(m_file, 3000);
    QVERIFY(QFile::resize(m_file, QFileInfo(m_file).size() * 2 / 3));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(offerAndPress("Use What Can Be Read"));
    QVERIFY(camerasIn(m_file) > 1900);
}

void tst_DatabaseRecovery::quitChangesNothing()
{
    makeDatabase(m_file, 300);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    damage();
    const QByteArray before = content();
    const QStringList filesBefore = files();
    for (int start = 0; start < 2; ++start)
        QVERIFY(!offerAndPress("Quit"));
    QCOMPARE(content(), before);
    QCOMPARE(files(), filesBefore);
}

void tst_DatabaseRecovery::nothingToOffer()
{
    makeDatabase(m_file, 3);
    QVERIFY(QFile::resize(m_file, 50)); // half a header
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(!offerAndPress("Quit"));
    QVERIFY(m_told.contains(QLatin1String("Nothing in it can be read.")));
    QCOMPARE(m_buttons.filter(QStringLiteral("Use")), QStringList());
}

void tst_DatabaseRecovery::overwrittenHeader_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("button");
    for (const char* button : {"Restore the Backup", "Use What Can Be Read"}) {
        QTest::addRow("whole, %s", button) << 0 << 100 << QString::fromLatin1(button);
        QTest::addRow("application, %s", button) << 68 << 4 << QString::fromLatin1(button);
    }
}

void tst_DatabaseRecovery::overwrittenHeader()
{
    QFETCH(int, from);
    QFETCH(int, size);
    QFETCH(QString, button);
    makeDatabase(m_file, 300);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    overwrite(from, size);
    QVERIFY(offerAndPress(qPrintable(button)));
    QVERIFY(m_told.contains(QLatin1String("is damaged, or another file is in its place")));
    QCOMPARE(camerasIn(m_file), 300);
    // SQLite may have left what belongs to it.
    QCOMPARE(files().filter(QRegularExpression(QStringLiteral("\\.damaged-[^-]*$"))).size(), 1);
}

/// What never was a database of ours is not taken for a damaged one.
void tst_DatabaseRecovery::fileOfAnotherKind()
{
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("name,address\n");
    file.close();
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(!offerAndPress("Quit"));
    m_buttons.sort();
    QCOMPARE(m_buttons.mid(0, 2).join(QLatin1Char(' ')) + m_buttons.last(),
             QStringLiteral("Open Another... QuitShow Details..."));
    QCOMPARE(content(), QByteArray("name,address\n"));
}

void tst_DatabaseRecovery::failedRestoreIsTold()
{
    makeDatabase(m_file, 300);
    const QString backup = StoreBackup::add(m_file, &m_error);
    damage();
    QString told;
    std::unique_ptr<testsupport::ModalAnswer> next;
    testsupport::ModalAnswer answer([&](QDialog* dialog) {
        QVERIFY(QFile::remove(backup));
        next = std::make_unique<testsupport::ModalAnswer>([&](QDialog* box) {
            told = qobject_cast<QMessageBox*>(box)->text();
            box->accept();
        });
        testsupport::ModalAnswer::press(QStringLiteral("Restore the Backup"))(dialog);
    });
    QVERIFY(DatabaseRecovery::offer(&m_file, m_error, nullptr)); // and is found damaged again
    QVERIFY2(told.contains(QStringLiteral("cannot be opened")), qPrintable(told));
}

void tst_DatabaseRecovery::lockedDatabaseCanBeTriedAgain()
{
    m_error = StoreError::make(StoreError::Locked, m_file, QString());
    const QString file = m_file;
    QVERIFY(offerAndPress("Retry"));
    QCOMPARE(m_file, file);
    QVERIFY(m_told.contains(QStringLiteral("held by another program")));
}

void tst_DatabaseRecovery::anotherCanBeOpened_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("exists");
    for (const int kind :
         {StoreError::NotADatabase, StoreError::NewerVersion, StoreError::ReadOnly, StoreError::Locked,
          StoreError::DiskFull, StoreError::CannotOpen, StoreError::Other, StoreError::Damaged}) {
        QTest::addRow("kind %d, a file", kind) << kind << true;
        QTest::addRow("kind %d, a new name", kind) << kind << false;
    }
}

void tst_DatabaseRecovery::anotherCanBeOpened()
{
    QFETCH(int, kind);
    QFETCH(bool, exists);
    const QString other = m_folder->filePath(QStringLiteral("other.kodb"));
    if (exists)
        makeDatabase(other, 2);
    m_error = StoreError::make(StoreError::Kind(kind), m_file, QString());
    QVERIFY(offerAndChoose(other));
    QCOMPARE(m_file, other);
    QCOMPARE(camerasIn(m_file), exists ? 2 : 0);
}

void tst_DatabaseRecovery::cancelledChoiceAsksAgain()
{
    m_error = StoreError::make(StoreError::CannotOpen, m_file, QString());
    const QString file = m_file;
    QVERIFY(!offerAndChoose(QString()));
    QCOMPARE(m_asked, 2);
    QCOMPARE(m_file, file);
}

/// The whole program, on a file that it cannot open, with a user who chooses another one.
void tst_DatabaseRecovery::clientGoesOnWithAnother()
{
    const QString other = m_folder->filePath(QStringLiteral("other.kodb"));
    makeDatabase(other, 2);
    QProcess client;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(chosenVariable), other);
    client.setProcessEnvironment(environment);
    client.start(QCoreApplication::applicationFilePath(),
                 {QLatin1String(testsupport::clientArgument), QStringLiteral("--db"),
                  m_folder->filePath(QStringLiteral("no/such"))});
    QVERIFY(client.waitForFinished(30000));
    QCOMPARE(client.exitCode(), 0);
    QCOMPARE(client.readAllStandardOutput(), QByteArray("other.kodb - Nodes\n"));
}

void tst_DatabaseRecovery::namesAreShownAsTheyAre()
{
    const QString folder = m_folder->filePath(QStringLiteral("<b>bold<"));
    QVERIFY(QDir().mkpath(folder));
    m_file = folder + QStringLiteral("/b><img src=x>%1 & co.kodb");
    makeDatabase(m_file, 3);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    QVERIFY(QFile::resize(m_file, 50));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(!offerAndPress("Quit"));
    QVERIFY(m_told.contains(QLatin1String("<b>bold</b><img src=x>%1 & co.kodb\" is damaged.")));
    m_error = StoreError::make(StoreError::Locked, m_file, QString());
    QVERIFY(!offerAndPress("Quit"));
    QVERIFY(m_told.contains(QLatin1String("<b>bold</b><img src=x>%1 & co.kodb\" is held")));
    QCOMPARE(m_notPlain, QStringList());
}

int main(int argc, char** argv)
{
    return testsupport::runTestOrClient<tst_DatabaseRecovery>(argc, argv);
}

#include "tst_databaserecovery.moc"
