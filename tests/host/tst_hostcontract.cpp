#include "support/TestMain.h"

#include "conformance/Conformance.h"
#include "database/HostNodeDB.h"

#include <QTemporaryDir>

using namespace ko;

/// This host keeps the contract that it is one implementation of.
class tst_HostContract : public QObject
{
    Q_OBJECT

private slots:
    void keeps_data();
    void keeps();
};

void tst_HostContract::keeps_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("rule");
    const QVector<conformance::Rule> rules = conformance::rules();
    for (const int type : {int(IPDeviceType), int(ViewType)}) {
        for (const conformance::Rule& rule : rules)
            QTest::addRow("%s, type %d", rule.name, type) << type << QByteArray(rule.name);
    }
}

void tst_HostContract::keeps()
{
    QFETCH(const int, type);
    QFETCH(const QByteArray, rule);
    const QTemporaryDir folder;
    int opened = 0;
    conformance::Host host;
    host.type = ENodeType(type);
    host.isFoundAgain = type != ViewType; // which has nothing but a name (docs/lookup.md)
    host.open = [&] {
        StoreError error;
        return HostNodeDB::open(folder.filePath(QString::number(++opened)), &error);
    };
    QCOMPARE(conformance::findings(host, rule.constData()), QStringList());
}

KO_TEST_MAIN(tst_HostContract)
#include "tst_hostcontract.moc"
