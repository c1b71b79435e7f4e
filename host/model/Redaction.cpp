#include "model/Redaction.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace ko {

namespace Redaction {

namespace {

constexpr int MaximumReadings = 8; // random texts take three at most, the last of which changes nothing

const char* const telltales[] = {"password", "passwd", "passwort", "passphrase", "passcode", "pwd",
                                 "secret",   "apikey", "api_key",  "api-key",    "token",    "credential"};

bool isKeyPart(QChar c)
{
    return c.isLetterOrNumber() || c == QLatin1Char('_') || c == QLatin1Char('-') || c == QLatin1Char('.');
}

bool isQuote(QChar c)
{
    return c == QLatin1Char('"') || c == QLatin1Char('\'');
}

/// Reads a text from left to right once, copying what may stay.
class Reader
{
public:
    explicit Reader(const QString& text)
        : m_text(text)
    {
        m_out.reserve(text.size());
    }

    QString run()
    {
        while (m_at < size()) {
            if (beginsAuthority())
                readUserInfo();
            else if (isKeyPart(at(m_at)))
                readWord();
            else
                copyTo(m_at + 1);
        }
        return m_out;
    }

private:
    int size() const { return int(m_text.size()); }
    QChar at(int i) const { return i >= 0 && i < size() ? m_text.at(i) : QChar(); }

    void copyTo(int end)
    {
        m_out.append(m_text.constData() + m_at, end - m_at);
        m_at = end;
    }

    void replaceTo(int end)
    {
        if (end <= m_at)
            return;
        m_out += QLatin1String(Mark);
        m_at = end;
    }

    bool beginsAuthority() const
    {
        return at(m_at) == QLatin1Char(':') && at(m_at + 1) == QLatin1Char('/') &&
               at(m_at + 2) == QLatin1Char('/');
    }

    void readUserInfo()
    {
        copyTo(m_at + 3);
        findLastAt();
        const int colon = int(m_text.indexOf(QLatin1Char(':'), m_at));
        if (m_lastAt < m_at || colon < 0 || colon > m_lastAt)
            return;
        copyTo(colon + 1);
        replaceTo(m_lastAt);
    }

    /// The last "@" before the next blank: one in a password that was not encoded may come earlier. Looked
    /// for once per run of characters, however many "://" it has.
    void findLastAt()
    {
        if (m_at < m_runEnd)
            return;
        m_lastAt = -1;
        for (m_runEnd = m_at; m_runEnd < size() && !endsRun(m_runEnd); ++m_runEnd) {
            if (m_text.at(m_runEnd) == QLatin1Char('@'))
                m_lastAt = m_runEnd;
        }
    }

    bool endsRun(int i) const
    {
        return m_text.at(i).isSpace() || (m_text.at(i) == QLatin1Char('"') && at(i - 1) != QLatin1Char('\\'));
    }

    void readWord()
    {
        int end = m_at;
        while (end < size() && isKeyPart(m_text.at(end)))
            ++end;
        const QString word = m_text.mid(m_at, end - m_at).toLower();
        copyTo(end);
        const bool header = word.endsWith(QLatin1String("authorization"));
        if (!header && !speaksOfPassword(word))
            return;
        const int value = valueAfter(end);
        if (value < 0)
            return;
        const bool inJson = at(end) == QLatin1Char('"') || at(end) == QLatin1Char('\\');
        copyTo(value);
        if (header && !inJson)
            replaceTo(lineEnd(value));
        else
            readValue(inJson);
    }

    static bool speaksOfPassword(const QString& word)
    {
        return word == QLatin1String("pass") || word == QLatin1String("pw") ||
               std::any_of(std::begin(telltales), std::end(telltales),
                           [&word](const char* part) { return word.contains(QLatin1String(part)); });
    }

    int skipBlanks(int i) const
    {
        while (at(i) == QLatin1Char(' ') || at(i) == QLatin1Char('\t'))
            ++i;
        return i;
    }

    /// Where the value of a key begins that ends at \a i, or -1 if no value follows.
    int valueAfter(int i) const
    {
        while (at(i) == QLatin1Char('\\'))
            ++i;
        if (isQuote(at(i)))
            ++i;
        const int next = skipBlanks(i);
        if (at(next) == QLatin1Char(':') || at(next) == QLatin1Char('='))
            return skipBlanks(next + 1);
        return next > i && isQuote(at(next)) ? next : -1; // password "x" was refused
    }

    int lineEnd(int i) const
    {
        while (i < size() && m_text.at(i) != QLatin1Char('\n') && m_text.at(i) != QLatin1Char('\r'))
            ++i;
        return i;
    }

    void readValue(bool inJson)
    {
        int quote = m_at;
        while (at(quote) == QLatin1Char('\\'))
            ++quote;
        const QChar first = at(quote);
        if (isQuote(first)) {
            const int depth = quote - m_at;
            copyTo(quote + 1);
            replaceTo(quotedEnd(m_at, first, depth));
        } else if (at(m_at) == QLatin1Char('[') || at(m_at) == QLatin1Char('{')) {
            m_at = bracketEnd(m_at);
            m_out += QLatin1Char('"') + QLatin1String(Mark) + QLatin1Char('"');
        } else {
            replaceTo(plainEnd(m_at, inJson));
        }
    }

    /// Where the quote stands that closes a text opened with \a depth backslashes before its quote.
    int quotedEnd(int i, QChar quote, int depth) const
    {
        int backslashes = 0;
        for (; i < size(); ++i) {
            if (m_text.at(i) == QLatin1Char('\\')) {
                ++backslashes;
                continue;
            }
            // An escaped quote has an odd number more; an escaped backslash before the closing one, an even.
            if (m_text.at(i) == quote && closes(backslashes, depth))
                return i - depth;
            backslashes = 0;
        }
        return size();
    }

    /// \a depth is 2^n - 1 for JSON n times in JSON; each character inside is then written 2^n times longer.
    static bool closes(int backslashes, int depth)
    {
        return backslashes >= depth && (backslashes - depth) % (2 * (depth + 1)) == 0;
    }

    int bracketEnd(int i) const
    {
        int open = 0;
        for (; i < size(); ++i) {
            const QChar c = m_text.at(i);
            if (c == QLatin1Char('"'))
                i = quotedEnd(i + 1, c, 0);
            else if (c == QLatin1Char('[') || c == QLatin1Char('{'))
                ++open;
            else if ((c == QLatin1Char(']') || c == QLatin1Char('}')) && --open == 0)
                return i + 1;
        }
        return size();
    }

    /// A password in plain text may hold anything but blanks; in a query string it ends at the "&", and in
    /// JSON only numbers and the like stand without quotes.
    int plainEnd(int i, bool inJson) const
    {
        const QString ends = QLatin1String(inJson ? "&\",]}" : "&\"");
        while (i < size() && !m_text.at(i).isSpace() && !ends.contains(m_text.at(i)))
            ++i;
        return i;
    }

    const QString& m_text;
    QString m_out;
    int m_at = 0;
    int m_runEnd = 0;
    int m_lastAt = -1;
};

} // namespace

/// Read again until nothing changes: a mark no longer has the blanks and quotes of what it stands for, so
/// another rule may now see more in the text around it. Each reading only hides, takes time in proportion,
/// and their number is limited: a text that was made to need more shows nothing at all.
QString redacted(const QString& text)
{
    QString shown = text;
    for (int reading = 0; reading < MaximumReadings; ++reading) {
        const QString before = std::exchange(shown, Reader(shown).run());
        if (shown == before)
            return shown;
    }
    return QLatin1String(Mark);
}

} // namespace Redaction

} // namespace ko
