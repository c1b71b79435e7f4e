#ifndef TESTS_SHARING_DESKTESTING_H
#define TESTS_SHARING_DESKTESTING_H

#include "../host/StoreTesting.h"

#include "database/StoredHistory.h"
#include "drivers/NodeTypes.h"
#include "ko/Environments.h"
#include "sharing/SiteConnection.h"
#include "store/ChangeCoding.h"
#include "store/NodeStore.h"
#include "store/SharedLog.h"
#include "support/PostgresServer.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

namespace testsupport {

inline void describe(const ko::NodeData& data, ko::NodeSummary* summary, QString* lookupKey)
{
    *summary = ko::NodeTypes::summaryOf(data);
    *lookupKey = ko::NodeTypes::lookupKey(data);
}

/// Makes a site in a new database of the server. Says what failed, or nothing.
inline QString makeSite(PostgresServer& server, const QString& database)
{
    if (!server.createDatabase(database))
        return server.error();
    ko::SiteConnection connection;
    ko::SharingFailure failure = connection.open(server.address(database));
    if (!failure)
        failure = connection.prepareSite();
    return failure ? QString::fromLatin1("no site: %1").arg(failure.message) : QString();
}

inline QByteArray bytes(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

/// Everything that desks share of a file, in one text, as the store reads it.
inline QByteArray deskState(const QString& file)
{
    ko::StoreError error;
    const std::unique_ptr<ko::NodeStore> store =
        ko::NodeStore::open(file, &error, ko::NodeStore::Check::ByUser);
    if (!store)
        return error.detail.toUtf8();
    QJsonArray nodes;
    const ko::NodeStore::Contents contents = store->load();
    PlainSql(file).forEach("SELECT n, id, type, name FROM nodes ORDER BY n", [&nodes](const QSqlQuery& row) {
        nodes.append(QJsonArray{row.value(0).toDouble(), row.value(1).toString(), row.value(2).toInt(),
                                row.value(3).toString()});
    });
    for (int i = 0; i < nodes.size(); ++i) {
        QJsonArray node = nodes.at(i).toArray();
        const ko::NodeValues values{QString(),
                                    store->properties(node.at(1).toString()).value_or(ko::PropertyList())};
        ko::NodeChange change;
        change.before = change.after = values;
        const QString text = ko::ChangeCoding::text(change.after, change);
        node.append(QJsonDocument::fromJson(text.toUtf8()).object()["properties"]);
        nodes[i] = node;
    }
    QJsonArray relations;
    PlainSql(file).forEach("SELECT r.seq, a.id, b.id, r.type FROM relations r JOIN nodes a ON a.n = r.source"
                           " JOIN nodes b ON b.n = r.destination ORDER BY r.seq",
                           [&relations](const QSqlQuery& row) {
                               relations.append(QJsonArray{row.value(0).toDouble(), row.value(1).toString(),
                                                           row.value(2).toString(), row.value(3).toInt()});
                           });
    QJsonObject settings;
    for (auto it = contents.settings.begin(); it != contents.settings.end(); ++it)
        settings[it.key()] = it.value();
    const QString environments = ko::ChangeCoding::text(contents.environments);
    return bytes({{"nodes", nodes},
                  {"relations", relations},
                  {"settings", settings},
                  {"environments", QJsonDocument::fromJson(environments.toUtf8()).array()}});
}

/// The same of what ko.state() gives.
inline QByteArray siteState(QJsonObject state)
{
    QJsonArray nodes;
    const QJsonArray given = state["nodes"].toArray();
    for (const QJsonValue& node : given) {
        QJsonArray row = node.toArray();
        if (row.at(4).isNull())
            row[4] = QJsonObject();
        nodes.append(row);
    }
    return bytes({{"nodes", nodes},
                  {"relations", state["relations"].toArray()},
                  {"settings", state["settings"].toObject()},
                  {"environments", state["environments"].toArray()}});
}

/// Something that a user does, at random, and that is stored when this returns.
inline void randomEdit(ko::HostNodeDB& db, std::mt19937& random)
{
    using namespace ko;
    const auto below = [&random](int limit) { return int(random() % unsigned(limit)); };
    db.syncForeignChanges();
    const QStringList ids = db.nodeIdList(AllNodeTypes);
    const QString id = ids.isEmpty() ? QString() : ids.at(below(int(ids.size())));
    const QString other = ids.isEmpty() ? QString() : ids.at(below(int(ids.size())));
    const QString word = QString::number(below(6));
    const int what = below(20);
    if (what < 2 || ids.size() < 3) {
        addCamera(db, word, word);
    } else if (what == 2) {
        addNode(db, RecordingFolderType, word, word);
    } else if (what == 3) {
        db.removeNode(id);
    } else if (what < 9) {
        db.addNodeRelation(id, other, RecordingFolderRelation);
    } else if (what == 9) {
        db.removeNodeRelation(id, db.relatedNodes(id, RecordingFolderRelation).value(0),
                              RecordingFolderRelation);
    } else if (what == 10) {
        db.setBandwidth(below(5));
    } else if (what == 11) {
        db.environments().setList(db.environments().getList()
                                  << qMakePair(QString::fromLatin1("{%1}").arg(random()), word));
    } else if (what == 12) { // undo of something
        const QVector<ChangeSet> sets = db.history().changeSets(0, 1000);
        if (!sets.isEmpty())
            db.apply(sets.at(below(int(sets.size()))).inverse());
    } else {
        const char* key = below(2) ? "Name" : (below(2) ? "Model" : "Version");
        if (Node* node = db.beginUpdateNode(id, -1)) {
            node->setStringProperty(QLatin1String(key), word);
            db.endUpdateNode(node);
        } else {
            QVERIFY(db.summary(id).id.isEmpty()); // another desk removed it just now
        }
    }
    db.flush();
}

/// What was done at a desk and is not there from elsewhere: the identifiers of its change sets.
inline QStringList changeSetsOf(const QString& file)
{
    QStringList ids;
    PlainSql(file).forEach("SELECT id FROM change_sets",
                           [&ids](const QSqlQuery& row) { ids.append(row.value(0).toString()); });
    return ids;
}

} // namespace testsupport

#endif
