#include "secrets/Secrets.h"
#include "secrets/Vault.h"
#include "support/HostFixture.h"
#include "support/PassThroughNodeDB.h"
#include "support/TestMain.h"

#include "drivers/StoredNode.h"
#include "kogen/Property.h"
#include "pages/ControlDataWidget.h"
#include "pages/CustomNetworkProxyWidget.h"
#include "pages/InfoWidget.h"
#include "pages/LayoutOptionsWidget.h"
#include "pages/PTZRotorControlWidget.h"
#include "pages/PTZUrlsWidget.h"
#include "pages/UserDataWidget.h"

#include <QRandomGenerator>

#include <map>

using namespace ko;

namespace {

typedef std::map<QString, QVariant> Values;

/// What a page is to store, worked out from what was stored before. Written from the rules of the pages,
/// not from their code.
class Expectation
{
public:
    explicit Expectation(Values values)
        : values(std::move(values))
    {
    }

    Values values;
    bool channels = false; ///< whether the node supports them

    bool has(const char* key) const { return values.count(key) != 0; }
    QString text(const char* key) const { return has(key) ? values.at(key).toString() : QString(); }
    int number(const char* key, int absent) const { return has(key) ? values.at(key).toInt() : absent; }
    bool flag(const char* key) const { return has(key) && values.at(key).toBool(); }
    void set(const char* key, const QVariant& value) { values[key] = value; }

    void connection()
    {
        set("UseSSL", flag("UseSSL"));
        set("Port", qBound(0, number("Port", 80), 65535));
        set("User", text("User"));
        set("Password", text("Password"));
        set("CredentialsEntered", true);
        if (channels)
            set("Channel", qBound(1, number("Channel", 1), 4));
    }

    void control()
    {
        const int mode = number("ControlMode", -1);
        set("ControlMode", mode == -1 ? 0 : mode > 2 ? -1 : mode); // the index of a list of three
        const int bandwidth = number("Bandwidth", -1);
        const int shown = bandwidth == -1 ? int(SlowLocal) : bandwidth > 3 ? -1 : bandwidth;
        set("Bandwidth", shown == SlowLocal ? -1 : shown); // as the database: follow it
    }

    void information()
    {
        set("Model", text("Model"));
        set("Version", text("Version"));
        set("MACAddress", MACAddress(text("MACAddress")).toString(true));
    }

    /// Without its lists filled: the edit dialog fills them.
    void layoutOptions()
    {
        set("InfoFile", text("InfoFile"));
        set("SmoothDisplay", number("SmoothDisplay", 0) != 0 ? 2 : 0);
        set("PreferredLayout", QString("0"));
        set("AudioPathID", QString());
    }

    void rotor()
    {
        const int head = number("RotorControl", 0);
        set("RotorControl", (head >= 0 && head <= 8 && head != 4) ? head : 0);
        const int sensitivity = number("RotorSensitivity", 0);
        set("RotorSensitivity", sensitivity > 4 ? -1 : sensitivity);
        for (const char* key : {"RotorFastMode", "PTZInvertX", "PTZInvertY", "PTZRotorZoom"})
            set(key, flag(key));
        set("PTZRotorAddress", qBound(1, number("PTZRotorAddress", 1), 255));
    }

    void urls()
    {
        for (const char* key : {"UrlPTZStream", "UrlPTZStop", "UrlPTZUp", "UrlPTZDown", "UrlPTZLeft",
                                "UrlPTZRight", "UrlPTZZommIn", "UrlPTZZoomOut"})
            set(key, text(key));
    }

    void proxy()
    {
        // Settings that differ from the untouched ones are stored, all six together.
        if (!has("ProxyAddress"))
            return;
        set("ProxyPort", qBound(0, number("ProxyPort", 0), 65535));
    }
};

struct Key
{
    const char* name;
    enum Kind { Text, Flag, Number } kind;
    int limit; ///< of numbers, and beyond by a little
};

const Key keys[] = {
    {"Address", Key::Text, 0},
    {"Port", Key::Number, 65535},
    {"UseSSL", Key::Flag, 0},
    {"User", Key::Text, 0},
    {"Password", Key::Text, 0},
    {"CredentialsEntered", Key::Flag, 0},
    {"Model", Key::Text, 0},
    {"Version", Key::Text, 0},
    {"MACAddress", Key::Text, 0},
    {"FactoryIP", Key::Text, 0},
    {"IP", Key::Text, 0},
    {"ControlMode", Key::Number, 3},
    {"Bandwidth", Key::Number, 4},
    {"InfoFile", Key::Text, 0},
    {"SmoothDisplay", Key::Number, 3},
    {"PreferredLayout", Key::Text, 0},
    {"AudioPathID", Key::Text, 0},
    {"RotorControl", Key::Number, 9},
    {"RotorSensitivity", Key::Number, 5},
    {"RotorFastMode", Key::Flag, 0},
    {"PTZInvertX", Key::Flag, 0},
    {"PTZInvertY", Key::Flag, 0},
    {"PTZRotorZoom", Key::Flag, 0},
    {"PTZRotorAddress", Key::Number, 260},
    {"UrlPTZStream", Key::Text, 0},
    {"UrlPTZStop", Key::Text, 0},
    {"UrlPTZUp", Key::Text, 0},
    {"UrlPTZDown", Key::Text, 0},
    {"UrlPTZLeft", Key::Text, 0},
    {"UrlPTZRight", Key::Text, 0},
    {"UrlPTZZommIn", Key::Text, 0},
    {"UrlPTZZoomOut", Key::Text, 0},
};

QString randomText(QRandomGenerator& random)
{
    static const QStringList texts = {QString(),
                                      "10.0.0.1",
                                      "cam.example.org",
                                      "<b>%1</b>&amp;",
                                      QString::fromUtf8("Straße 5 \u202E"),
                                      "a@#!^/:%20;b",
                                      " blanks ",
                                      "00:11:22:AA:BB:CC",
                                      "\"quoted\""};
    return texts.at(random.bounded(int(texts.size()))) +
           (random.bounded(2) ? QString::number(random.bounded(99)) : "");
}

Values randomValues(QRandomGenerator& random, ENodeType type)
{
    Values values;
    for (const Key& key : keys) {
        if (random.bounded(4) == 0)
            continue; // any subset may be missing
        if (key.kind == Key::Text)
            values[key.name] = randomText(random);
        else if (key.kind == Key::Flag)
            values[key.name] = random.bounded(2) == 1;
        else
            values[key.name] = random.bounded(key.limit + 1);
    }
    if (type == ChannelDeviceType && random.bounded(2))
        values["Channel"] = 1 + random.bounded(4);
    if (random.bounded(2)) {
        values["ProxyUse"] = random.bounded(2) == 1;
        values["ProxyAddress"] = "p" + randomText(random);
        values["ProxyPort"] = random.bounded(65536);
        values["ProxyUser"] = randomText(random);
        values["ProxyPassword"] = randomText(random);
        values["ProxySavePassword"] = random.bounded(2) == 1;
    }
    return values;
}

Values valuesOf(const Node& node)
{
    Values values;
    for (const auto& entry : node.properties()) {
        const QVariant value = entry.second->value();
        if (entry.first != "Name" && entry.first != "NodeType") // a password is sealed in what is enumerated
            values[entry.first] =
                value.userType() == QMetaType::QString ? node.stringProperty(entry.first, QString()) : value;
    }
    return values;
}

QString difference(const Values& expected, const Values& found)
{
    QStringList lines;
    for (const auto& entry : expected) {
        const auto other = found.find(entry.first);
        if (other == found.end())
            lines.append(entry.first + " is missing");
        else if (other->second != entry.second)
            lines.append(QString("%1: expected '%2', found '%3'")
                             .arg(entry.first, entry.second.toString(), other->second.toString()));
    }
    for (const auto& entry : found) {
        if (!expected.count(entry.first))
            lines.append(entry.first + " is new");
    }
    return lines.join("; ");
}

/// A database that knows one node, with just the properties it was given.
class OneNodeDB : public testsupport::PassThroughNodeDB
{
public:
    using PassThroughNodeDB::PassThroughNodeDB;

    NodeData data;
    const std::shared_ptr<Vault> vault = std::make_shared<Vault>(Keyring::ofInstallation());

    kom::smart<const Node> node(const QString& id) const override
    {
        return id == data.id
                   ? kom::smart<const Node>(std::shared_ptr<const Node>(NodeTypes::createNode(data, vault)))
                   : kom::smart<const Node>();
    }
    Node* beginUpdateNode(const QString&, int) override
    {
        return NodeTypes::createNode(data, vault).release();
    }
    void endUpdateNode(Node* node) override
    {
        data = dynamic_cast<StoredNode*>(node)->nodeData();
        delete node;
    }
    int bandwidth() const override { return SlowLocal; }
};

} // namespace

/// Random nodes through every page: what was stored, shown and written back must be what the page's rules
/// say, also in read-only mode and for nodes that lack any of the properties.
class tst_PageRoundTrip : public QObject
{
    Q_OBJECT

private slots:
    void storedValuesComeBack_data();
    void storedValuesComeBack();

private:
    template <class Page>
    void roundTrip(const QString& id, Expectation& expected, void (Expectation::*rule)(), bool readOnly);
    static void initPage(UserDataWidget& page, const QString& id) { page.init(id, true); }
    template <class Page>
    static void initPage(Page& page, const QString& id)
    {
        page.init(id);
    }
};

void tst_PageRoundTrip::storedValuesComeBack_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("readOnly");
    for (const int type : {2, 3, 5}) {
        QTest::addRow("type %d", type) << type << false;
        QTest::addRow("type %d, read-only", type) << type << true;
    }
}

void tst_PageRoundTrip::storedValuesComeBack()
{
    QFETCH(int, type);
    QFETCH(bool, readOnly);
    const ENodeType nodeType = ENodeType(type);
    testsupport::HostFixture host;
    OneNodeDB db(host.db());
    QRandomGenerator random(quint32(type * 2 + readOnly));
    for (int round = 0; round < 170; ++round) { // times six rows: a thousand nodes
        const Values start = randomValues(random, nodeType);
        db.data = NodeData();
        db.data.id = QString("n%1").arg(round);
        db.data.type = nodeType;
        for (const auto& entry : start)
            db.data.properties.set(entry.first,
                                   Secrets::isSecret(entry.first)
                                       ? db.vault->seal(db.data.id, entry.first, entry.second.toString())
                                       : entry.second);
        const QString id = db.data.id;

        Expectation expected(start);
        expected.channels = nodeType == ChannelDeviceType;
        roundTrip<UserDataWidget>(id, expected, &Expectation::connection, readOnly);
        roundTrip<InfoWidget>(id, expected, &Expectation::information, readOnly);
        roundTrip<ControlDataWidget>(id, expected, &Expectation::control, readOnly);
        roundTrip<LayoutOptionsWidget>(id, expected, &Expectation::layoutOptions, readOnly);
        roundTrip<PTZRotorControlWidget>(id, expected, &Expectation::rotor, readOnly);
        roundTrip<PTZUrlsWidget>(id, expected, &Expectation::urls, readOnly);
        roundTrip<CustomNetworkProxyWidget>(id, expected, &Expectation::proxy, readOnly);
        if (QTest::currentTestFailed())
            return;
    }
}

template <class Page>
void tst_PageRoundTrip::roundTrip(const QString& id, Expectation& expected, void (Expectation::*rule)(),
                                  bool readOnly)
{
    Page page(nullptr);
    initPage(page, id);
    if (readOnly)
        page.setReadOnly(true);
    Node* node = NodeDB::getDB()->beginUpdateNode(id, -1);
    page.accept(node);
    NodeDB::getDB()->endUpdateNode(node);
    (expected.*rule)();
    const QString differs = difference(expected.values, valuesOf(*NodeDB::getDB()->node(id)));
    QVERIFY2(differs.isEmpty(), qPrintable(QString("%1: %2").arg(page.metaObject()->className(), differs)));
}

KO_TEST_MAIN(tst_PageRoundTrip)
#include "tst_pageroundtrip.moc"
