#include "support/TestMain.h"

#include "inspector/NodeChangeLogEntry.h"
#include "inspector/NodeRenameLogEntry.h"
#include "ko/LogEntryFactory.h"

#include <QTranslator>

using namespace ko;

namespace {

/// Answers in the context of log entries only.
class LogLanguage : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        if (QByteArray(context) != "LogEntry")
            return QString();
        return QByteArray(text) == "Changed name of device from %1 to %2." ? "%2 <- %1"
                                                                           : "t:" + QString(text);
    }
};

/// "key/name=value" for each value.
QStringList described(const LogEntry& entry)
{
    QStringList lines;
    for (const LogValue* value : entry.values())
        lines.append(QString("%1/%2=%3").arg(value->key().toString(), value->name(), value->toString()));
    return lines;
}

} // namespace

class tst_LogEntries : public QObject
{
    Q_OBJECT

private slots:
    void change();
    void rename();
    void markersInNamesStayText();
    void registeredAtLoadTime_data();
    void registeredAtLoadTime();
    void rebuiltFromStoredValues();
    void translatedAsLogEntries();
};

void tst_LogEntries::change()
{
    const NodeChangeLogEntry entry("Gate");
    QCOMPARE(entry.typeCode().value(), quint32(0x4E436867));
    QCOMPARE(entry.category().code().value(), quint32(0x44657669));
    QCOMPARE(entry.title(), QString("Changed device properties"));
    QCOMPARE(entry.description(), QString("Changed properties of device with name %1."));
    QCOMPARE(described(entry), QStringList("Name/name=Gate"));
    QCOMPARE(entry.text(), QString("Changed properties of device with name Gate."));
}

void tst_LogEntries::rename()
{
    const NodeRenameLogEntry entry("Gate", "Yard");
    QCOMPARE(entry.typeCode().toString(), QString("NRen"));
    QCOMPARE(entry.category().code().toString(), QString("Devi"));
    QCOMPARE(entry.title(), QString("Changed device name"));
    QCOMPARE(entry.description(), QString("Changed name of device from %1 to %2."));
    QCOMPARE(described(entry), QStringList({"ONam/oldname=Gate", "NNam/newname=Yard"}));
    QCOMPARE(entry.text(), QString("Changed name of device from Gate to Yard."));
}

void tst_LogEntries::markersInNamesStayText()
{
    QCOMPARE(NodeRenameLogEntry("%2", "%1").text(), QString("Changed name of device from %2 to %1."));
    QCOMPARE(NodeRenameLogEntry("", "a").text(), QString("Changed name of device from  to a."));
}

void tst_LogEntries::registeredAtLoadTime_data()
{
    QTest::addColumn<quint32>("code");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("NChg") << FourChars("NChg").value() << "Changed device properties"
                          << QStringList("Name/name=");
    QTest::newRow("NRen") << FourChars("NRen").value() << "Changed device name"
                          << QStringList({"ONam/oldname=", "NNam/newname="});
}

void tst_LogEntries::registeredAtLoadTime()
{
    QFETCH(quint32, code);
    QVERIFY(logEntryFactory().codes().contains(FourChars(code)));
    QTEST(logEntryFactory().title(FourChars(code)), "title");
    const std::unique_ptr<LogEntry> entry = logEntryFactory().create(FourChars(code));
    QVERIFY(entry != nullptr);
    QCOMPARE(entry->typeCode().value(), code);
    QTEST(described(*entry), "values");
    QVERIFY(logEntryFactory().create(FourChars(code)).get() != entry.get());
}

void tst_LogEntries::rebuiltFromStoredValues()
{
    const NodeRenameLogEntry stored("Gate", "Yard");
    const std::unique_ptr<LogEntry> entry = logEntryFactory().create(stored.typeCode());
    QVERIFY(dynamic_cast<NodeRenameLogEntry*>(entry.get()));
    for (int i = 0; i < stored.values().size(); ++i)
        entry->values().at(i)->fromString(stored.values().at(i)->toString());
    QCOMPARE(entry->text(), stored.text());
    QVERIFY(dynamic_cast<NodeChangeLogEntry*>(logEntryFactory().create("NChg").get()));
}

void tst_LogEntries::translatedAsLogEntries()
{
    LogLanguage language;
    QCoreApplication::installTranslator(&language);
    const NodeChangeLogEntry change("Gate");
    const NodeRenameLogEntry rename("Gate", "Yard");
    QCOMPARE(change.title(), QString("t:Changed device properties"));
    QCOMPARE(change.text(), QString("t:Changed properties of device with name Gate."));
    QCOMPARE(rename.title(), QString("t:Changed device name"));
    QCOMPARE(rename.text(), QString("Yard <- Gate"));
    QCoreApplication::removeTranslator(&language);
    QCOMPARE(rename.title(), QString("Changed device name"));
}

KO_TEST_MAIN(tst_LogEntries)
#include "tst_logentries.moc"
