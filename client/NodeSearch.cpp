#include "NodeSearch.h"

#include "SearchText.h"

#include <algorithm>

namespace ko {

namespace {

bool standsInLine(const QString& word, int line, const QString& lines)
{
    int begin = 0;
    for (int i = 0; i < line; ++i)
        begin = int(lines.indexOf(QLatin1Char('\n'), begin)) + 1;
    const int end = int(lines.indexOf(QLatin1Char('\n'), begin));
    const int found = int(lines.indexOf(word, begin));
    return found >= 0 && (end < 0 || found < end);
}

} // namespace

NodeSearch::NodeSearch(const QString& text, const QStringList& fields)
{
    const QStringList typed = SearchText::folded(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& part : typed) {
        Word word = {part, -1, part.startsWith(QLatin1Char('-'))};
        if (word.absent)
            word.text.remove(0, 1);
        const int colon = int(word.text.indexOf(QLatin1Char(':')));
        word.column = colon < 0 ? -1 : int(fields.indexOf(word.text.left(colon)));
        if (word.column >= 0)
            word.text.remove(0, colon + 1);
        if (!word.text.isEmpty()) // else it is still being typed
            m_words.append(word);
    }
}

bool NodeSearch::Word::matches(const QString& lines) const
{
    return absent != (column < 0 ? lines.contains(text) : standsInLine(text, column, lines));
}

bool NodeSearch::Word::isWithin(const Word& other) const
{
    if (absent != other.absent)
        return false;
    const Word& wide = absent ? *this : other;
    const Word& narrow = absent ? other : *this;
    return (wide.column < 0 || wide.column == narrow.column) && narrow.text.contains(wide.text);
}

bool NodeSearch::matches(const QString& lines) const
{
    return std::all_of(m_words.begin(), m_words.end(),
                       [&lines](const Word& word) { return word.matches(lines); });
}

bool NodeSearch::isWithin(const NodeSearch& other) const
{
    return std::all_of(other.m_words.begin(), other.m_words.end(), [this](const Word& wanted) {
        return std::any_of(m_words.begin(), m_words.end(),
                           [&wanted](const Word& word) { return word.isWithin(wanted); });
    });
}

} // namespace ko
