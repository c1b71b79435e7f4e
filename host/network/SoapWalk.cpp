#include "network/SoapWalk.h"

#include <QVector>
#include <QXmlStreamReader>

#include <utility>

namespace ko {

namespace {

/// The toolkit compares each attribute of a tag with all others, which takes seconds when there are ten
/// thousands.
bool hasEndlessTag(const QByteArray& message)
{
    for (int from = 0, next = 0; from < message.size(); from = next) {
        const int found = int(message.indexOf('<', from + 1));
        next = found < 0 ? int(message.size()) : found;
        if (next - from > SoapWalk::LongestTag)
            return true;
    }
    return false;
}

/// All of it: given the array alone, Qt 5 ends at the first zero.
QString textOf(const QByteArray& message)
{
    return QString::fromUtf8(message.constData(), int(message.size()));
}

bool isEnvelope(const QXmlStreamReader& reader)
{
    return reader.name() == QLatin1String("Envelope") &&
           (reader.namespaceUri() == QLatin1String("http://www.w3.org/2003/05/soap-envelope") ||
            reader.namespaceUri() == QLatin1String("http://schemas.xmlsoap.org/soap/envelope/"));
}

} // namespace

class SoapWalk::Walk
{
public:
    Walk(const QByteArray& message, const Begin& begin, const End& end)
        // As text, so that no declaration in it can choose another encoding. Some put a line break before it.
        : m_reader(textOf(message.trimmed()))
        , m_begin(begin)
        , m_end(end)
    {
    }

    QString read();

private:
    void token(QXmlStreamReader::TokenType type);
    void begin();
    void end();
    void fail(const char* why) { m_error = QLatin1String(why); }

    struct Level
    {
        int length; ///< of the path around it
        int namespaces;
        bool hasChildren;
    };

    QXmlStreamReader m_reader;
    const Begin& m_begin;
    const End& m_end;
    QVector<Level> m_levels;
    QString m_path;
    QString m_text;
    QString m_error;
    int m_elements = 0;
    int m_namespaces = 0;
    bool m_isInBody = false;
};

QString SoapWalk::Walk::read()
{
    while (m_error.isEmpty() && !m_reader.atEnd())
        token(m_reader.readNext());
    return m_reader.hasError() && m_error.isEmpty() ? m_reader.errorString() : m_error;
}

void SoapWalk::Walk::token(QXmlStreamReader::TokenType type)
{
    if (type == QXmlStreamReader::DTD || type == QXmlStreamReader::EntityReference)
        fail("a document type");
    else if (type == QXmlStreamReader::StartElement)
        begin();
    else if (type == QXmlStreamReader::EndElement)
        end();
    else if (type == QXmlStreamReader::Characters && m_isInBody)
        m_text += m_reader.text();
    if (m_text.size() > LongestText)
        fail("a text that is too long");
}

void SoapWalk::Walk::begin()
{
    const int depth = int(m_levels.size());
    if (depth > 0)
        m_levels.last().hasChildren = true;
    const Level level = {int(m_path.size()), int(m_reader.namespaceDeclarations().size()), false};
    m_levels.append(level);
    m_namespaces += level.namespaces;
    m_text.clear();
    if (++m_elements > MostElements || depth >= MostDepth || m_namespaces > MostNamespaces)
        return fail("too much of it");
    if (depth == 0 && !isEnvelope(m_reader))
        return fail("no SOAP envelope");
    if (depth == 1)
        m_isInBody = m_reader.name() == QLatin1String("Body");
    if (depth < 2 || !m_isInBody)
        return;
    if (depth > 2)
        m_path += QLatin1Char('/');
    m_path += m_reader.name();
    m_begin(m_path, m_reader.attributes());
}

void SoapWalk::Walk::end()
{
    const Level level = m_levels.takeLast();
    m_namespaces -= level.namespaces;
    if (m_levels.size() >= 2 && m_isInBody)
        m_end(m_path, level.hasChildren ? QString() : m_text.trimmed());
    m_path.truncate(level.length);
    m_text.clear();
}

QString SoapWalk::read(const QByteArray& message, const Begin& begin, const End& end)
{
    return hasEndlessTag(message) ? QStringLiteral("a tag that is too long")
                                  : Walk(message, begin, end).read();
}

QString SoapWalk::read(const QByteArray& message, const End& end)
{
    return read(
        message, [](const QString&, const QXmlStreamAttributes&) {}, end);
}

} // namespace ko
