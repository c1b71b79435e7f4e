#include "support/TestMain.h"

#include "ko/MACAddress.h"

using ko::MACAddress;

class tst_MACAddress : public QObject
{
    Q_OBJECT

private slots:
    void accepted_data();
    void accepted();
    void refused_data();
    void refused();
    void nullAddress();
    void equality();
};

void tst_MACAddress::accepted_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("canonical");
    const char usual[] = "00:11:22:AA:BB:CC";
    const char* const forms[] = {"00:11:22:AA:BB:CC", "00-11-22-aa-bb-cc",   "00 11 22 aA Bb cC",
                                 "0011.22aa.bbcc",    "001122AABBCC",        "001122aabbcc",
                                 "  001122AABBCC  ",  "\t00:11:22:aa:bb:cc "};
    for (const char* form : forms)
        QTest::newRow(form) << QString(form) << QString(usual);
    QTest::newRow("zero") << "000000000000"
                          << "00:00:00:00:00:00";
    QTest::newRow("all") << "ffff.ffff.ffff"
                         << "FF:FF:FF:FF:FF:FF";
    QTest::newRow("leading zeros") << "00:00:00:00:00:0a"
                                   << "00:00:00:00:00:0A";
}

void tst_MACAddress::accepted()
{
    QFETCH(QString, text);
    QFETCH(QString, canonical);
    const MACAddress address(text);
    QVERIFY(!address.isNull());
    QCOMPARE(address.toString(true), canonical);
    QCOMPARE(address.toString(false), QString(canonical).remove(':'));
    QVERIFY(MACAddress(address.toString(true)) == address);
    QVERIFY(MACAddress(address.toString(false)) == address);
}

void tst_MACAddress::refused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("blanks") << "            ";
    QTest::newRow("eleven digits") << "001122AABBC";
    QTest::newRow("thirteen digits") << "001122AABBCC0";
    QTest::newRow("no hexadecimal digit") << "001122AABBCG";
    QTest::newRow("sign") << "+01122AABBCC";
    QTest::newRow("minus") << "-01122AABBCC";
    QTest::newRow("prefix") << "0x1122AABBCC";
    QTest::newRow("mixed separators") << "00:11-22:AA:BB:CC";
    QTest::newRow("separator missing") << "00:11:22:AABB:CC";
    QTest::newRow("separator at the end") << "00:11:22:AA:BB:CC:";
    QTest::newRow("separators in fours") << "0011:22AA:BBCC";
    QTest::newRow("dots in pairs") << "00.11.22.AA.BB.CC";
    QTest::newRow("uneven groups") << "0:011:22:AA:BB:CC";
    QTest::newRow("two blanks") << "00  11 22 AA BB C";
    QTest::newRow("five pairs") << "00:11:22:AA:BB";
    QTest::newRow("seven pairs") << "00:11:22:AA:BB:CC:DD";
    QTest::newRow("digits of another script") << QString::fromUtf8("٠٠١١٢٢٣٣٤٤٥٥");
    QTest::newRow("words") << "none";
}

void tst_MACAddress::refused()
{
    QFETCH(QString, text);
    const MACAddress address(text);
    QVERIFY(address.isNull());
    QVERIFY(address.toString(true).isEmpty());
    QVERIFY(address == MACAddress());
}

void tst_MACAddress::nullAddress()
{
    QVERIFY(MACAddress().isNull());
    QVERIFY(MACAddress().toString(true).isEmpty());
    QVERIFY(MACAddress().toString(false).isEmpty());
    // An address of zeros is an address.
    QVERIFY(MACAddress(QString("000000000000")) != MACAddress());
}

void tst_MACAddress::equality()
{
    QVERIFY(MACAddress(QString("00:11:22:aa:bb:cc")) == MACAddress(QString("0011.22AA.BBCC")));
    QVERIFY(MACAddress(QString("00:11:22:aa:bb:cc")) != MACAddress(QString("00:11:22:aa:bb:cd")));
}

KO_TEST_MAIN(tst_MACAddress)
#include "tst_macaddress.moc"
