#include "support/TestMain.h"

#include "ko/GlobalNetworkProxy.h"

#include <QElapsedTimer>
#include <QSignalSpy>

using namespace ko;

class tst_GlobalProxy : public QObject
{
    Q_OBJECT

private slots:
    void startsEmpty();
    void matching_data();
    void matching();
    void anyOfThePatterns();
    void hostilePatterns();
    void splitting_data();
    void splitting();
    void assembled();
    void addException();
    void removeException();
    void signalPerSetter();
    void assign();
    void textsAreKeptAsGiven();
    void equality();
};

void tst_GlobalProxy::startsEmpty()
{
    const GlobalNetworkProxy proxy;
    QVERIFY(!proxy.useProxy());
    QVERIFY(proxy.proxyAddress().isEmpty());
    QCOMPARE(proxy.proxyPort(), 0);
    QVERIFY(proxy.exceptions().isEmpty());
    QVERIFY(proxy.exceptionsAssembled(';').isEmpty());
    QVERIFY(!proxy.isAffectedFromExceptions("10.0.0.1"));
    QVERIFY(!proxy.isAffectedFromExceptions(""));
}

void tst_GlobalProxy::matching_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("affected");
    const struct
    {
        const char* pattern;
        const char* address;
        bool affected;
    } rows[] = {
        {"10.0.0.1", "10.0.0.1", true},
        {"10.0.0.1", "10.0.0.11", false},
        {"10.0.0.1", "110.0.0.1", false},
        {"10.0.0.1", "10x0.0.1", false}, // dots are dots
        {"Gate", "gATE", true},
        {"gate", "gate.example.org", false},
        {"example.org", "cam.example.org", false},
        {"10.*", "10.0.0.1", true},
        {"10.*", "10.", true},
        {"10.*", "10", false},
        {"10.*", "110.0.0.1", false},
        {"192.168.*", "192.168.7.20", true},
        {"192.168.*", "192.169.7.20", false},
        {"*.example.org", "cam.example.org", true},
        {"*.example.org", "a.b.example.org", true},
        {"*.example.org", "example.org", true},
        {"*.example.org", "EXAMPLE.org", true},
        {"*.example.org", ".example.org", true},
        {"*.example.org", "badexample.org", false},
        {"*.example.org", "example.org.evil", false},
        {"*.exa*le.org", "example.org", true},
        {"*example.org", "badexample.org", true},
        {"*", "anything", true},
        {"*", "", false},
        {"**", "anything", true},
        {"*", "   ", false},
        {"cam*gate", "camgate", true},
        {"cam*gate", "cam-north-gate", true},
        {"cam*gate", "cam-gate-north", false},
        {"*a*b*", "xaxbx", true},
        {"*a*b*", "xbxax", false},
        {"cam?", "cam1", false}, // only the asterisk is special
        {"cam?", "cam?", true},
        {"[ab]", "a", false},
        {"cam.", "cams", false},
        {"10.0.0.1", " 10.0.0.1 ", true},
        {"*.", "", false},
        {"fe80::*", "fe80::1", true},
        {"*", "*", true},
        {"cam*", "cam*", true},
    };
    for (const auto& row : rows)
        QTest::addRow("%s: %s", row.pattern, row.address)
            << QString(row.pattern) << QString(row.address) << row.affected;
}

void tst_GlobalProxy::matching()
{
    QFETCH(QString, pattern);
    QFETCH(QString, address);
    GlobalNetworkProxy proxy;
    proxy.setExceptions(pattern, ';');
    QTEST(proxy.isAffectedFromExceptions(address), "affected");
}

void tst_GlobalProxy::anyOfThePatterns()
{
    GlobalNetworkProxy proxy;
    proxy.setExceptions("*.example.org; 10.*; 192.168.*", ';');
    QVERIFY(proxy.isAffectedFromExceptions("cam.example.org"));
    QVERIFY(proxy.isAffectedFromExceptions("10.1.2.3"));
    QVERIFY(proxy.isAffectedFromExceptions("192.168.1.1"));
    QVERIFY(!proxy.isAffectedFromExceptions("172.16.0.1"));
}

void tst_GlobalProxy::hostilePatterns()
{
    GlobalNetworkProxy proxy;
    proxy.setExceptions(QString("*a").repeated(200) + "*b", ';');
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!proxy.isAffectedFromExceptions(QString(2000, 'a')));
    QVERIFY2(timer.elapsed() < 2000, "a pattern must not make the matching explode");
}

void tst_GlobalProxy::splitting_data()
{
    QTest::addColumn<QString>("list");
    QTest::addColumn<QStringList>("patterns");
    QTest::newRow("empty") << "" << QStringList();
    QTest::newRow("separators only") << " ; ;; " << QStringList();
    QTest::newRow("one") << "10.*" << QStringList("10.*");
    QTest::newRow("blanks are trimmed") << "  10.* ;\t192.168.*;" << QStringList({"10.*", "192.168.*"});
    QTest::newRow("inner blanks stay") << "a b;c" << QStringList({"a b", "c"});
    QTest::newRow("order and case are kept") << "Zoo;ape" << QStringList({"Zoo", "ape"});
    QTest::newRow("other separators") << "a,b c" << QStringList("a,b c");
}

void tst_GlobalProxy::splitting()
{
    QFETCH(QString, list);
    GlobalNetworkProxy proxy;
    proxy.setExceptions("old;older", ';');
    proxy.setExceptions(list, ';');
    QTEST(proxy.exceptions(), "patterns");
}

void tst_GlobalProxy::assembled()
{
    GlobalNetworkProxy proxy;
    proxy.setExceptions(" a , b;c ", ',');
    QCOMPARE(proxy.exceptions(), QStringList({"a", "b;c"}));
    QCOMPARE(proxy.exceptionsAssembled('|'), QString("a|b;c"));
    proxy.setExceptions("10.* ; 192.168.*", ';');
    QCOMPARE(proxy.exceptionsAssembled(';'), QString("10.*;192.168.*"));
}

void tst_GlobalProxy::addException()
{
    GlobalNetworkProxy proxy;
    proxy.addException("gate");
    proxy.addException(" yard ");
    proxy.addException("gate");
    proxy.addException("Gate"); // another text, so another entry
    proxy.addException("");
    proxy.addException("  ");
    QCOMPARE(proxy.exceptions(), QStringList({"gate", "yard", "Gate"}));
}

void tst_GlobalProxy::removeException()
{
    GlobalNetworkProxy proxy;
    proxy.setExceptions("gate;10.*;Gate;gate", ';');
    proxy.removeException("GATE");
    proxy.removeException("10.0.0.1");
    proxy.removeException("");
    QCOMPARE(proxy.exceptions().size(), 4);
    proxy.removeException("gate");
    QCOMPARE(proxy.exceptions(), QStringList({"10.*", "Gate"}));
}

void tst_GlobalProxy::signalPerSetter()
{
    GlobalNetworkProxy proxy;
    QSignalSpy changed(&proxy, SIGNAL(globalProxyDataChanged()));
    // Twice each: the second call changes nothing and is silent.
    for (int i = 0; i < 2; ++i) {
        proxy.setUseProxy(true);
        QCOMPARE(changed.count(), 1);
    }
    for (int i = 0; i < 2; ++i) {
        proxy.setProxyAddress("proxy", 3128);
        QCOMPARE(changed.count(), 2);
    }
    proxy.setProxyAddress("proxy", 3129);
    QCOMPARE(changed.count(), 3);
    for (int i = 0; i < 2; ++i) {
        proxy.setProxyUser("u", "p");
        QCOMPARE(changed.count(), 4);
    }
    proxy.setProxyUser("u", "q");
    QCOMPARE(changed.count(), 5);
    for (int i = 0; i < 2; ++i) {
        proxy.setSaveProxyPassword(true);
        QCOMPARE(changed.count(), 6);
    }
    for (int i = 0; i < 2; ++i) {
        proxy.setExceptions("a;b;c", ';');
        QCOMPARE(changed.count(), 7);
    }
    for (int i = 0; i < 2; ++i) {
        proxy.addException("d");
        QCOMPARE(changed.count(), 8);
    }
    for (int i = 0; i < 2; ++i) {
        proxy.removeException("d");
        QCOMPARE(changed.count(), 9);
    }
}

void tst_GlobalProxy::assign()
{
    NetworkProxy settings;
    settings.setUseProxy(true);
    settings.setProxyAddress("proxy", 3128);
    settings.setProxyUser("u", "p");
    settings.setSaveProxyPassword(true);
    GlobalNetworkProxy proxy;
    QSignalSpy changed(&proxy, SIGNAL(globalProxyDataChanged()));
    proxy.assign(settings, {" a ", "", "b"});
    QCOMPARE(changed.count(), 1);
    QVERIFY(static_cast<const NetworkProxy&>(proxy) == settings);
    QCOMPARE(proxy.exceptions(), QStringList({"a", "b"}));
    proxy.assign(settings, {"a", "b"});
    QCOMPARE(changed.count(), 1);
    proxy.assign(settings, {"b", "a"});
    QCOMPARE(changed.count(), 2);
    proxy.assign(NetworkProxy(), {"b", "a"});
    QCOMPARE(changed.count(), 3);
    QVERIFY(!proxy.useProxy());
}

void tst_GlobalProxy::textsAreKeptAsGiven()
{
    NetworkProxy proxy;
    proxy.setProxyAddress(" Proxy.Example.org ", 65535);
    proxy.setProxyUser(" u ", " p ");
    QCOMPARE(proxy.proxyAddress(), QString(" Proxy.Example.org "));
    QCOMPARE(proxy.proxyPort(), 65535);
    QCOMPARE(proxy.proxyUser(), QString(" u "));
    QCOMPARE(proxy.proxyPassword(), QString(" p "));
}

void tst_GlobalProxy::equality()
{
    const QList<void (*)(NetworkProxy&)> changes = {
        [](NetworkProxy& proxy) { proxy.setUseProxy(true); },
        [](NetworkProxy& proxy) { proxy.setProxyAddress("a", 0); },
        [](NetworkProxy& proxy) { proxy.setProxyAddress("", 1); },
        [](NetworkProxy& proxy) { proxy.setProxyUser("u", ""); },
        [](NetworkProxy& proxy) { proxy.setProxyUser("", "p"); },
        [](NetworkProxy& proxy) { proxy.setSaveProxyPassword(true); }};
    for (const auto& change : changes) {
        NetworkProxy changed;
        change(changed);
        QVERIFY(changed != NetworkProxy());
        const NetworkProxy copy(changed);
        QVERIFY(copy == changed);
    }
    QVERIFY(NetworkProxy() == NetworkProxy());
}

KO_TEST_MAIN(tst_GlobalProxy)
#include "tst_globalproxy.moc"
