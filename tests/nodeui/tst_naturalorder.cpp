#include "support/TestMain.h"

#include "utils/NaturalOrder.h"

#include <algorithm>

using namespace ko;

/// The order in which people count.
class tst_NaturalOrder : public QObject
{
    Q_OBJECT

private slots:
    void pairs_data();
    void pairs();
    void isAnOrder();
};

void tst_NaturalOrder::pairs_data()
{
    QTest::addColumn<QString>("less");
    QTest::addColumn<QString>("more");
    QTest::newRow("numbers") << "Camera 2"
                             << "Camera 10";
    QTest::newRow("case") << "camera 2"
                          << "Camera 10";
    QTest::newRow("zeros") << "Camera 009"
                           << "Camera 10";
    QTest::newRow("first digit") << "10.0.0.19"
                                 << "10.0.0.20";
    QTest::newRow("second number") << "2.9"
                                   << "2.10";
    QTest::newRow("huge") << "n99999999999999999998"
                          << "n99999999999999999999";
    QTest::newRow("shorter") << "Camera"
                             << "Camera 1";
    QTest::newRow("empty") << ""
                           << "0";
    QTest::newRow("number before letter") << "Camera 1"
                                          << "Camera a";
    QTest::newRow("end in zeros") << "a0"
                                  << "a00b";
}

void tst_NaturalOrder::pairs()
{
    QFETCH(QString, less);
    QFETCH(QString, more);
    QVERIFY(compareNaturally(less, more, Qt::CaseInsensitive) < 0);
    QVERIFY(compareNaturally(more, less, Qt::CaseInsensitive) > 0);
    QCOMPARE(compareNaturally(less, less, Qt::CaseSensitive), 0);
}

void tst_NaturalOrder::isAnOrder()
{
    const QStringList texts = {"a1", "A1",  "a01", "a",  "",  "1",        "01",
                               "1a", "a 2", "a10", "a9", "ä", "\xc3\x84", "a1b2"};
    const auto sign = [](int value) { return (value > 0) - (value < 0); };
    for (const QString& a : texts) {
        for (const QString& b : texts) {
            const int ab = sign(compareNaturally(a, b, Qt::CaseInsensitive));
            QCOMPARE(ab, -sign(compareNaturally(b, a, Qt::CaseInsensitive)));
            for (const QString& c : texts) {
                if (ab <= 0 && compareNaturally(b, c, Qt::CaseInsensitive) <= 0)
                    QVERIFY(compareNaturally(a, c, Qt::CaseInsensitive) <= 0);
            }
        }
    }
}

KO_TEST_MAIN(tst_NaturalOrder)
#include "tst_naturalorder.moc"
