#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Patience.h"
#include "support/TestMain.h"

#include "KeychainNotice.h"
#include "MainWindow.h"
#include "secrets/Keyring.h"

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QMessageBox>
#include <QProcess>

using namespace ko;

/// What the user sees of a keychain that lets wait, and of a key that is not there.
class tst_KeychainNotice : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void windowWaitsAsLongAsTheUser_data();
    void windowWaitsAsLongAsTheUser();
    void lineAndAnEnd();
    void retryLooksForTheKey();
    void withoutKeyOnTheCommandLine();

private:
    QString path(const char* name) const { return m_folder->filePath(QLatin1String(name)); }

    const QTemporaryDir m_busFolder;
    QLocalServer m_bus; ///< accepts, and never says a word
    std::unique_ptr<QTemporaryDir> m_folder;
    InstallationKey::Places m_places;
};

void tst_KeychainNotice::initTestCase()
{
    QVERIFY(m_bus.listen(m_busFolder.filePath(QStringLiteral("bus"))));
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(m_bus.fullServerName()));
}

void tst_KeychainNotice::cleanupTestCase()
{
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent");
}

void tst_KeychainNotice::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_places = InstallationKey::Places();
    m_places.keyFile = path("config/key");
    m_places.keychain = QStringLiteral("konodeui-test");
    m_places.keychainPatience = 1500;
    Keyring::ofInstallation().setPlaces(m_places);
}

void tst_KeychainNotice::cleanup()
{
    Keyring::ofInstallation().setPlaces(InstallationKey::Places::standard());
}

void tst_KeychainNotice::windowWaitsAsLongAsTheUser_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("without") << QStringLiteral("Continue Without Passwords") << true;
    QTest::newRow("quit") << QStringLiteral("Quit") << false;
}

void tst_KeychainNotice::windowWaitsAsLongAsTheUser()
{
    QFETCH(QString, button);
    KeychainNotice notice(KeychainNotice::Way::Window);
    QElapsedTimer time;
    time.start();
    qint64 shownAfter = -1;
    QTimer look;
    connect(&look, &QTimer::timeout, this, [&] {
        const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box && shownAfter < 0)
            shownAfter = time.elapsed();
        if (!box || time.elapsed() < 3000) // twice its patience
            return;
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* each : buttons) {
            if (each->text().remove(QLatin1Char('&')) == button)
                QTest::mouseClick(each, Qt::LeftButton);
        }
    });
    look.start(50);
    QTEST(notice.prepare(), "goesOn");
    QVERIFY2(shownAfter >= 0 && shownAfter < 2000, qPrintable(QString::number(shownAfter)));
    QVERIFY(time.elapsed() >= 3000);
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!QFile::exists(m_places.keyFile)); // no second key
}

void tst_KeychainNotice::lineAndAnEnd()
{
    KeychainNotice notice(KeychainNotice::Way::Line);
    QElapsedTimer time;
    time.start();
    QVERIFY(notice.prepare());
    QVERIFY(time.elapsed() >= 1400 && time.elapsed() < 5000);
    QVERIFY(!QFile::exists(m_places.keyFile));
}

void tst_KeychainNotice::retryLooksForTheKey()
{
    m_places.keychain.clear();
    m_places.keyFile = path("config/key");
    QFile obstacle(path("config")); // the folder cannot be made: a file has its name
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    Keyring::ofInstallation().setPlaces(m_places);
    testsupport::HostFixture host;
    MainWindow window(*host.db());
    window.show();
    const NodeID id = host.add(IPDeviceType, QStringLiteral("Gate"));
    host.change(id, [](Node* node) {
        node->setStringProperty(QStringLiteral("Password"), QStringLiteral("s3cret"));
    });
    const auto box = [&window] { return window.findChild<QMessageBox*>(QStringLiteral("storeFailedBox")); };
    KO_TRY_VERIFY(box());
    QVERIFY2(box()->text().contains(QStringLiteral("Passwords cannot be stored")), qPrintable(box()->text()));
    QVERIFY(box()->informativeText().contains(QStringLiteral("Gate")));
    QVERIFY(obstacle.remove());
    const QList<QAbstractButton*> buttons = box()->buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Retry"))
            QTest::mouseClick(button, Qt::LeftButton);
    }
    KO_TRY_VERIFY(!host.db()->hasUnstoredChanges());
    QVERIFY(QFile::exists(m_places.keyFile));
    QCOMPARE(host.db()->node(id)->stringProperty(QStringLiteral("Password"), QString()),
             QStringLiteral("s3cret"));
}

/// The program itself: what it says, and its exit code.
void tst_KeychainNotice::withoutKeyOnTheCommandLine()
{
    const auto call = [this](const QStringList& arguments, QByteArray* said) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                           QStringLiteral("unix:path=/nonexistent"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/../client/koclient"),
                      QStringList{QStringLiteral("--db"), path("nodes.kodb")} + arguments);
        if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
            return -1;
        *said = process.readAll();
        return process.exitCode();
    };
    QFile list(path("in.csv"));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,password\nGate,10.0.0.1,s3cret\n");
    list.close();
    QByteArray said;
    QCOMPARE(call({QStringLiteral("--import"), list.fileName()}, &said), 0);
    // The key is gone, and no other can be made.
    QVERIFY(QFile::rename(path("config"), path("moved")));
    QFile obstacle(path("config"));
    QVERIFY(obstacle.open(QIODevice::WriteOnly));
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write("name,address,password\nGate,10.0.0.1,other\nYard,10.0.0.2,another\n");
    list.close();
    QCOMPARE(call({QStringLiteral("--import"), list.fileName()}, &said), 2);
    QVERIFY2(said.contains("line 2, 3"), said.constData());
    QVERIFY2(said.contains("0 added, 0 updated"), said.constData());
    QCOMPARE(call({QStringLiteral("--export"), path("out.csv")}, &said), 2);
    QVERIFY2(said.contains("Gate"), said.constData());
    QVERIFY(!QFile::exists(path("out.csv")));
    QCOMPARE(
        call({QStringLiteral("--export"), path("out.csv"), QStringLiteral("--without-passwords")}, &said), 0);
    QVERIFY(obstacle.remove());
    QVERIFY(QFile::rename(path("moved"), path("config")));
    QCOMPARE(call({QStringLiteral("--export"), path("out.csv")}, &said), 0);
    QFile exported(path("out.csv"));
    QVERIFY(exported.open(QIODevice::ReadOnly));
    QVERIFY(exported.readAll().contains("s3cret"));
}

KO_TEST_MAIN(tst_KeychainNotice)
#include "tst_keychainnotice.moc"
