#include "conformance/Conformance.h"

#include "conformance/Trial.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace ko {
namespace conformance {

namespace {

const QVector<TriedRule>& triedRules()
{
    static const QVector<TriedRule> all = readingRules() + addingRules() + updatingRules() + removingRules() +
                                          relationRules() + settingsRules();
    return all;
}

QStringList findingsOf(const Host& host, const TriedRule& rule)
{
    try {
        Trial trial(host);
        rule.tries(trial);
        return trial.findings();
    } catch (const std::exception& thrown) {
        return QStringList(QString::fromLatin1("throws: %1").arg(QString::fromLocal8Bit(thrown.what())));
    } catch (...) {
        return QStringList(QLatin1String("throws"));
    }
}

} // namespace

QVector<Rule> rules()
{
    QVector<Rule> rules;
    for (const TriedRule& tried : triedRules())
        rules.append(tried.rule);
    return rules;
}

QStringList findings(const Host& host, const char* name)
{
    const auto& all = triedRules();
    const auto found = std::find_if(all.begin(), all.end(), [name](const TriedRule& tried) {
        return std::strcmp(tried.rule.name, name) == 0;
    });
    if (found == all.end())
        return QStringList(QString::fromLatin1("there is no rule \"%1\"").arg(QString::fromLatin1(name)));
    return findingsOf(host, *found);
}

int run(const Host& host)
{
    int broken = 0;
    for (const TriedRule& tried : triedRules()) {
        const QStringList found = findingsOf(host, tried);
        broken += !found.isEmpty();
        std::printf("%s %s: %s\n", found.isEmpty() ? "ok    " : "BROKEN", tried.rule.name, tried.rule.text);
        for (const QString& finding : found)
            std::printf("         %s\n", qPrintable(finding));
    }
    std::printf("%d rules, %d broken\n", int(triedRules().size()), broken);
    return broken ? 1 : 0;
}

} // namespace conformance
} // namespace ko
