#include "SavedSearches.h"

#include "model/SearchText.h"

#include <QSettings>

#include <algorithm>

namespace ko {

namespace SavedSearches {

namespace {

const char arrayKey[] = "searches";

void store(const QVector<SavedSearch>& searches)
{
    QSettings settings;
    settings.remove(QLatin1String(arrayKey));
    settings.beginWriteArray(QLatin1String(arrayKey), int(searches.size()));
    for (int i = 0; i < searches.size(); ++i) {
        settings.setArrayIndex(i);
        settings.setValue(QStringLiteral("name"), searches.at(i).name);
        settings.setValue(QStringLiteral("text"), searches.at(i).text);
        settings.setValue(QStringLiteral("type"), int(searches.at(i).type));
    }
    settings.endArray();
}

QVector<SavedSearch>::iterator find(QVector<SavedSearch>& searches, const QString& name)
{
    return std::find_if(searches.begin(), searches.end(),
                        [&name](const SavedSearch& search) { return search.name == name; });
}

} // namespace

QVector<SavedSearch> all()
{
    QSettings settings;
    QVector<SavedSearch> searches;
    const int count = settings.beginReadArray(QLatin1String(arrayKey));
    for (int i = 0; i < count; ++i) {
        settings.setArrayIndex(i);
        const SavedSearch search = {
            settings.value(QStringLiteral("name")).toString(),
            settings.value(QStringLiteral("text")).toString(),
            ENodeType(settings.value(QStringLiteral("type"), int(AllNodeTypes)).toInt())};
        if (!search.name.isEmpty()) // the file may say anything
            searches.append(search);
    }
    settings.endArray();
    std::stable_sort(searches.begin(), searches.end(), [](const SavedSearch& a, const SavedSearch& b) {
        return SearchText::sortKey(a.name) < SearchText::sortKey(b.name);
    });
    return searches;
}

void save(const SavedSearch& search)
{
    QVector<SavedSearch> searches = all();
    const auto same = find(searches, search.name);
    if (same == searches.end())
        searches.append(search);
    else
        *same = search;
    store(searches);
}

void remove(const QString& name)
{
    QVector<SavedSearch> searches = all();
    const auto found = find(searches, name);
    if (found == searches.end())
        return;
    searches.erase(found);
    store(searches);
}

bool rename(const QString& from, const QString& to)
{
    QVector<SavedSearch> searches = all();
    const auto found = find(searches, from);
    if (to.isEmpty() || found == searches.end() || (from != to && find(searches, to) != searches.end()))
        return false;
    found->name = to;
    store(searches);
    return true;
}

} // namespace SavedSearches

} // namespace ko
