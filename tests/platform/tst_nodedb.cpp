#include "support/SmallHost.h"
#include "support/TestMain.h"

#include <QSignalSpy>

using ko::NodeDB;
using testsupport::SmallNodeDB;

class Receiver : public QObject
{
    Q_OBJECT

public:
    QStringList ids;

public slots:
    void take(ko::NodeID id) { ids.append(id); }
};

class tst_NodeDB : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { QVERIFY(!NodeDB::getDB()); }

    void noneAtFirst();
    void lastConstructed();
    void takenBackInAnyOrder();
    void signalsCarryTheId();
    void queuedConnection();
    void pastDatabaseDoesNotAnswer();
};

void tst_NodeDB::noneAtFirst()
{
    QVERIFY(!NodeDB::getDB());
}

void tst_NodeDB::lastConstructed()
{
    const SmallNodeDB first;
    QCOMPARE(NodeDB::getDB(), &first);
    {
        const SmallNodeDB second;
        QCOMPARE(NodeDB::getDB(), &second);
        const SmallNodeDB third;
        QCOMPARE(NodeDB::getDB(), &third);
    }
    QCOMPARE(NodeDB::getDB(), &first);
}

void tst_NodeDB::takenBackInAnyOrder()
{
    auto first = std::make_unique<SmallNodeDB>();
    auto second = std::make_unique<SmallNodeDB>();
    auto third = std::make_unique<SmallNodeDB>();
    second.reset();
    QCOMPARE(NodeDB::getDB(), third.get());
    third.reset();
    QCOMPARE(NodeDB::getDB(), first.get());
    first.reset();
    QVERIFY(!NodeDB::getDB());
    const SmallNodeDB another;
    QCOMPARE(NodeDB::getDB(), &another);
}

void tst_NodeDB::signalsCarryTheId()
{
    SmallNodeDB db;
    QSignalSpy inserted(&db, SIGNAL(nodeInserted(ko::NodeID)));
    QSignalSpy updated(&db, SIGNAL(nodeUpdated(ko::NodeID)));
    QSignalSpy removed(&db, SIGNAL(nodeRemoved(ko::NodeID)));
    QVERIFY(inserted.isValid() && updated.isValid() && removed.isValid());
    emit db.nodeInserted("a");
    emit db.nodeUpdated("b");
    emit db.nodeRemoved("c");
    QCOMPARE(inserted.first().first().toString(), QString("a"));
    QCOMPARE(updated.first().first().toString(), QString("b"));
    QCOMPARE(removed.first().first().toString(), QString("c"));
}

void tst_NodeDB::queuedConnection()
{
    SmallNodeDB db;
    Receiver receiver;
    QVERIFY(QObject::connect(&db, SIGNAL(nodeUpdated(ko::NodeID)), &receiver, SLOT(take(ko::NodeID)),
                             Qt::QueuedConnection));
    emit db.nodeUpdated("cam");
    QVERIFY(receiver.ids.isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(receiver.ids, QStringList("cam"));
}

void tst_NodeDB::pastDatabaseDoesNotAnswer()
{
    SmallNodeDB first;
    first.addCamera("cam", "Gate");
    {
        const SmallNodeDB second;
        QVERIFY(NodeDB::getDB()->node("cam").null());
    }
    QCOMPARE(NodeDB::getDB()->node("cam")->name(), QString("Gate"));
}

KO_TEST_MAIN(tst_NodeDB)
#include "tst_nodedb.moc"
