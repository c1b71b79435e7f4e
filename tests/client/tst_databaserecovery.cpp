#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/TestMain.h"

#include "DatabaseRecovery.h"
#include "store/StoreBackup.h"

#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QPushButton>

using namespace ko;

/// A damaged database at the start: what the user is offered, and what becomes of it.
class tst_DatabaseRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void backupIsOfferedFirst();
    void savedDataCanBeUsed();
    void quitChangesNothing();
    void nothingToOffer();
    void namesAreShownAsTheyAre();

private:
    void makeDatabase(const QString& file, int cameras);
    void damage(const QString& file);
    int camerasIn(const QString& file) const;
    bool offerAndPress(const char* button);

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_file;
    StoreError m_error;
    QString m_told;
    QStringList m_buttons;
};

void tst_DatabaseRecovery::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_file = m_folder->filePath(QStringLiteral("nodes.kodb"));
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

void tst_DatabaseRecovery::damage(const QString& file)
{
    QFile writer(file);
    QVERIFY(writer.open(QIODevice::ReadWrite));
    writer.seek(writer.size() / 2);
    QCOMPARE(writer.write(QByteArray(6000, 'x')), qint64(6000));
    writer.close();
    QVERIFY(!HostNodeDB::open(file, &m_error));
    QCOMPARE(m_error.kind, StoreError::Damaged);
}

int tst_DatabaseRecovery::camerasIn(const QString& file) const
{
    StoreError error;
    const auto db = HostNodeDB::open(file, &error);
    return db ? int(db->nodeIdList(IPDeviceType).size()) : -1;
}

bool tst_DatabaseRecovery::offerAndPress(const char* button)
{
    testsupport::ModalAnswer answer([this, button](QWidget* window) {
        auto* box = qobject_cast<QMessageBox*>(window);
        m_told = box->text() + QLatin1Char('\n') + box->informativeText();
        m_buttons.clear();
        const QList<QAbstractButton*> buttons = box->buttons();
        for (QAbstractButton* each : buttons)
            m_buttons.append(each->text().remove(QLatin1Char('&')));
        for (QAbstractButton* each : buttons) {
            if (each->text().remove(QLatin1Char('&')) == QLatin1String(button))
                QTest::mouseClick(each, Qt::LeftButton);
        }
    });
    return DatabaseRecovery::offer(m_file, m_error, nullptr);
}

void tst_DatabaseRecovery::backupIsOfferedFirst()
{
    makeDatabase(m_file, 300);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    damage(m_file);
    QVERIFY(offerAndPress("Restore the Backup"));
    QVERIFY(m_told.contains(QLatin1String("The newest good backup was made at ")));
    QCOMPARE(camerasIn(m_file), 300);
    QCOMPARE(QDir(m_folder->path()).entryList({QStringLiteral("*.damaged-*")}).size(), 1);
}

void tst_DatabaseRecovery::savedDataCanBeUsed()
{
    makeDatabase(m_file, 3000);
    damage(m_file);
    QVERIFY(offerAndPress("Use What Was Saved"));
    QVERIFY(m_told.contains(QLatin1String("There is no good backup.")));
    QVERIFY(!m_buttons.contains(QLatin1String("Restore the Backup")));
    QVERIFY(camerasIn(m_file) > 2500);
}

void tst_DatabaseRecovery::quitChangesNothing()
{
    makeDatabase(m_file, 300);
    QVERIFY(!StoreBackup::add(m_file, &m_error).isEmpty());
    damage(m_file);
    QFile file(m_file);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QVERIFY(!offerAndPress("Quit"));
    file.seek(0);
    QCOMPARE(file.readAll(), before);
}

void tst_DatabaseRecovery::nothingToOffer()
{
    makeDatabase(m_file, 3);
    QVERIFY(QFile::resize(m_file, 50)); // half a header
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(!offerAndPress("Quit"));
    QVERIFY(m_told.contains(QLatin1String("Nothing of it could be read.")));
    QCOMPARE(m_buttons.filter(QStringLiteral("Use")), QStringList());
}

void tst_DatabaseRecovery::namesAreShownAsTheyAre()
{
    m_file = m_folder->filePath(QStringLiteral("<b>%1 & co.kodb"));
    makeDatabase(m_file, 3);
    QVERIFY(QFile::resize(m_file, 50));
    QVERIFY(!HostNodeDB::open(m_file, &m_error));
    QVERIFY(!offerAndPress("Quit"));
    QVERIFY(m_told.contains(QLatin1String("<b>%1 & co.kodb\" is damaged.")));
}

KO_TEST_MAIN(tst_DatabaseRecovery)
#include "tst_databaserecovery.moc"
