#ifndef TESTS_HOST_HISTORYMODEL_H
#define TESTS_HOST_HISTORYMODEL_H

#include "StoreTesting.h"

#include <map>
#include <set>
#include <tuple>

namespace testsupport {

/// What is in a database file, read by plain SQL; and what putting a change back must make of it, told by
/// what was there before and after, without a look at the change sets.
struct HistoryModel
{
    struct Node
    {
        qint64 place = 0;
        int type = 0;
        std::map<QString, QString> values; ///< the name as "Name"
    };
    typedef std::tuple<QString, QString, int> Link; ///< source, destination, type

    std::map<QString, Node> nodes;
    std::map<Link, qint64> links; ///< with their places
    std::map<QString, QString> settings;
    QString environments;

    static HistoryModel of(const QString& file)
    {
        HistoryModel model;
        const PlainSql sql(file);
        sql.forEach("SELECT id, n, type, name FROM nodes", [&model](const QSqlQuery& row) {
            model.nodes[row.value(0).toString()] = {
                row.value(1).toLongLong(), row.value(2).toInt(), {{"Name", row.value(3).toString()}}};
        });
        sql.forEach(
            "SELECT n.id, p.key, p.type || ' ' || p.value FROM properties p JOIN nodes n ON n.n = p.node",
            [&model](const QSqlQuery& row) {
                model.nodes[row.value(0).toString()].values[row.value(1).toString()] =
                    row.value(2).toString();
            });
        sql.forEach(
            "SELECT a.id, b.id, r.type, r.seq FROM relations r JOIN nodes a ON a.n = r.source"
            " JOIN nodes b ON b.n = r.destination",
            [&model](const QSqlQuery& row) {
                model.links[{row.value(0).toString(), row.value(1).toString(), row.value(2).toInt()}] =
                    row.value(3).toLongLong();
            });
        sql.forEach("SELECT key, value FROM settings", [&model](const QSqlQuery& row) {
            model.settings[row.value(0).toString()] = row.value(1).toString();
        });
        sql.forEach("SELECT id, name FROM environments ORDER BY position", [&model](const QSqlQuery& row) {
            model.environments += row.value(0).toString() + '=' + row.value(1).toString() + '\n';
        });
        return model;
    }

    /// Equal texts, equal databases.
    QString text() const
    {
        QString text = environments;
        for (const auto& [id, node] : nodes) {
            text += QString("%1 %2 %3\n").arg(id).arg(node.place).arg(node.type);
            for (const auto& [key, value] : node.values)
                text += "  " + key + '=' + value + '\n';
        }
        std::map<std::pair<QString, qint64>, Link> inOrder; // of the relations from one node
        for (const auto& [link, place] : links)
            inOrder[{std::get<0>(link), place}] = link;
        for (const auto& [place, link] : inOrder)
            text += nameOf(link) + '\n';
        for (const auto& [key, value] : settings)
            text += key + '=' + value + '\n';
        return text;
    }

    static QString nameOf(const Link& link)
    {
        return std::get<0>(link) + '>' + std::get<1>(link) + '/' + QString::number(std::get<2>(link));
    }

    /// Puts back what led from \a before to \a after, and returns what it leaves as it is.
    std::set<QString> putBack(const HistoryModel& before, const HistoryModel& after)
    {
        std::set<QString> refused;
        for (const auto& [id, node] : before.nodes) {
            if (!after.nodes.count(id) && !nodes.emplace(id, node).second)
                refused.insert(id);
            else if (after.nodes.count(id))
                putBackValues(id, node.values, after.nodes.at(id).values, &refused);
        }
        const std::set<QString> came = takeOut(before, after, &refused);
        for (const auto& [link, place] : after.links) {
            const bool isOfNode = came.count(std::get<0>(link)) || came.count(std::get<1>(link));
            if (!before.links.count(link) && !isOfNode && !links.erase(link))
                refused.insert(nameOf(link));
        }
        for (const auto& [place, link] : before.linksInOrder()) {
            const bool isPossible = nodes.count(std::get<0>(link)) && nodes.count(std::get<1>(link));
            if (after.links.count(link))
                continue;
            if (!isPossible || links.count(link))
                refused.insert(nameOf(link));
            else
                links[link] = linksInOrder().count(place) ? linksInOrder().rbegin()->first + 1 : place;
        }
        putBackMap(before.settings, after.settings, &settings, QString(), &refused);
        if (before.environments != after.environments && environments != after.environments)
            refused.insert("environments");
        else if (before.environments != after.environments)
            environments = before.environments;
        return refused;
    }

private:
    std::map<qint64, Link> linksInOrder() const
    {
        std::map<qint64, Link> inOrder;
        for (const auto& [link, place] : links)
            inOrder[place] = link;
        return inOrder;
    }

    static void putBackMap(const std::map<QString, QString>& before, const std::map<QString, QString>& after,
                           std::map<QString, QString>* now, const QString& owner, std::set<QString>* refused)
    {
        const auto value = [](const std::map<QString, QString>& map, const QString& key) {
            return map.count(key) ? '=' + map.at(key) : QString();
        };
        std::map<QString, QString> keys = before;
        keys.insert(after.begin(), after.end());
        for (const auto& key : keys) {
            if (value(before, key.first) == value(after, key.first))
                continue;
            if (!now || value(*now, key.first) != value(after, key.first))
                refused->insert(owner + '.' + key.first);
            else if (before.count(key.first))
                (*now)[key.first] = before.at(key.first);
            else
                now->erase(key.first);
        }
    }

    void putBackValues(const QString& id, const std::map<QString, QString>& before,
                       const std::map<QString, QString>& after, std::set<QString>* refused)
    {
        putBackMap(before, after, nodes.count(id) ? &nodes[id].values : nullptr, id, refused);
    }

    /// Returns what came.
    std::set<QString> takeOut(const HistoryModel& before, const HistoryModel& after,
                              std::set<QString>* refused)
    {
        std::set<QString> came;
        std::set<QString> staying;
        for (const auto& [id, node] : after.nodes) {
            if (before.nodes.count(id))
                continue;
            came.insert(id);
            if (!nodes.count(id) || nodes.at(id).values != node.values)
                staying.insert(id);
        }
        for (std::size_t count = came.size() + 1; count != staying.size();) {
            count = staying.size();
            for (const auto& entry : links) {
                const QString ends[] = {std::get<0>(entry.first), std::get<1>(entry.first)};
                const bool isNew = after.links.count(entry.first) && !before.links.count(entry.first);
                if (!isNew || staying.count(ends[0]) || staying.count(ends[1]))
                    for (const QString& end : ends)
                        if (came.count(end))
                            staying.insert(end);
            }
        }
        refused->insert(staying.begin(), staying.end());
        for (const QString& id : came) {
            if (staying.count(id))
                continue;
            nodes.erase(id);
            for (auto link = links.begin(); link != links.end();)
                link = std::get<0>(link->first) == id || std::get<1>(link->first) == id ? links.erase(link)
                                                                                        : std::next(link);
        }
        return came;
    }
};

} // namespace testsupport

#endif
