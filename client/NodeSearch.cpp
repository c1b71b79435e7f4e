#include "NodeSearch.h"

#include "model/SearchText.h"

#include <QRegularExpression>

#include <algorithm>

namespace ko {

namespace {

/// Parted at blanks, but not between quotes. A quote without a second one is a character like others: 19".
QStringList parts(const QString& text)
{
    const QLatin1Char quote('"');
    QStringList parts;
    QString part;
    bool isQuoted = false;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c == quote && (isQuoted || text.indexOf(quote, i + 1) >= 0)) {
            isQuoted = !isQuoted;
        } else if (c == QLatin1Char(' ') && !isQuoted) {
            parts.append(part);
            part.clear();
        } else {
            part.append(c);
        }
    }
    parts.append(part);
    parts.removeAll(QString());
    return parts;
}

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
    const QStringList typed = parts(SearchText::folded(text));
    for (const QString& part : typed) {
        Word word = {{}, -1, part.startsWith(QLatin1Char('-'))};
        const QString wanted = word.absent ? part.mid(1) : part;
        const int colon = int(wanted.indexOf(QLatin1Char(':')));
        word.column = colon < 0 ? -1 : int(fields.indexOf(wanted.left(colon)));
        if (word.column >= 0)
            word.texts = wanted.mid(colon + 1).split(QLatin1Char('|'), Qt::SkipEmptyParts);
        else if (!wanted.isEmpty())
            word.texts = QStringList(wanted);
        if (!word.texts.isEmpty()) // else it is still being typed
            m_words.append(word);
    }
}

QString NodeSearch::withFields(const QString& text, const QStringList& before, const QStringList& fields)
{
    static const QRegularExpression nameOfAField(
        QStringLiteral("(?<=^|^-|[ \"]|[ \"]-)[^ \":-][^ \":]*(?=:)"));
    QString changed;
    int end = 0;
    QRegularExpressionMatchIterator names = nameOfAField.globalMatch(text);
    while (names.hasNext()) {
        const QRegularExpressionMatch name = names.next();
        const int column = int(before.indexOf(SearchText::folded(name.captured())));
        if (column < 0)
            continue;
        changed += text.mid(end, name.capturedStart() - end) + fields.at(column);
        end = int(name.capturedEnd());
    }
    return changed + text.mid(end);
}

QSet<int> NodeSearch::columns() const
{
    QSet<int> columns;
    for (const Word& word : m_words) {
        if (word.column >= 0)
            columns.insert(word.column);
    }
    return columns;
}

bool NodeSearch::Word::matches(const QString& lines) const
{
    const auto stands = [this, &lines](const QString& text) {
        return column < 0 ? lines.contains(text) : standsInLine(text, column, lines);
    };
    return absent != std::any_of(texts.begin(), texts.end(), stands);
}

bool NodeSearch::Word::isWithin(const Word& other) const
{
    if (absent != other.absent)
        return false;
    const Word& wide = absent ? *this : other;
    const Word& narrow = absent ? other : *this;
    const auto isFound = [&wide](const QString& text) {
        return std::any_of(wide.texts.begin(), wide.texts.end(),
                           [&text](const QString& wanted) { return text.contains(wanted); });
    };
    return (wide.column < 0 || wide.column == narrow.column) &&
           std::all_of(narrow.texts.begin(), narrow.texts.end(), isFound);
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
