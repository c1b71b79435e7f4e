#ifndef KO_HISTORYWORDS_H
#define KO_HISTORYWORDS_H

#include "history/PutBack.h"

#include <functional>

namespace ko {

/// What was changed, in words of the user's language: those of the pages where there are any. Passwords are
/// not shown.
class KO_HOST_EXPORT HistoryWords
{
public:
    /// The name of a node or an environment that is there, else an empty text.
    typedef std::function<QString(const QString& id)> NameOf;

    explicit HistoryWords(NameOf nameOf);

    /// Takes the names of nodes that are gone from what tells them.
    void learn(const Alteration& alteration);

    /// Whose thing it is: the name of the node, or what else was changed.
    QString owner(const Alteration& of) const;

    /// Which of its things.
    QString what(const Alteration& of) const;

    /// A value before and after a change.
    QString before(const Alteration& of, const QVariant& value) const;
    QString after(const Alteration& of, const QVariant& value) const;

    /// Why it cannot be put back; empty if it can.
    static QString reason(PutBackLine::State state);

    /// The title of a property or a setting.
    static QString title(const QString& key);

    /// The keys of the properties and settings that have one, those of one title together.
    static QVector<QStringList> titledKeys();

private:
    QString nameOf(const NodeID& id) const;
    QString namesOf(const QString& ids) const;
    QString text(const Alteration& of, const QVariant& value) const;

    const NameOf m_nameOf;
    QHash<NodeID, QString> m_names; ///< of those that may be gone
};

} // namespace ko

#endif
