#include "RandomParcels.h"
#include "sharing/ParcelCoding.h"
#include "support/TestMain.h"

using namespace ko;
using namespace testsupport;

/// What a desk sends is what another one reads, and anything else is refused.
class TestParcelCoding : public QObject
{
    Q_OBJECT

private slots:
    void anyParcelComesBack();
    void nothingCrashesTheReader();
    void whatIsNoParcelIsRefused_data();
    void whatIsNoParcelIsRefused();
    void noTextOfASiteHoldsZero();
};

namespace {

QByteArray one(const SharedParcel& parcel)
{
    const QByteArray list = ParcelCoding::encode({parcel});
    return list.mid(1, list.size() - 2);
}

QJsonDocument json(const QString& text)
{
    return QJsonDocument::fromJson(text.toUtf8());
}

} // namespace

void TestParcelCoding::anyParcelComesBack()
{
    RandomParcels random(4711);
    for (int i = 0; i < 1000; ++i) {
        const SharedParcel parcel = random.next();
        QString error;
        const std::optional<SharedParcel> read = ParcelCoding::decode(one(parcel), &error);
        QVERIFY2(read, qPrintable(error));
        QCOMPARE(read->cause.id, parcel.cause.id);
        QCOMPARE(read->cause.user, parcel.cause.user);
        QCOMPARE(read->cause.station, parcel.cause.station);
        QCOMPARE(read->cause.time, parcel.cause.time);
        QCOMPARE(read->cause.purpose, parcel.cause.purpose);
        QCOMPARE(read->cause.subject, parcel.cause.subject);
        QCOMPARE(read->lines.size(), parcel.lines.size());
        for (int j = 0; j < parcel.lines.size(); ++j) {
            const SharedLine& given = parcel.lines.at(j);
            const SharedLine& found = read->lines.at(j);
            QCOMPARE(found.line, given.line);
            QCOMPARE(found.kind, given.kind);
            QCOMPARE(found.id, given.id);
            QCOMPARE(found.before.isNull(), given.before.isNull());
            QCOMPARE(found.after.isNull(), given.after.isNull());
            if (given.kind == 'S') {
                QCOMPARE(found.before, given.before);
                QCOMPARE(found.after, given.after);
            } else {
                QCOMPARE(json(found.before), json(given.before));
                QCOMPARE(json(found.after), json(given.after));
            }
        }
    }
}

void TestParcelCoding::nothingCrashesTheReader()
{
    RandomParcels random(815);
    int refused = 0;
    for (int i = 0; i < 5000; ++i) {
        QByteArray bytes = one(random.next());
        for (int count = 1 + random.below(3); count > 0; --count) {
            const int at = random.below(int(bytes.size()));
            if (random.below(3) == 0)
                bytes.remove(at, 1 + random.below(20));
            else
                bytes[at] = "\"{}[]:,0n\\\x01\xFF"[random.below(12)];
            if (bytes.isEmpty())
                bytes = "{}";
        }
        QString error;
        if (!ParcelCoding::decode(bytes, &error))
            ++refused;
        else
            QVERIFY(error.isEmpty());
    }
    QVERIFY2(refused > 2500 && refused < 5000, qPrintable(QString::number(refused)));
}

void TestParcelCoding::whatIsNoParcelIsRefused_data()
{
    QTest::addColumn<QByteArray>("line");
    const auto row = [](const char* name, const char* line) { QTest::newRow(name) << QByteArray(line); };
    row("no kind", R"({"line":1,"id":"n","before":null,"after":"x"})");
    row("kind of two letters", R"({"line":1,"kind":"NN","id":"n","before":null,"after":"x"})");
    row("other kind", R"({"line":1,"kind":"A","id":"n","before":null,"after":"x"})");
    row("no side", R"({"line":1,"kind":"S","id":"n","before":null,"after":null})");
    row("side is missing", R"({"line":1,"kind":"S","id":"n","after":"x"})");
    row("half a line", R"({"line":1.5,"kind":"S","id":"n","before":null,"after":"x"})");
    row("setting is a number", R"({"line":1,"kind":"S","id":"n","before":null,"after":5})");
    row("node is a text", R"({"line":1,"kind":"N","id":"n","before":null,"after":"x"})");
    row("node without a name",
        R"({"line":1,"kind":"N","id":"n","before":null,"after":{"properties":{},"type":1,"place":1}})");
    row("node without a place",
        R"({"line":1,"kind":"N","id":"n","before":null,"after":{"name":"","properties":{},"type":1}})");
    row("property of no type",
        R"({"line":1,"kind":"N","id":"n","before":{"name":"","properties":{}},"after":{"name":"","properties":{"a":[9,1]}}})");
    row("property of another type",
        R"({"line":1,"kind":"N","id":"n","before":{"name":"","properties":{}},"after":{"name":"","properties":{"a":[0,1]}}})");
    row("integer too large",
        R"({"line":1,"kind":"N","id":"n","before":{"name":"","properties":{}},"after":{"name":"","properties":{"a":[2,4294967296]}}})");
    row("set with a wrong one",
        R"({"line":1,"kind":"N","id":"n","before":{"name":"","properties":{}},"after":{"name":"","properties":{"a":[4,{"b":[1]}]}}})");
    row("relation from both",
        R"({"line":1,"kind":"R","id":"n","before":{"to":"m","type":1,"place":1},"after":{"to":"m","type":1,"place":1}})");
    row("relation to nowhere",
        R"({"line":1,"kind":"R","id":"n","before":null,"after":{"type":1,"place":1}})");
    row("environments of threes", R"({"line":1,"kind":"E","id":"","before":[],"after":[["a","b","c"]]})");
}

void TestParcelCoding::whatIsNoParcelIsRefused()
{
    QFETCH(const QByteArray, line);
    const QByteArray head =
        R"({"version":1,"set":{"id":"a","user":"","station":"","time":1,"purpose":"edit","subject":""},"lines":[)";
    QString error;
    QVERIFY(ParcelCoding::decode(head + "]}", &error));
    QVERIFY(!ParcelCoding::decode(head + line + "]}", &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!ParcelCoding::decode(QByteArray(head).replace("\"version\":1", "\"version\":2") + "]}", &error));
}

void TestParcelCoding::noTextOfASiteHoldsZero()
{
    SharedParcel parcel;
    parcel.cause.subject = QStringLiteral("\\u0000 ") + QChar(0) + QStringLiteral(" \\");
    QString error;
    const std::optional<SharedParcel> read = ParcelCoding::decode(one(parcel), &error);
    QVERIFY2(read, qPrintable(error));
    QCOMPARE(read->cause.subject, QStringLiteral("\\u0000 ") + QChar(0xFFFD) + QStringLiteral(" \\"));
}

KO_TEST_MAIN(TestParcelCoding)
#include "tst_parcelcoding.moc"
