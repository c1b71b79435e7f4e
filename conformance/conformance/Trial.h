#ifndef KO_CONFORMANCE_TRIAL_H
#define KO_CONFORMANCE_TRIAL_H

#include "conformance/Conformance.h"
#include "ko/Node.h"
#include "ko/NodeDB.h"
#include "ko/NodeHint.h"

namespace ko {
namespace conformance {

/// One rule tried on a new database: makes its nodes, hears what it announces, notes what is wrong.
class Trial
{
public:
    explicit Trial(const Host& host);

    const Host& host() const { return m_host; }
    NodeDB& db() const { return *m_db; }
    const QStringList& findings() const { return m_findings; }

    /// Notes \a otherwise if \a kept is false.
    bool expect(bool kept, const QString& otherwise);

    /// The same for two values, each said.
    template <class T>
    bool expectEqual(const T& is, const T& shall, const char* what)
    {
        return expect(
            is == shall,
            QString::fromLatin1("%1 is %2, not %3").arg(QString::fromLatin1(what), said(is), said(shall)));
    }

    /// A hint for another node; null, and noted, if the driver makes none.
    kom::smart<NodeHint> hint(const QString& name);

    /// Adds a node and returns its id; empty, and noted, if none was announced.
    QString add(const QString& name = QLatin1String("Node"));

    /// Sets one string property. False, and noted, when there is no copy to write into.
    bool change(const QString& id, const QString& key, const QString& value);

    /// What was announced since the last call, as "inserted ID", "updated ID", "removed ID".
    QStringList heard();

    /// Called while something is announced, with the same words.
    std::function<void(const QString& kind, const QString& id)> listener;

private:
    void hear(const char* kind, const QString& id);

    static QString said(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }
    static QString said(const QStringList& list)
    {
        return QLatin1Char('(') + list.join(QLatin1String(", ")) + QLatin1Char(')');
    }
    static QString said(bool value) { return QLatin1String(value ? "true" : "false"); }
    static QString said(int value) { return QString::number(value); }

    const Host& m_host;
    const std::unique_ptr<NodeDB> m_db;
    QStringList m_heard;
    QStringList m_findings;
    int m_hints = 0;
};

/// A rule with what tries it.
struct TriedRule
{
    Rule rule;
    void (*tries)(Trial& trial);
};

QVector<TriedRule> readingRules();
QVector<TriedRule> addingRules();
QVector<TriedRule> updatingRules();
QVector<TriedRule> removingRules();
QVector<TriedRule> relationRules();
QVector<TriedRule> settingsRules();

} // namespace conformance
} // namespace ko

#endif
