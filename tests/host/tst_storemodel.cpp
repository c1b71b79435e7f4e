#include "StoreTesting.h"
#include "support/TestMain.h"

#include <QMap>

#include <algorithm>
#include <functional>
#include <random>

using namespace ko;
using namespace testsupport;

namespace {

/// The plainest thing that behaves as the database should.
struct Truth
{
    struct Camera
    {
        QString id;
        QMap<QString, QString> values;
    };
    typedef QPair<QString, QString> Relation;

    QVector<Camera> cameras; // oldest first
    QVector<Relation> relations;
    QString setting;

    Camera* find(const QString& id)
    {
        const auto found = std::find_if(cameras.begin(), cameras.end(),
                                        [&id](const Camera& camera) { return camera.id == id; });
        return found == cameras.end() ? nullptr : &*found;
    }
};

typedef std::function<void(Truth&)> Change;

/// One user of the database: what it saw of the truth at its last look, and what it has not stored yet.
struct User
{
    std::unique_ptr<HostNodeDB> db;
    Truth seen;
    QVector<Change> waiting;

    Truth view() const
    {
        Truth result = seen;
        for (const Change& change : waiting)
            change(result);
        return result;
    }
};

const char* const keys[] = {"Name", "Address", "Model", "Version"};

} // namespace

/// Random work of two users of one file, compared with a model at every step.
class TestStoreModel : public QObject
{
    Q_OBJECT

private slots:
    void randomWork_data();
    void randomWork();

private:
    void step(User& user);
    void look(User& user) const;
    void store(User& user);
    void compare(User& user) const;

    int random(int below) { return int(m_random() % unsigned(below)); }
    QString randomId(const Truth& view);

    std::mt19937 m_random;
    Truth m_truth;
};

void TestStoreModel::randomWork_data()
{
    QTest::addColumn<unsigned>("seed");
    for (unsigned seed = 1; seed <= 12; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

QString TestStoreModel::randomId(const Truth& view)
{
    return view.cameras.isEmpty() ? QString() : view.cameras.at(random(int(view.cameras.size()))).id;
}

void TestStoreModel::look(User& user) const
{
    user.db->syncForeignChanges();
    user.seen = m_truth;
}

void TestStoreModel::store(User& user)
{
    QVERIFY(user.db->flush());
    if (user.waiting.isEmpty())
        return; // nothing to store, no look
    for (const Change& change : std::as_const(user.waiting))
        change(m_truth);
    user.waiting.clear();
    user.seen = m_truth;
}

void TestStoreModel::step(User& user)
{
    const Truth view = user.view();
    const QString id = randomId(view);
    const QString other = randomId(view);
    const QString text = QString::number(random(4));
    switch (random(12)) {
    case 0:
    case 1: {
        const QString added = addCamera(*user.db, text, QString());
        user.waiting.append([added, text](Truth& truth) {
            truth.cameras.append({added, {{QLatin1String("Name"), text}}});
        });
        break;
    }
    case 2:
        if (random(2) || id.isEmpty())
            break;
        user.db->removeNode(id);
        user.waiting.append([id](Truth& truth) {
            const auto isCamera = [&id](const Truth::Camera& camera) { return camera.id == id; };
            const auto touches = [&id](const Truth::Relation& r) { return r.first == id || r.second == id; };
            truth.cameras.erase(std::remove_if(truth.cameras.begin(), truth.cameras.end(), isCamera),
                                truth.cameras.end());
            truth.relations.erase(std::remove_if(truth.relations.begin(), truth.relations.end(), touches),
                                  truth.relations.end());
        });
        break;
    case 3:
    case 4:
    case 5:
    case 6: {
        look(user); // as beginning an update does
        Truth now = user.view();
        const Truth::Camera* camera = now.find(id);
        const QString key = QLatin1String(keys[random(4)]);
        const bool differs = camera && camera->values.value(key) != text;
        Node* node = user.db->beginUpdateNode(id, -1);
        QCOMPARE(node != nullptr, camera != nullptr);
        if (node)
            node->setStringProperty(key, text);
        user.db->endUpdateNode(node);
        if (differs)
            user.waiting.append([id, key, text](Truth& truth) {
                if (Truth::Camera* found = truth.find(id))
                    found->values.insert(key, text);
            });
        break;
    }
    case 7: {
        const Truth::Relation relation(id, other);
        user.db->addNodeRelation(id, other, RecordingFolderRelation);
        if (!id.isEmpty() && !view.relations.contains(relation))
            user.waiting.append([relation](Truth& truth) {
                if (truth.find(relation.first) && truth.find(relation.second) &&
                    !truth.relations.contains(relation))
                    truth.relations.append(relation);
            });
        break;
    }
    case 8: {
        if (view.relations.isEmpty())
            break;
        const Truth::Relation relation = view.relations.at(random(int(view.relations.size())));
        user.db->removeNodeRelation(relation.first, relation.second, RecordingFolderRelation);
        user.waiting.append([relation](Truth& truth) { truth.relations.removeAll(relation); });
        break;
    }
    case 9:
        user.db->setGlobalRecordingFolderPath(text);
        if (view.setting != text)
            user.waiting.append([text](Truth& truth) { truth.setting = text; });
        break;
    case 10:
        store(user);
        break;
    default:
        if (random(8) == 0) {
            user.waiting.clear();
            user.db->discardUnstoredChanges();
            user.seen = m_truth;
        } else {
            look(user);
        }
    }
}

void TestStoreModel::compare(User& user) const
{
    Truth view = user.view();
    const HostNodeDB& db = *user.db;
    QStringList ids;
    for (const Truth::Camera& camera : std::as_const(view.cameras))
        ids.append(camera.id);
    QCOMPARE(db.nodeIdList(AllNodeTypes), ids);
    QCOMPARE(db.globalRecordingFolderPath(), view.setting);
    for (const Truth::Camera& camera : std::as_const(view.cameras)) {
        QCOMPARE(db.summary(camera.id).name, camera.values.value(QLatin1String("Name")));
        QCOMPARE(db.summary(camera.id).location, camera.values.value(QLatin1String("Address")));
        QStringList related;
        bool isDestination = false;
        for (const Truth::Relation& relation : std::as_const(view.relations)) {
            if (relation.first == camera.id)
                related.append(relation.second);
            isDestination = isDestination || relation.second == camera.id;
        }
        QCOMPARE(db.relatedNodes(camera.id, RecordingFolderRelation), related);
        QCOMPARE(db.isDestinationOfNodeRelation(camera.id, RecordingFolderRelation), isDestination);
    }
    // Properties are read only now and then, so that many nodes change while they are not in memory.
    for (int i = 0; i < ids.size(); i += 3) {
        for (const char* key : keys) {
            const QString expected = view.cameras.at(i).values.value(QLatin1String(key));
            QCOMPARE(text(db, ids.at(i), key), expected);
        }
    }
}

void TestStoreModel::randomWork()
{
    QFETCH(unsigned, seed);
    m_random.seed(seed);
    m_truth = Truth();
    const QTemporaryDir folder;
    const QString file = folder.filePath(QLatin1String("nodes.db"));
    User users[2];
    for (User& user : users)
        user.db = openDatabase(file);
    for (int i = 0; i < 600; ++i) {
        User& user = users[random(2)];
        step(user);
        if (!QTest::currentTestFailed() && i % 5 == 0) {
            look(user); // a look may come with the other's commits at any time
            compare(user);
        }
        if (random(100) == 0) {
            store(user);
            user.db.reset();
            user.db = openDatabase(file);
            user.seen = m_truth;
            compare(user);
        }
        if (QTest::currentTestFailed()) {
            qWarning("at step %d", i);
            return;
        }
    }
    for (User& user : users)
        store(user);
    for (User& user : users) {
        look(user);
        compare(user);
    }
    QVERIFY(m_truth.cameras.size() > 3);
    QCOMPARE(PlainSql(file).run(QLatin1String("PRAGMA integrity_check")).toString(), QLatin1String("ok"));
}

KO_TEST_MAIN(TestStoreModel)
#include "tst_storemodel.moc"
