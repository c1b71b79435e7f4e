#include "kogen/Property.h"
#include "model/PropertyList.h"
#include "store/PropertyCoding.h"
#include "support/TestMain.h"

#include <cmath>
#include <limits>

using namespace ko;

class TestPropertyList : public QObject
{
    Q_OBJECT

private slots:
    void keepsNamesInOrder();
    void replacesAndRemoves();
    void takesOnlyTheFiveTypes();
    void isAValue();
    void namesAreShared();
    void differenceTurnsOneIntoTheOther_data();
    void differenceTurnsOneIntoTheOther();
    void sameValueIsExact();
    void propertiesHaveTheirType();
    void codedListIsReadAgain_data();
    void codedListIsReadAgain();
    void foreignCodingGivesNothing();
};

static QStringList names(const PropertyList& list)
{
    QStringList result;
    for (const PropertyList::Entry& entry : list)
        result.append(entry.name);
    return result;
}

/// "a=1,b=2" as a list of numbers.
static PropertyList parsed(const QString& text)
{
    PropertyList list;
    const QStringList parts = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& part : parts)
        list.set(part.section(QLatin1Char('='), 0, 0), part.section(QLatin1Char('='), 1).toInt());
    return list;
}

static bool same(const PropertyList& a, const PropertyList& b)
{
    return PropertyList::difference(a, b).isEmpty() && PropertyList::difference(b, a).isEmpty();
}

void TestPropertyList::keepsNamesInOrder()
{
    PropertyList list;
    for (const char* name : {"b", "B", "a", "bb", "", "c"})
        list.set(QLatin1String(name), 1);
    QCOMPARE(names(list), QStringList({QLatin1String(""), QLatin1String("B"), QLatin1String("a"),
                                       QLatin1String("b"), QLatin1String("bb"), QLatin1String("c")}));
    QVERIFY(list.contains(QLatin1String("bb")));
    QVERIFY(!list.contains(QLatin1String("BB")));
    QVERIFY(!list.value(QLatin1String("BB")).isValid());
}

void TestPropertyList::replacesAndRemoves()
{
    PropertyList list = parsed(QLatin1String("a=1,b=2"));
    list.set(QLatin1String("a"), QLatin1String("text"));
    QCOMPARE(list.count(), 2);
    QCOMPARE(list.value(QLatin1String("a")), QVariant(QLatin1String("text")));
    list.set(QLatin1String("a"), QVariant());
    list.set(QLatin1String("unknown"), QVariant());
    QCOMPARE(names(list), QStringList(QLatin1String("b")));
}

void TestPropertyList::takesOnlyTheFiveTypes()
{
    PropertyList list;
    const QString name = QLatin1String("a");
    const QVariant others[] = {1.0, 1u, 1ll, QByteArray("x"), QStringList(QLatin1String("x"))};
    for (const QVariant& other : others)
        list.set(name, other);
    QCOMPARE(list.count(), 0);
    list.set(name, 1);
    for (const QVariant& other : others)
        list.set(name, other);
    QCOMPARE(list.value(name), QVariant(1));
}

void TestPropertyList::isAValue()
{
    PropertyList list = parsed(QLatin1String("a=1"));
    const PropertyList copy = list;
    list.set(QLatin1String("a"), 2);
    list.set(QLatin1String("b"), 3);
    QVERIFY(same(copy, parsed(QLatin1String("a=1"))));
    QVERIFY(same(list, parsed(QLatin1String("a=2,b=3"))));
}

void TestPropertyList::namesAreShared()
{
    PropertyList first;
    PropertyList second;
    first.set(QString::fromLatin1("shared"), 1);
    second.set(QString::fromLatin1("shared"), 2);
    QCOMPARE(static_cast<const void*>(first.begin()->name.constData()),
             static_cast<const void*>(second.begin()->name.constData()));
}

void TestPropertyList::differenceTurnsOneIntoTheOther_data()
{
    QTest::addColumn<QString>("from");
    QTest::addColumn<QString>("to");
    QTest::addColumn<int>("count");

    QTest::newRow("nothing") << ""
                             << "" << 0;
    QTest::newRow("same") << "a=1,b=2"
                          << "a=1,b=2" << 0;
    QTest::newRow("all added") << ""
                               << "a=1,b=2" << 2;
    QTest::newRow("all removed") << "a=1,b=2"
                                 << "" << 2;
    QTest::newRow("changed") << "a=1,b=2,c=3"
                             << "a=1,b=9,c=3" << 1;
    QTest::newRow("removed in front") << "a=1,b=2"
                                      << "b=2" << 1;
    QTest::newRow("removed behind") << "a=1,b=2"
                                    << "a=1" << 1;
    QTest::newRow("all kinds") << "a=1,c=3,e=5"
                               << "b=2,c=4,d=4,e=5,f=6" << 5;
}

void TestPropertyList::differenceTurnsOneIntoTheOther()
{
    QFETCH(QString, from);
    QFETCH(QString, to);
    PropertyList list = parsed(from);
    const QVector<PropertyList::Entry> difference = PropertyList::difference(list, parsed(to));
    QTEST(int(difference.count()), "count");
    for (const PropertyList::Entry& entry : difference)
        list.set(entry.name, entry.value);
    QVERIFY(same(list, parsed(to)));
}

void TestPropertyList::sameValueIsExact()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    QVERIFY(PropertyList::sameValue(QString(), QString::fromLatin1("")));
    QVERIFY(!PropertyList::sameValue(QLatin1String("a"), QLatin1String("A")));
    QVERIFY(!PropertyList::sameValue(1, true));
    QVERIFY(!PropertyList::sameValue(QLatin1String("1"), 1));
    QVERIFY(!PropertyList::sameValue(1.0f, 1));
    QVERIFY(!PropertyList::sameValue(0.1f, std::nextafter(0.1f, 1.0f)));
    QVERIFY(PropertyList::sameValue(nan, nan));
    QVERIFY(PropertyList::sameValue(QVariant(), QVariant()));
    QVERIFY(!PropertyList::sameValue(QVariant(), 0));

    kogen::PropertySet a;
    kogen::PropertySet b;
    a.insert(PropertyList::toProperty(QLatin1String("f"), 0.1f));
    b.insert(PropertyList::toProperty(QLatin1String("f"), std::nextafter(0.1f, 1.0f)));
    QVERIFY(PropertyList::sameValue(QVariant::fromValue(a), QVariant::fromValue(a)));
    QVERIFY(!PropertyList::sameValue(QVariant::fromValue(a), QVariant::fromValue(b)));
    QVERIFY(!PropertyList::sameValue(QVariant::fromValue(a), QVariant::fromValue(kogen::PropertySet())));
}

void TestPropertyList::propertiesHaveTheirType()
{
    const QString name = QLatin1String("n");
    const QVector<QPair<QVariant, const char*>> cases = {{QLatin1String("x"), "string"},
                                                         {true, "bool"},
                                                         {-1, "int"},
                                                         {0.5f, "float"},
                                                         {QVariant::fromValue(kogen::PropertySet()), "set"}};
    for (const auto& example : cases) {
        const kom::smart<kogen::BaseProperty> property = PropertyList::toProperty(name, example.first);
        QVERIFY(!property.null());
        QCOMPARE(property->propertyName(), name);
        QCOMPARE(property->typeName(), QLatin1String(example.second));
        QVERIFY(PropertyList::sameValue(property->value(), example.first));
    }
    QVERIFY(PropertyList::toProperty(name, QVariant()).null());
    QVERIFY(PropertyList::toProperty(name, 1.0).null());
}

void TestPropertyList::codedListIsReadAgain_data()
{
    QTest::addColumn<QVariant>("value");
    for (const char* text :
         {"", "plain", "a \"quoted\" \\ path", "line\nend", "Größe 日本 \U0001F4F7", "\uFFFD", "]},{"})
        QTest::newRow(text) << QVariant(QString::fromUtf8(text));
    for (const int number : {0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        QTest::addRow("%d", number) << QVariant(number);
    for (const bool flag : {false, true})
        QTest::newRow(flag ? "true" : "false") << QVariant(flag);
    for (const float number :
         {0.1F, -1e30F, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
        QTest::addRow("%g", double(number)) << QVariant(number);
    kogen::PropertySet set;
    set.insert(PropertyList::toProperty(QLatin1String("inner"), QLatin1String("\"text\"")));
    QTest::newRow("set") << QVariant::fromValue(set);
}

/// Most texts are read without a document, which a blank at the beginning prevents.
void TestPropertyList::codedListIsReadAgain()
{
    QFETCH(QVariant, value);
    PropertyList list = parsed(QLatin1String("a=1,z=2"));
    list.set(QLatin1String("m"), value);
    list.set(QString::fromUtf8("\"Größe\""), value);
    for (int i = 0; i < 3; ++i) {
        QString json;
        PropertyCoding::appendJson(&json, list);
        QVERIFY2(same(*PropertyCoding::listFromText(json.toStdString()), list), qPrintable(json));
        QVERIFY2(same(*PropertyCoding::listFromText(' ' + json.toStdString()), list), qPrintable(json));
        QVERIFY(!PropertyCoding::listFromText(json.toStdString() + 'x'));
        QVERIFY(!PropertyCoding::listFromText(json.left(json.size() - 1).toStdString()));
        list.set(i == 0 ? QString::fromUtf8("\"Größe\"") : QLatin1String("m"), QVariant());
    }
}

void TestPropertyList::foreignCodingGivesNothing()
{
    for (const char* json : {"", "{", "[]", "null", "7", "{\"a\":[0,\"x\"]"})
        QVERIFY2(!PropertyCoding::listFromText(json), json);
    for (const char* json : {"{}", "{\"a\":1}", "{\"a\":[9,1]}", "{\"a\":[]}", "{\"a\":[-1,\"x\"]}"})
        QCOMPARE(PropertyCoding::listFromText(json)->count(), 0);
    // An escaped byte that is not text.
    const auto bytes = PropertyCoding::listFromText("{\"a\":[0,\"\\\xd2,\"]}");
    QVERIFY(bytes->value(QLatin1String("a")).toString().isValidUtf16());
    const auto set = PropertyCoding::listFromText("{\"s\":[4,{\"a\":1,\"b\":[9,1],\"c\":[]}]}");
    QCOMPARE(set->value(QLatin1String("s")).value<kogen::PropertySet>().count(), 0);
}

KO_TEST_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
