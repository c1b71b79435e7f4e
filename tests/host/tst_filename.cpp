#include "support/TestMain.h"

#include "exchange/FileName.h"

#include <QRandomGenerator>
#include <QTemporaryDir>

using namespace ko;

class tst_FileName : public QObject
{
    Q_OBJECT

private slots:
    void textStaysText();
    void allBytesComeBack();
    void namesThatAreNoTextAreRefused();
};

void tst_FileName::textStaysText()
{
    const QString text = QString::fromUtf8("/a/Tür \\ \U0001f4f7.csv");
    QCOMPARE(FileName::fromBytes(text.toUtf8()), text);
    QCOMPARE(FileName::toBytes(text), text.toUtf8());
    QCOMPARE(FileName::refusal(text), QString());
    QCOMPARE(FileName::refusal(QString()), QString());
}

void tst_FileName::allBytesComeBack()
{
    QRandomGenerator random(11);
    for (int round = 0; round < 20000; ++round) {
        QByteArray bytes(random.bounded(1, 12), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = char(random.bounded(4) ? random.bounded(0x80, 0x100) : random.bounded(1, 0x80));
        const QString name = FileName::fromBytes(bytes);
        QCOMPARE(FileName::toBytes(name), bytes);
        QCOMPARE(FileName::refusal(name).isEmpty(), QString::fromUtf8(bytes).toUtf8() == bytes);
    }
}

void tst_FileName::namesThatAreNoTextAreRefused()
{
    const QTemporaryDir folder;
    const QString name = folder.filePath("a") + QChar(QChar::ReplacementCharacter);
    QVERIFY(FileName::refusal(name).contains(name)); // what a dialog makes of a name that is not text
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(FileName::refusal(name), QString()); // it is really called so
    QVERIFY(FileName::refusal(FileName::fromBytes("a\xff\xc3")).contains("\"a\\xff\\xc3\""));
}

KO_TEST_MAIN(tst_FileName)
#include "tst_filename.moc"
