#include "support/SmallHost.h"
#include "support/SmallInspector.h"
#include "support/TestMain.h"

#include "conformance/Conformance.h"
#include "interfaces/INodeDriverComponent.h"
#include "ko/Node.h"
#include "ko/NodeHint.h"
#include "ko/PropertyKeys.h"

#include <QFile>
#include <QLineEdit>

#include <algorithm>
#include <stdexcept>

using namespace ko;
using testsupport::SmallInspector;
using testsupport::SmallNodeDB;

namespace {

class ForgetfulEnvironments : public Environments
{
public:
    List getList() const override { return m_list; }
    void setList(const List& list) override { m_list = list; }
    void remove(const QString&) override {}

private:
    List m_list;
};

class DriverWithoutEditors : public INodeDriverComponent
{
public:
    explicit DriverWithoutEditors(const SmallNodeDB* db)
        : m_db(db)
    {
    }
    InspectorWidget* createInspectorWidget(NodeHint*, unsigned) override { return nullptr; }
    kom::smart<NodeHint> createNodeHint(ENodeType type) override { return m_db->createHint(type); }

private:
    const SmallNodeDB* const m_db;
};

/// Breaks the rule of this name, and may thereby break others.
class BrokenNodeDB : public SmallNodeDB
{
public:
    explicit BrokenNodeDB(const char* rule)
        : m_rule(rule)
    {
        if (breaks("database.registered"))
            m_another = std::make_unique<SmallNodeDB>();
        if (breaks("editing.readonly"))
            setUpInspector = [](SmallInspector* inspector) {
                inspector->findChild<QLineEdit*>()->setReadOnly(false);
            };
    }

    bool getBrief(const QString& id, NodeBrief* brief) const override
    {
        const bool found = SmallNodeDB::getBrief(id, brief);
        if (breaks("adding.brief"))
            brief->name.clear();
        return found;
    }

    Node* beginUpdateNode(const QString& id, int limit) override
    {
        return breaks("adding.receivers") && m_inserting ? nullptr : SmallNodeDB::beginUpdateNode(id, limit);
    }

    void endUpdateNode(Node* node) override
    {
        const QString id = node ? node->id() : QString();
        if (breaks("updating.copy") && node)
            node->setStringProperty(QLatin1String("KitText"), QLatin1String("another"));
        if (breaks("updating.properties") && node && node->hasProperty(QLatin1String("KitInt")))
            node->setIntProperty(QLatin1String("KitInt"), 0);
        if (breaks("updating.takeover") && node && node->hasProperty(QLatin1String("KitOther")))
            node->setStringProperty(QLatin1String("KitText"), QString());
        if (breaks("updating.announced"))
            silently([&] {
                aloud([&] { emit nodeUpdated(id); });
                SmallNodeDB::endUpdateNode(node);
            });
        else
            SmallNodeDB::endUpdateNode(node);
        if (breaks("updating.unchanged") || (breaks("updating.nothing") && id.isEmpty()) ||
            (breaks("updating.removed") && this->node(id).null()))
            emit nodeUpdated(id);
    }

    void newNodeHint(const NodeHint& hint) override
    {
        auto& changed = const_cast<NodeHint&>(hint);
        if (breaks("adding.context"))
            changed.context = nullptr;
        if (breaks("adding.content"))
            changed.setName(QLatin1String("another"));
        m_inserting = true;
        if (breaks("adding.ids"))
            silently([&] {
                SmallNodeDB::newNodeHint(hint);
                aloud([&] { emit nodeInserted(QLatin1String("new1")); });
            });
        else
            SmallNodeDB::newNodeHint(hint);
        m_inserting = false;
        if (breaks("adding.announced"))
            emit nodeInserted(nodeIdList(AllNodeTypes).constLast());
    }

    QString lookupHint(const NodeHint& hint) const override
    {
        return breaks("adding.lookup") ? nodeIdList(AllNodeTypes).value(0) : SmallNodeDB::lookupHint(hint);
    }

    void removeNode(const QString& id) override
    {
        const bool wasThere = !node(id).null();
        if (breaks("removing.announced"))
            silently([&] {
                aloud([&] { emit nodeRemoved(id); });
                SmallNodeDB::removeNode(id);
            });
        else
            SmallNodeDB::removeNode(id);
        if (!wasThere && (breaks("reading.unknown") || breaks("removing.again")))
            emit nodeRemoved(id);
        if (breaks("removing.relations")) {
            for (const auto& ends : std::as_const(m_ends))
                SmallNodeDB::addNodeRelation(ends.first, ends.second, RecordingFolderRelation);
        }
    }

    QStringList nodeIdList(ENodeType type) const override
    {
        QStringList ids = SmallNodeDB::nodeIdList(type);
        if (breaks("adding.order"))
            std::reverse(ids.begin(), ids.end());
        return ids;
    }

    TypeNames readableNodeTypeNames(const QList<ENodeType>* types, bool sorted) const override
    {
        if (breaks("types.names") && !types)
            return TypeNames();
        return SmallNodeDB::readableNodeTypeNames(types, sorted || breaks("types.chosen"));
    }

    kom::smart<INodeDriverComponent> nodeDriver(ENodeType type) const override
    {
        if (breaks("editing.editors"))
            return kom::makeSmart<DriverWithoutEditors>(this);
        return SmallNodeDB::nodeDriver(breaks("types.driver") ? IPDeviceType : type);
    }

    void addNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override
    {
        m_ends.append({from, to});
        SmallNodeDB::addNodeRelation(from, to, type);
    }

    void removeNodeRelation(const QString& from, const QString& to, ENodeRelationType type) override
    {
        SmallNodeDB::removeNodeRelation(from, to, type);
        if (breaks("relations.others"))
            SmallNodeDB::removeNodeRelation(to, from, type);
    }

    QStringList relatedNodes(const QString& id, ENodeRelationType type) const override
    {
        QStringList related = SmallNodeDB::relatedNodes(id, type);
        if (breaks("relations.order"))
            std::reverse(related.begin(), related.end());
        if (breaks("relations.once") && m_ends.size() > 1)
            related += related;
        return related;
    }

    bool isDestinationOfNodeRelation(const QString& id, ENodeRelationType type) const override
    {
        return breaks("relations.directed") || SmallNodeDB::isDestinationOfNodeRelation(id, type);
    }

    void startScanners(const std::string& name, unsigned interfaces, int limit) override
    {
        SmallNodeDB::startScanners(name, interfaces, limit);
        if (breaks("scanners.unknown"))
            emit nodeInserted(QLatin1String("found"));
    }

    GlobalNetworkProxy& globalProxy() override
    {
        if (breaks("settings.proxy"))
            m_proxy = std::make_unique<GlobalNetworkProxy>();
        return breaks("settings.proxy") ? *m_proxy : SmallNodeDB::globalProxy();
    }

    Environments& environments() override
    {
        return breaks("environments.list") ? m_environments : SmallNodeDB::environments();
    }

    void setActiveEnvironment(const QString& id) override
    {
        if (!breaks("environments.active"))
            SmallNodeDB::setActiveEnvironment(id);
    }

private:
    bool breaks(const char* rule) const { return m_rule == QLatin1String(rule); }

    template <class Work>
    void silently(const Work& work)
    {
        blockSignals(true);
        work();
        blockSignals(false);
    }

    template <class Work>
    void aloud(const Work& work)
    {
        blockSignals(false);
        work();
        blockSignals(true);
    }

    const QLatin1String m_rule;
    std::unique_ptr<SmallNodeDB> m_another;
    std::unique_ptr<GlobalNetworkProxy> m_proxy;
    ForgetfulEnvironments m_environments;
    QList<QPair<QString, QString>> m_ends;
    bool m_inserting = false;
};

} // namespace

class tst_Conformance : public QObject
{
    Q_OBJECT

private slots:
    void goodHostKeeps_data() { fillRules(); }
    void goodHostKeeps();
    void brokenHostIsFound_data() { fillRules(); }
    void brokenHostIsFound();
    void throwingHostIsFound();
    void missingDatabaseIsFound();
    void unknownRule();
    void runCounts();
    void allAreDocumented();

private:
    static void fillRules();
};

void tst_Conformance::fillRules()
{
    QTest::addColumn<QByteArray>("rule");
    const QVector<conformance::Rule> rules = conformance::rules();
    for (const conformance::Rule& rule : rules)
        QTest::newRow(rule.name) << QByteArray(rule.name);
}

void tst_Conformance::goodHostKeeps()
{
    QFETCH(const QByteArray, rule);
    conformance::Host host;
    host.open = [] { return std::make_unique<SmallNodeDB>(); };
    QCOMPARE(conformance::findings(host, rule.constData()), QStringList());
}

void tst_Conformance::brokenHostIsFound()
{
    QFETCH(const QByteArray, rule);
    conformance::Host host;
    host.open = [&rule] { return std::make_unique<BrokenNodeDB>(rule.constData()); };
    QVERIFY(!conformance::findings(host, rule.constData()).isEmpty());
}

void tst_Conformance::throwingHostIsFound()
{
    conformance::Host host;
    host.open = [] { return std::make_unique<SmallNodeDB>(); };
    host.describe = [](NodeHint*, int) { throw std::runtime_error("no more"); };
    QCOMPARE(conformance::findings(host, "adding.announced"), QStringList("throws: no more"));
}

void tst_Conformance::missingDatabaseIsFound()
{
    conformance::Host host;
    host.open = [] { return std::unique_ptr<NodeDB>(); };
    QCOMPARE(conformance::findings(host, "adding.announced"),
             QStringList("throws: Host::open made no database"));
}

void tst_Conformance::unknownRule()
{
    QCOMPARE(conformance::findings(conformance::Host(), "no.rule").size(), 1);
}

void tst_Conformance::runCounts()
{
    conformance::Host host;
    host.open = [] { return std::make_unique<SmallNodeDB>(); };
    QCOMPARE(conformance::run(host), 0);
    host.open = [] { return std::make_unique<BrokenNodeDB>("adding.order"); };
    QCOMPARE(conformance::run(host), 1);
}

void tst_Conformance::allAreDocumented()
{
    QFile file(QLatin1String(KO_SOURCE_DIR "/docs/hosting.md"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList documented;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine());
        if (line.startsWith(QLatin1String("| `")))
            documented.append(line.section(QLatin1Char('`'), 1, 1));
    }
    QStringList rules;
    const QVector<conformance::Rule> all = conformance::rules();
    for (const conformance::Rule& rule : all)
        rules.append(QLatin1String(rule.name));
    documented.sort();
    rules.sort();
    QCOMPARE(documented, rules);
}

KO_TEST_MAIN(tst_Conformance)
#include "tst_conformance.moc"
