#include "support/HostFixture.h"
#include "support/ModalAnswer.h"
#include "support/Soak.h"
#include "support/TestMain.h"

#include "MainWindow.h"
#include "NodeListModel.h"
#include "NodeListView.h"
#include "audit/AuditLog.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>

#include <cstdio>

using namespace ko;
using testsupport::child;

namespace {

const QLatin1String editorArgument("--edit-without-end");

QString nameOf(int number)
{
    return QStringLiteral("Camera %1").arg(number);
}

QString addressOf(int number)
{
    return QStringLiteral("10.0.%1.%2").arg(number / 256).arg(number % 256);
}

/// A client whose user edits one camera again and again, through the window and its dialog. Says each
/// number once its dialog has closed and the event loop has come round; every fifth edit is typed and
/// then cancelled, under a name that must never be stored.
class TirelessUser : public QObject
{
public:
    explicit TirelessUser(HostNodeDB& db)
        : m_window(db)
        , m_camera(db.nodeIdList(IPDeviceType).value(0))
        , m_number(db.node(m_camera)->name().section(QLatin1Char(' '), 1).toInt())
    {
        m_window.show();
        next();
    }

private:
    void next()
    {
        QTimer::singleShot(0, this, [this] { edit(++m_number); });
    }

    void edit(int number)
    {
        const bool confirms = number % 5 != 0;
        QTimer::singleShot(0, this, [number, confirms] {
            QWidget* dialog = QApplication::activeModalWidget();
            child<QLineEdit>(dialog, "nameLineEdit")
                ->setText(confirms ? nameOf(number) : QStringLiteral("never"));
            child<QLineEdit>(dialog, "addressLineEdit")->setText(addressOf(number));
            const auto which = confirms ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel;
            QTest::mouseClick(child<QDialogButtonBox>(dialog, "buttonBox")->button(which), Qt::LeftButton);
        });
        m_window.findChild<NodeListView*>()->selectNode(m_camera);
        m_window.findChild<QAction*>(QStringLiteral("actionEdit"))->trigger();
        // The dialog has closed. What is said next comes after the turn of the event loop that stores.
        QMetaObject::invokeMethod(
            this,
            [this, number, confirms] {
                if (confirms) {
                    std::printf("%d\n", number);
                    std::fflush(stdout);
                }
                next();
            },
            Qt::QueuedConnection);
    }

    MainWindow m_window;
    const QString m_camera;
    int m_number;
};

} // namespace

class tst_ClientProcess : public QObject
{
    Q_OBJECT

private slots:
    void confirmedEditsSurviveKills();
    void editOfAnotherProcessIsShownWithinASecond();
};

void tst_ClientProcess::confirmedEditsSurviveKills()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("nodes.kodb"));
    {
        StoreError error;
        const auto db = HostNodeDB::open(file, &error);
        const auto hint = NodeTypes::driver(IPDeviceType)->createNodeHint(IPDeviceType);
        hint->setName(nameOf(0));
        hint.cast<NodeHintIPDevice>()->address = addressOf(0);
        db->newNodeHint(*hint);
    }
    int edits = 0;
    const int lives = testsupport::soakOr(40, 12);
    for (int life = 0; life < lives; ++life) {
        QProcess client;
        client.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        client.start(QCoreApplication::applicationFilePath(), {editorArgument, file});
        QVERIFY(client.waitForStarted());
        while (!client.canReadLine())
            QVERIFY(client.waitForReadyRead(20000));
        QThread::msleep(QRandomGenerator::global()->bounded(250));
        client.kill();
        QVERIFY(client.waitForFinished());
        int confirmed = 0;
        while (client.canReadLine())
            confirmed = client.readLine().trimmed().toInt();
        QVERIFY(confirmed > 0);

        StoreError error;
        const auto db = HostNodeDB::open(file, &error);
        QVERIFY2(db, qPrintable(error.message));
        const auto camera = db->node(db->nodeIdList(IPDeviceType).value(0)).cast<const IPDeviceNode>();
        const int stored = camera->name().section(QLatin1Char(' '), 1).toInt();
        QVERIFY2(stored >= confirmed, qPrintable(QStringLiteral("%1 < %2").arg(stored).arg(confirmed)));
        // The one that was under way may be whole; the next cannot have begun, unless it was cancelled.
        QVERIFY2(stored <= confirmed + 2, qPrintable(QStringLiteral("%1 > %2").arg(stored).arg(confirmed)));
        QCOMPARE(camera->name(), nameOf(stored));
        QCOMPARE(camera->address(), addressOf(stored));
        const std::vector<AuditRecord> records = db->auditLog().entries(0, 2, true);
        QCOMPARE(records.at(0).entry->text(),
                 QStringLiteral("Changed properties of device with name %1.").arg(nameOf(stored)));
        QVERIFY(records.at(1).entry->text().endsWith(QStringLiteral(" to %1.").arg(nameOf(stored))));
        edits = stored;
    }
    qInfo("%d edits in %d lives of the client", edits, lives);
}

void tst_ClientProcess::editOfAnotherProcessIsShownWithinASecond()
{
    testsupport::HostFixture host;
    const QString id = host.add(IPDeviceType, nameOf(0), addressOf(0));
    QVERIFY(host.db()->flush());
    MainWindow window(*host.db());
    window.show();
    const auto* model = window.findChild<NodeListModel*>();
    const QString before = model->index(0, NodeListModel::NameColumn).data().toString();

    QProcess other;
    other.start(QCoreApplication::applicationFilePath(), {editorArgument, host.fileName()});
    while (!other.canReadLine())
        QVERIFY(other.waitForReadyRead(20000));
    const auto shown = [model] { return model->index(0, NodeListModel::NameColumn).data().toString(); };
    QTRY_VERIFY_WITH_TIMEOUT(shown() != before, 1000);
    other.kill();
    QVERIFY(other.waitForFinished());

    // What came last is shown in the end, and this process can edit again.
    QTRY_COMPARE_WITH_TIMEOUT(shown(), host.db()->node(id)->name(), 1000);
    host.change(id,
                [](Node* node) { node->setStringProperty(QStringLiteral("Name"), QStringLiteral("Yard")); });
    QTRY_COMPARE_WITH_TIMEOUT(shown(), QStringLiteral("Yard"), 1000);
    QVERIFY(host.db()->flush());
}

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    testsupport::prepareApplication();
    if (argc == 3 && QString::fromLocal8Bit(argv[1]) == editorArgument) {
        StoreError error;
        const auto db = HostNodeDB::open(QString::fromLocal8Bit(argv[2]), &error);
        if (!db)
            return 1;
        const TirelessUser user(*db);
        return QApplication::exec();
    }
    tst_ClientProcess test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_clientprocess.moc"
