#ifndef KO_NODESEARCH_H
#define KO_NODESEARCH_H

#include <QSet>
#include <QStringList>
#include <QVector>

namespace ko {

/// What a user types to find nodes: words that all must stand in some column, whatever their case and
/// accents. "field:word" looks in one column, "field:one|other" for either, "-word" wants that the word
/// stands nowhere. Quotes keep words with a blank together: state:"no answer".
class NodeSearch
{
public:
    NodeSearch() = default;

    /// \a fields name the columns in their order. Before a colon any other word is text like the rest.
    NodeSearch(const QString& text, const QStringList& fields);

    /// The search \a text, with what names the columns taken from \a fields instead of \a before. Words that
    /// name no column stay as they are.
    static QString withFields(const QString& text, const QStringList& before, const QStringList& fields);

    bool isEmpty() const { return m_words.isEmpty(); }

    /// The columns that are looked at by their name.
    QSet<int> columns() const;

    /// \a lines are the columns, folded, one to a line.
    bool matches(const QString& lines) const;

    /// Whether all that matches this matches \a other too, as far as the words alone tell.
    bool isWithin(const NodeSearch& other) const;

    bool operator==(const NodeSearch& other) const { return m_words == other.m_words; }

private:
    struct Word
    {
        QStringList texts; ///< any of them
        int column;        ///< -1 for any
        bool absent;

        bool operator==(const Word& other) const
        {
            return texts == other.texts && column == other.column && absent == other.absent;
        }
        bool matches(const QString& lines) const;
        bool isWithin(const Word& other) const;
    };

    QVector<Word> m_words;
};

} // namespace ko

#endif
