#include "support/Patience.h"
#include "support/TestMain.h"

#include "recording/KoFFSDevice.h"
#include "recording/VolumeProbe.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <atomic>
#include <thread>

#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace ko;

class tst_VolumeProbe : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void mountPoints();
    void rootOf_data();
    void rootOf();
    void networkPathsAreNotTouched();
    void markerOfAMountedVolume();
    void markerThatIsAPipe();
    void volumeThatHangs();
    void whatIsKnownIsNotAskedAgain();
    void contractAsksTheHost();

private:
    bool mount();
    void writeMarker(const QByteArray& content);

    QTemporaryDir m_folder;
    bool m_mounted = false;
};

/// A volume of its own in the test's folder; takes the right to mount.
bool tst_VolumeProbe::mount()
{
    m_mounted = ::mount("none", QFile::encodeName(m_folder.path()).constData(), "tmpfs", 0, "size=1m") == 0;
    return m_mounted;
}

void tst_VolumeProbe::writeMarker(const QByteArray& content)
{
    QFile marker(m_folder.filePath(QLatin1String(VolumeProbe::Marker)));
    QVERIFY(marker.open(QIODevice::WriteOnly));
    marker.write(content);
    marker.close();
    VolumeProbe::setLook(nullptr); // forget what was known
}

void tst_VolumeProbe::cleanup()
{
    VolumeProbe::setLook(nullptr);
    KoFFSDevice::setProbe(nullptr);
    if (m_mounted)
        ::umount2(QFile::encodeName(m_folder.path()).constData(), MNT_DETACH);
    m_mounted = false;
}

void tst_VolumeProbe::mountPoints()
{
    const QByteArray text = "22 1 8:1 / / rw - ext4 /dev/sda1 rw\n"
                            "30 22 0:25 / /mnt/with\\040blank rw shared:1 - nfs4 server:/x rw\n"
                            "broken line\n"
                            "31 22 0:26 / relative rw - x y z\n"
                            "\n"
                            "32 22 0:27 / /mnt/back\\134slash rw - tmpfs none rw\n";
    QCOMPARE(VolumeProbe::mountPoints(text),
             QStringList({QStringLiteral("/"), QStringLiteral("/mnt/with blank"),
                          QStringLiteral("/mnt/back\\slash")}));
    QCOMPARE(VolumeProbe::mountPoints(QByteArray()), QStringList());
    QVERIFY(VolumeProbe::mountPoints(QByteArray("1 2 3 4 /end\\0")).contains(QStringLiteral("/end\\0")));
}

void tst_VolumeProbe::rootOf_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("root");
    QTest::newRow("the root itself") << "/mnt/a"
                                     << "/mnt/a";
    QTest::newRow("below") << "/mnt/a/b/c"
                           << "/mnt/a";
    QTest::newRow("inner volume") << "/mnt/a/inner/x"
                                  << "/mnt/a/inner";
    QTest::newRow("same beginning") << "/mnt/ab"
                                    << "/";
    QTest::newRow("dots") << "/mnt/a/../b"
                          << "/";
    QTest::newRow("relative") << "mnt/a"
                              << "";
    QTest::newRow("share") << "//mnt/a"
                           << "";
    QTest::newRow("share of another system") << "\\\\server\\share"
                                             << "";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_VolumeProbe::rootOf()
{
    QFETCH(QString, path);
    QFETCH(QString, root);
    const QStringList points = {QStringLiteral("/"), QStringLiteral("/mnt/a"),
                                QStringLiteral("/mnt/a/inner")};
    QCOMPARE(VolumeProbe::rootOf(path, points), root);
    QCOMPARE(VolumeProbe::rootOf(path, points.mid(1)), root);
}

void tst_VolumeProbe::networkPathsAreNotTouched()
{
    std::atomic<int> looks{0};
    VolumeProbe::setLook([&looks](const QString&) { return ++looks > 0; });
    QVERIFY(!VolumeProbe::isVolume(QStringLiteral("//server/share")));
    QVERIFY(!VolumeProbe::isVolume(QStringLiteral("\\\\server\\share")));
    QVERIFY(!VolumeProbe::isVolume(QStringLiteral("10_0_0_1")));
    QCOMPARE(looks.load(), 0);
}

void tst_VolumeProbe::markerOfAMountedVolume()
{
    if (!mount())
        QEXPECT_FAIL("", "takes the right to mount", Abort);
    QVERIFY(m_mounted);
    QVERIFY(!VolumeProbe::isVolume(m_folder.path()));
    writeMarker("KoFFS 1\n");
    QVERIFY(VolumeProbe::isVolume(m_folder.path()));
    QVERIFY(VolumeProbe::isVolume(m_folder.filePath(QStringLiteral("recordings/gate"))));
    QVERIFY(!VolumeProbe::isVolume(m_folder.path() + QStringLiteral("-beside")));
    writeMarker("something else");
    QVERIFY(!VolumeProbe::isVolume(m_folder.path()));
}

void tst_VolumeProbe::markerThatIsAPipe()
{
    if (!mount())
        QEXPECT_FAIL("", "takes the right to mount", Abort);
    QVERIFY(m_mounted);
    // Opening it hangs until somebody writes, as a file on a dead server does.
    const QByteArray marker = QFile::encodeName(m_folder.filePath(QLatin1String(VolumeProbe::Marker)));
    QCOMPARE(::mkfifo(marker.constData(), 0600), 0);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!VolumeProbe::isVolume(m_folder.path()));
    QVERIFY(timer.elapsed() < 2000);
    QFile writer(QFile::decodeName(marker));
    QVERIFY(writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    writer.write("KoFFS 1\n");
    writer.close();
    KO_TRY_VERIFY(VolumeProbe::isVolume(m_folder.path()));
}

void tst_VolumeProbe::volumeThatHangs()
{
    const auto release = std::make_shared<std::atomic<bool>>(false);
    const auto looks = std::make_shared<std::atomic<int>>(0);
    VolumeProbe::setLook([release, looks](const QString&) {
        ++*looks;
        while (!*release)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return true;
    });
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!VolumeProbe::isVolume(QStringLiteral("/")));
    QVERIFY(timer.elapsed() >= VolumeProbe::Patience);
    timer.start();
    for (int i = 0; i < 100; ++i)
        QVERIFY(!VolumeProbe::isVolume(QStringLiteral("/some/where")));
    QVERIFY(timer.elapsed() < 100 * VolumeProbe::Patience / 10); // nobody waits for it a second time
    QCOMPARE(looks->load(), 1);
    *release = true;
    KO_TRY_VERIFY(VolumeProbe::isVolume(QStringLiteral("/")));
    QCOMPARE(looks->load(), 1);
}

void tst_VolumeProbe::whatIsKnownIsNotAskedAgain()
{
    std::atomic<int> looks{0};
    VolumeProbe::setLook([&looks](const QString&) { return ++looks > 0; });
    for (int i = 0; i < 1000; ++i)
        QVERIFY(VolumeProbe::isVolume(QStringLiteral("/somewhere/%1").arg(i)));
    QCOMPARE(looks.load(), 1);
}

void tst_VolumeProbe::contractAsksTheHost()
{
    VolumeProbe::setLook([](const QString&) { return true; });
    QVERIFY(KoFFSDevice::get(L"/x").null());
    VolumeProbe::install();
    const kom::smart<CKoFFSVolume> volume = KoFFSDevice::get(L"/x");
    QVERIFY(!volume.null());
    QCOMPARE(volume->path(), std::wstring(L"/x"));
    QVERIFY(KoFFSDevice::get(L"//server/x").null());
}

KO_TEST_MAIN(tst_VolumeProbe)
#include "tst_volumeprobe.moc"
