#ifndef TESTS_HOST_WORKLOADS_H
#define TESTS_HOST_WORKLOADS_H

#include "StoreTesting.h"
#include "audit/AuditLog.h"
#include "audit/ProgramLogEntry.h"
#include "database/StoredHistory.h"
#include "dialogs/RecordingFolderMassAssignmentDialog.h"
#include "exchange/CameraSurvey.h"
#include "history/PuttingBack.h"
#include "store/SqliteStore.h"
#include "support/ModalAnswer.h"

#include <QDir>
#include <QLineEdit>
#include <QRadioButton>

#include <algorithm>
#include <limits>

namespace testsupport {

/// Which step of a workload the database holds, at the place that has come least far and at the one that has
/// come farthest; negative when one is half there.
struct Stored
{
    int least;
    int most;
};

/// Work on a database in numbered steps, of which it can be told afterwards what is there.
class Workload
{
public:
    virtual ~Workload() = default;

    /// What there is before the first step, on an empty database.
    virtual void prepare(ko::HostNodeDB& db) { step(db, 0); }

    /// False when the step said that it could not do everything.
    virtual bool step(ko::HostNodeDB& db, int number) = 0;
    virtual Stored stored(ko::HostNodeDB& db) = 0;

    /// Why the last step could not do everything, as it told its user; empty if it did not tell.
    QString complaint;

    /// Whether a step is all there or not at all; else this holds for the parts of a step.
    virtual bool isOneTurn() const { return true; }

protected:
    static Stored none() { return {-1, -1}; }

    static QString named(const ko::HostNodeDB& db, const QString& name)
    {
        const QVector<ko::NodeSummary> all = db.summaries();
        for (const ko::NodeSummary& summary : all) {
            if (summary.name == name)
                return summary.id;
        }
        return QString();
    }
};

/// Step i leaves i in six places and the nodes "i", "i-1" and "i-2".
class Edits : public Workload
{
public:
    void prepare(ko::HostNodeDB& db) override { addCamera(db, camera(), QLatin1String("0")); }

    bool step(ko::HostNodeDB& db, int number) override
    {
        const QString text = QString::number(number);
        QString id = named(db, camera());
        if (id.isEmpty())
            id = addCamera(db, camera(), QLatin1String("0"));
        ko::Node* node = db.beginUpdateNode(id, -1);
        if (!node)
            return false;
        node->setStringProperty(QLatin1String("Address"), text);
        node->setStringProperty(QLatin1String("Model"), text + QString(500, QLatin1Char('.')));
        node->setIntProperty(QLatin1String("Port"), number);
        db.endUpdateNode(node);
        db.auditLog().log(ko::ProgramLogEntry(1, text));
        const QString added = addNode(db, ko::RecordingFolderType, text, text);
        db.addNodeRelation(id, added, ko::RecordingFolderRelation);
        db.removeNode(named(db, QString::number(number - 3)));
        db.setGlobalRecordingFolderPath(text);
        return true;
    }

    Stored stored(ko::HostNodeDB& db) override
    {
        const int number = db.globalRecordingFolderPath().toInt();
        if (number == 0)
            return db.summaries().count() <= 1 ? Stored{0, 0} : none();
        const QString text = QString::number(number);
        const QString id = named(db, camera());
        const kom::smart<const ko::Node> node = db.node(id);
        QStringList names(camera());
        for (int i = qMax(1, number - 2); i <= number; ++i)
            names.append(QString::number(i));
        QStringList found;
        const QVector<ko::NodeSummary> all = db.summaries();
        for (const ko::NodeSummary& summary : all)
            found.append(summary.name);
        const bool whole = !node.null() &&
                           node->stringProperty(QLatin1String("Address"), QString()) == text &&
                           db.summary(id).location == text &&
                           node->stringProperty(QLatin1String("Model"), QString()).startsWith(text + '.') &&
                           node->intProperty(QLatin1String("Port"), 0) == number && found == names &&
                           db.relatedNodes(id, ko::RecordingFolderRelation).count() == names.count() - 1 &&
                           db.auditLog().count() == number;
        return whole ? Stored{number, number} : none();
    }

private:
    static QString camera() { return QLatin1String("main"); }
};

/// Step i imports a survey that gives each camera the name and the model i.
class Imports : public Workload
{
public:
    bool step(ko::HostNodeDB& db, int number) override
    {
        const QString survey = db.fileName() + QLatin1String(".csv");
        QFile writer(survey);
        if (!writer.open(QIODevice::WriteOnly))
            qFatal("cannot write %s", qPrintable(survey));
        writer.write("address,name,model\n");
        for (int line = 1; line <= Lines; ++line)
            writer.write(QByteArray::number(line) + ".example.org," + QByteArray::number(number) + ',' +
                         QByteArray::number(number) + '\n');
        writer.close();
        const ko::CameraSurvey::ImportResult result =
            ko::CameraSurvey::importCameras(survey, [](qint64, qint64) {
                QCoreApplication::processEvents(); // stores what was done
                return true;
            });
        complaint = result.error;
        return result.error.isEmpty() && result.badLines.isEmpty();
    }

    Stored stored(ko::HostNodeDB& db) override
    {
        Stored stored = {-1, -1};
        const QStringList ids = db.nodeIdList(ko::AllNodeTypes);
        if (ids.size() != Lines)
            return none();
        for (const QString& id : ids) {
            const kom::smart<const ko::Node> node = db.node(id);
            if (node.null() || node->stringProperty(QLatin1String("Model"), QString()) != node->name())
                return none();
            const int number = node->name().toInt();
            stored.least = stored.least < 0 ? number : qMin(stored.least, number);
            stored.most = qMax(stored.most, number);
        }
        return stored;
    }

    bool isOneTurn() const override { return false; }

private:
    enum { Lines = 120 }; // more than are done between two looks at the event loop
};

/// Step i gives twenty cameras their folders below "/mnt/i", through the dialog.
class MassAssignments : public Workload
{
public:
    void prepare(ko::HostNodeDB& db) override
    {
        for (int i = 1; i <= Cameras; ++i) {
            const QString id =
                addCamera(db, QString::number(i), QString::fromLatin1("%1.example.org").arg(i));
            setText(db, id, "FactoryIP", extension(i));
        }
        step(db, 0);
    }

    bool step(ko::HostNodeDB& db, int number) override
    {
        ko::RecordingFolderMassAssignmentDialog dialog(nullptr, db.nodeIdList(ko::IPDeviceType), Qt::Dialog);
        child<QRadioButton>(&dialog, "specificFileServerPathRadioButton")->setChecked(true);
        child<QLineEdit>(&dialog, "pathLineEdit")->setText(QString::fromLatin1("/mnt/%1").arg(number));
        const ko::ChangeScope scope(db, ko::Cause::now(ko::Purpose::Recording)); // as the client does it
        dialog.accept();
        return true;
    }

    Stored stored(ko::HostNodeDB& db) override
    {
        Stored stored = {-1, -1};
        const QStringList ids = db.nodeIdList(ko::IPDeviceType);
        if (ids.size() != Cameras || db.nodeIdList(ko::RecordingFolderType).size() != Cameras)
            return none();
        for (int i = 1; i <= Cameras; ++i) {
            const QString& id = ids.at(i - 1);
            const kom::smart<const ko::Node> camera = db.node(id);
            const QStringList folders = db.relatedNodes(id, ko::RecordingFolderRelation);
            if (camera.null() || folders.size() != 1 ||
                camera->intProperty(QLatin1String("RecordingStorageUsage"), -1) != 2)
                return none();
            const QString path = text(db, folders.first(), "Path");
            const int number = path.section(QLatin1Char('/'), 2, 2).toInt();
            if (path != QString::fromLatin1("/mnt/%1/%2").arg(number).arg(extension(i)))
                return none();
            stored.least = stored.least < 0 ? number : qMin(stored.least, number);
            stored.most = qMax(stored.most, number);
        }
        return stored;
    }

private:
    enum { Cameras = 20 };

    static QString extension(int i) { return QString::fromLatin1("10_0_0_%1").arg(i); }
};

/// Each step puts back what the last change set did to twenty cameras: step i leaves i change sets that put
/// back, and the cameras as they were before the first of them when i is odd.
class PutBacks : public Workload
{
public:
    void prepare(ko::HostNodeDB& db) override
    {
        for (int i = 1; i <= Cameras; ++i)
            addCamera(db, QString::number(i), QString::fromLatin1("%1.example.org").arg(i));
        QTest::qWait(1); // another change set
        const QStringList ids = db.nodeIdList(ko::IPDeviceType);
        for (const QString& id : ids)
            setText(db, id, "Model", model(0));
    }

    bool step(ko::HostNodeDB& db, int) override
    {
        const QVector<ko::ChangeSet> sets = db.history().changeSets(0, std::numeric_limits<int>::max());
        if (sets.isEmpty())
            return false;
        const auto shown = ko::PuttingBack::preview(db, ko::Alterations::of(sets.last()));
        if (!shown)
            return false; // the database says it
        const auto outcome = ko::PuttingBack::apply(db, *shown, ko::Cause::undoing({sets.last().cause}));
        complaint = outcome.error.message;
        return outcome.stored == ko::StoreOutcome::Stored && outcome.done.size() == Cameras;
    }

    Stored stored(ko::HostNodeDB& db) override
    {
        int number = 0;
        const QVector<ko::ChangeSet> sets = db.history().changeSets(0, std::numeric_limits<int>::max());
        for (const ko::ChangeSet& set : sets) {
            if (set.cause.purpose != ko::Purpose::Undo)
                continue;
            ++number;
            if (set.nodes.size() != Cameras || set.audit.size() != Cameras)
                return none();
        }
        const QStringList ids = db.nodeIdList(ko::IPDeviceType);
        const bool isWhole = std::all_of(ids.begin(), ids.end(), [&](const QString& id) {
            return text(db, id, "Model") == model(number);
        });
        return isWhole && ids.size() == Cameras ? Stored{number, number} : none();
    }

private:
    enum { Cameras = 20 };

    static QString model(int step) { return QLatin1String(step % 2 == 0 ? "new" : ""); }
};

/// By the name that tests give it; null for another.
inline std::unique_ptr<Workload> makeWorkload(const QString& name)
{
    if (name == QLatin1String("edits"))
        return std::make_unique<Edits>();
    if (name == QLatin1String("imports"))
        return std::make_unique<Imports>();
    if (name == QLatin1String("put-backs"))
        return std::make_unique<PutBacks>();
    return name == QLatin1String("mass assignments") ? std::make_unique<MassAssignments>()
                                                     : std::unique_ptr<Workload>();
}

/// A database of the first version with this many cameras.
inline void makeOldDatabase(const QString& file, int cameras)
{
    ko::StoreError error;
    const std::unique_ptr<ko::SqliteStore> store =
        ko::SqliteStore::open(file, &error, ko::SqliteStore::Check::First, 1);
    QVERIFY(store);
    ko::Transaction transaction(*store, ko::Transaction::Write);
    for (int i = 1; i <= cameras; ++i)
        store->run("INSERT INTO nodes VALUES (?, ?, 2, 'camera', '', -1, ?)",
                   {i, QString::number(i), QString::number(i)});
    transaction.commit();
}

inline bool isSound(const QString& file)
{
    return PlainSql(file).run(QLatin1String("PRAGMA integrity_check")).toString() == QLatin1String("ok");
}

/// The version of the database made by makeOldDatabase(); -1 when the migration is half there.
inline int wholeVersion(const QString& file, int cameras)
{
    PlainSql plain(file);
    const int version = plain.run(QLatin1String("PRAGMA user_version")).toInt();
    const int indexes = plain
                            .run(QLatin1String("SELECT count(*) FROM sqlite_master WHERE name IN "
                                               "('nodes_lookup', 'relations_destination')"))
                            .toInt();
    const bool whole = plain.run(QLatin1String("SELECT count(*) FROM nodes")).toInt() >= cameras &&
                       indexes == (version >= 2 ? 2 : 0);
    return whole ? version : -1;
}

/// With all that stands beside it.
inline void removeDatabase(const QString& file)
{
    const QFileInfo info(file);
    const QStringList names = QDir(info.path()).entryList({info.fileName() + QLatin1Char('*')}, QDir::Files);
    for (const QString& name : names)
        QVERIFY(QFile::remove(QDir(info.path()).filePath(name)));
}

} // namespace testsupport

#endif
