#include "support/TestMain.h"

#include "ko/ActionLog.h"
#include "ko/LogEntryFactory.h"

using namespace ko;

namespace {

class Entry : public LogEntry
{
public:
    Entry(const QString& pattern, const QStringList& texts)
        : m_pattern(pattern)
    {
        for (const QString& text : texts)
            m_texts.push_back(std::make_unique<TLogValue<QString>>("Text", "text", text));
        for (const auto& text : m_texts)
            append(*text);
    }

    FourChars typeCode() const override { return "Test"; }
    LogCategory category() const override { return LogCategoryDevices; }
    QString description() const override { return m_pattern; }
    QString title() const override { return "Title"; }

private:
    const QString m_pattern;
    std::vector<std::unique_ptr<TLogValue<QString>>> m_texts;
};

LogEntry* createFirst()
{
    return new Entry("first %1", {""});
}

LogEntry* createSecond()
{
    return new Entry("second %1", {""});
}

class Log : public ActionLog
{
public:
    QStringList texts;
    void log(const LogEntry& entry) override { texts.append(entry.text()); }
};

} // namespace

class tst_LogEntry : public QObject
{
    Q_OBJECT

private slots:
    void fourChars();
    void category();
    void value();
    void text_data();
    void text();
    void valuesInOrder();
    void factory();
    void codeRegisteredAgain();
    void processFactory();
    void actionLogInstance();
};

void tst_LogEntry::fourChars()
{
    const FourChars code = "NChg";
    QCOMPARE(code.value(), quint32(0x4E436867));
    QCOMPARE(code.toString(), QString("NChg"));
    QVERIFY(FourChars(0x4E436867) == code);
    QVERIFY(code != FourChars("NRen"));
    QVERIFY(code < FourChars("NRen"));
    QVERIFY(!(code < code));
    // No byte's sign may leak into its neighbours.
    const FourChars high = "\xFF\x80\x01\x7F";
    QCOMPARE(high.value(), quint32(0xFF80017F));
    QVERIFY(FourChars("zzzz") < high);
}

void tst_LogEntry::category()
{
    QCOMPARE(quint32(LogCategoryDevices), quint32(0x44657669));
    QCOMPARE(LogCategory(LogCategoryDevices).code().toString(), QString("Devi"));
    QVERIFY(LogCategory(LogCategoryDevices) == LogCategoryDevices);
    QVERIFY(LogCategory(LogCategoryDevices) != LogCategory(ELogCategory(0x55736572)));
}

void tst_LogEntry::value()
{
    TLogValue<QString> name("Name", "name", "Gate");
    QVERIFY(name.key() == FourChars("Name"));
    QCOMPARE(name.name(), QString("name"));
    QCOMPARE(name.value(), QString("Gate"));
    QCOMPARE(name.toString(), QString("Gate"));
    name.fromString("Yard");
    QCOMPARE(name.value(), QString("Yard"));
}

void tst_LogEntry::text_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QString>("filledIn");
    QTest::newRow("one") << "a %1." << QStringList("x") << "a x.";
    QTest::newRow("two") << "%1 to %2" << QStringList({"x", "y"}) << "x to y";
    QTest::newRow("reordered by a translation") << "%2 from %1" << QStringList({"x", "y"}) << "y from x";
    QTest::newRow("twice") << "%1%1" << QStringList("x") << "xx";
    QTest::newRow("marker in a value") << "%1 to %2" << QStringList({"%2", "%1"}) << "%2 to %1";
    QTest::newRow("all markers in a value")
        << "%1 to %2" << QStringList({"%1%2%3%%", "y"}) << "%1%2%3%% to y";
    QTest::newRow("empty value") << "[%1]" << QStringList("") << "[]";
    QTest::newRow("no such value") << "%1 %2 %3" << QStringList("x") << "x %2 %3";
    QTest::newRow("zero") << "%0 %1" << QStringList("x") << "%0 x";
    QTest::newRow("percent at the end") << "%1 %" << QStringList("x") << "x %";
    QTest::newRow("percent before a marker") << "%%1" << QStringList("x") << "%x";
    QTest::newRow("one digit") << "%10" << QStringList("x") << "x0";
    QTest::newRow("ninth") << "%9" << QStringList({"1", "2", "3", "4", "5", "6", "7", "8", "i"}) << "i";
    QTest::newRow("no values") << "50 % of %1" << QStringList() << "50 % of %1";
    QTest::newRow("plain text") << "<%1>" << QStringList("<b>") << "<<b>>";
}

void tst_LogEntry::text()
{
    QFETCH(QString, pattern);
    QFETCH(QStringList, values);
    QTEST(Entry(pattern, values).text(), "filledIn");
}

void tst_LogEntry::valuesInOrder()
{
    const Entry entry("%1%2", {"x", "y"});
    QCOMPARE(entry.values().size(), 2);
    QCOMPARE(entry.values().at(0)->toString(), QString("x"));
    QCOMPARE(entry.values().at(1)->toString(), QString("y"));
    // A host rebuilds what it stored through them.
    entry.values().at(0)->fromString("z");
    QCOMPARE(entry.text(), QString("zy"));
}

void tst_LogEntry::factory()
{
    LogEntryFactory factory;
    QVERIFY(factory.codes().isEmpty());
    QVERIFY(!factory.create("Test"));
    QVERIFY(factory.title("Test").isEmpty());
    factory.registerCreator("Test", createFirst, "Title");
    factory.registerCreator("Abcd", createSecond, "Other");
    QCOMPARE(factory.title("Test"), QString("Title"));
    const auto first = factory.create("Test");
    const auto again = factory.create("Test");
    QVERIFY(first && again && first != again);
    first->values().first()->fromString("x");
    QCOMPARE(first->text(), QString("first x"));
    QCOMPARE(again->text(), QString("first "));
    QVERIFY(!factory.create("test"));
    QStringList codes;
    const auto known = factory.codes();
    for (const FourChars code : known)
        codes.append(code.toString());
    QCOMPARE(codes, QStringList({"Abcd", "Test"}));
}

void tst_LogEntry::codeRegisteredAgain()
{
    LogEntryFactory factory;
    factory.registerCreator("Test", createFirst, "Title");
    factory.registerCreator("Test", createSecond, "Newer");
    QCOMPARE(factory.codes().size(), 1);
    QCOMPARE(factory.title("Test"), QString("Newer"));
    QCOMPARE(factory.create("Test")->text(), QString("second "));
}

void tst_LogEntry::processFactory()
{
    QCOMPARE(&logEntryFactory(), &logEntryFactory());
}

void tst_LogEntry::actionLogInstance()
{
    // Without a host's log there is one that takes everything.
    QVERIFY(ActionLog::getInstance());
    ActionLog::getInstance()->log(Entry("lost", {}));
    Log first;
    QCOMPARE(ActionLog::getInstance(), &first);
    auto second = std::make_unique<Log>();
    QCOMPARE(ActionLog::getInstance(), second.get());
    ActionLog::getInstance()->log(Entry("to %1", {"second"}));
    QCOMPARE(second->texts, QStringList("to second"));
    QVERIFY(first.texts.isEmpty());
    second.reset();
    QCOMPARE(ActionLog::getInstance(), &first);
    {
        auto outlived = std::make_unique<Log>();
        const Log last;
        outlived.reset();
        QCOMPARE(ActionLog::getInstance(), &last);
    }
    QCOMPARE(ActionLog::getInstance(), &first);
}

KO_TEST_MAIN(tst_LogEntry)
#include "tst_logentry.moc"
