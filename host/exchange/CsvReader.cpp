#include "exchange/CsvReader.h"

#include "exchange/CsvFormula.h"

#include <QIODevice>

#include <algorithm>

namespace ko {

namespace {

const int BlockSize = 64 * 1024;

/// Stands for UTF-16 that is not text; it is not valid UTF-8 either, so the line check finds it.
const char InvalidByte = char(0xff);

/// Whether all of \a bytes is UTF-8. The letter in front keeps a byte order mark inside the text.
bool decode(const QByteArray& bytes, QString* text)
{
    *text = QString::fromUtf8('x' + bytes).mid(1);
    return text->toUtf8() == bytes;
}

QChar commonestDelimiter(const QString& header)
{
    const QString delimiters = QLatin1String(",;\t");
    int counts[3] = {0, 0, 0};
    bool quoted = false;
    for (const QChar c : header) {
        quoted = quoted != (c == QLatin1Char('"'));
        const auto i = delimiters.indexOf(c);
        if (!quoted && i >= 0)
            ++counts[i];
    }
    return delimiters.at(std::max_element(counts, counts + 3) - counts);
}

/// Takes the lines of one record apart.
class RecordParser
{
public:
    explicit RecordParser(QChar delimiter)
        : m_delimiter(delimiter)
    {
    }

    void add(const QString& line)
    {
        for (const QChar c : line)
            take(c);
    }

    bool isOpen() const { return m_state == Quoted; }
    bool isMalformed() const { return m_malformed; }

    QStringList finish()
    {
        endCell();
        return m_cells;
    }

private:
    enum State { CellStart, Plain, Quoted, QuoteInQuoted };

    void take(QChar c)
    {
        const bool quote = c == QLatin1Char('"');
        if (m_state == Quoted) {
            if (quote)
                m_state = QuoteInQuoted;
            else
                m_cell += c;
        } else if (quote && m_state == CellStart) {
            m_state = Quoted;
        } else if (quote && m_state == QuoteInQuoted) {
            m_cell += c;
            m_state = Quoted;
        } else if (c == m_delimiter) {
            endCell();
        } else if (c != QLatin1Char('\r') && c != QLatin1Char('\n')) {
            m_malformed = m_malformed || m_state == QuoteInQuoted;
            m_state = Plain;
            m_cell += c;
        }
    }

    void endCell()
    {
        m_cells.append(isCsvFormula(m_cell) && m_cell.startsWith(QLatin1Char('\'')) ? m_cell.mid(1) : m_cell);
        m_cell = QString();
        m_state = CellStart;
    }

    const QChar m_delimiter;
    State m_state = CellStart;
    bool m_malformed = false;
    QString m_cell;
    QStringList m_cells;
};

} // namespace

CsvReader::CsvReader(QIODevice* device)
    : m_device(device)
{
}

bool CsvReader::readRecord(QStringList* cells)
{
    cells->clear();
    m_recordError.clear();
    QString line;
    do {
        if (!readLine(&line))
            return false;
    } while (line.trimmed().isEmpty());
    m_recordLine = m_line;
    if (m_delimiter.isNull())
        m_delimiter = commonestDelimiter(line);

    RecordParser parser(m_delimiter);
    parser.add(line);
    qint64 size = line.size();
    while (parser.isOpen()) {
        if (!readLine(&line)) {
            return m_error.isEmpty() &&
                   refuse(tr("The quoted cell that begins in the record of line %1 is never closed.")
                              .arg(m_recordLine));
        }
        size += line.size();
        if (size > MaximumRecordSize)
            return refuse(tr("The record that begins in line %1 is longer than 1 MiB.").arg(m_recordLine));
        parser.add(line);
    }
    if (parser.isMalformed())
        m_recordError = tr("text follows the closing quote of a cell");
    *cells = parser.finish();
    return true;
}

bool CsvReader::readLine(QString* line)
{
    qsizetype end = -1;
    while (m_error.isEmpty() && (end = endOfLine()) < 0 && !m_atEnd &&
           m_buffer.size() - m_position <= MaximumRecordSize)
        fill();
    if (!m_error.isEmpty() || (end < 0 && m_position == m_buffer.size()))
        return false;

    ++m_line;
    const bool whole = end >= 0 || m_atEnd;
    const qsizetype length = (end < 0 ? m_buffer.size() : end) - m_position;
    const QByteArray bytes = m_buffer.mid(m_position, length);
    m_position += length;
    if (bytes.contains('\0'))
        return refuse(
            tr("This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.")
                .arg(m_line));
    if (!whole || length > MaximumRecordSize)
        return refuse(tr("Line %1 is longer than 1 MiB.").arg(m_line));
    if (!decode(bytes, line))
        return refuse(tr("Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.").arg(m_line));
    return true;
}

/// Position behind the next line break, -1 while it is not in the buffer as a whole.
qsizetype CsvReader::endOfLine() const
{
    const char* const begin = m_buffer.constData();
    const char* const end = begin + m_buffer.size();
    const char* const found =
        std::find_if(begin + m_position, end, [](char c) { return c == '\n' || c == '\r'; });
    if (found == end)
        return -1;
    if (*found == '\n')
        return found - begin + 1;
    if (found + 1 == end)
        return m_atEnd ? m_buffer.size() : -1;
    return found - begin + (found[1] == '\n' ? 2 : 1);
}

void CsvReader::fill()
{
    QByteArray block = m_device->read(BlockSize);
    if (block.isEmpty()) {
        m_atEnd = true;
        if (!m_device->atEnd() && !m_device->isSequential())
            m_error = tr("The file cannot be read: %1").arg(m_device->errorString());
    }
    m_bytesRead += block.size();
    if (!m_started && !m_atEnd)
        detectEncoding(&block);
    m_buffer.remove(0, m_position);
    m_position = 0;
    m_buffer += m_encoding == Encoding::Utf8 ? block : fromUtf16(block);
}

void CsvReader::detectEncoding(QByteArray* bytes)
{
    static const struct
    {
        QByteArray mark;
        Encoding encoding;
    } marks[] = {{"\xef\xbb\xbf", Encoding::Utf8},
                 {"\xff\xfe", Encoding::Utf16LittleEndian},
                 {"\xfe\xff", Encoding::Utf16BigEndian}};

    // A pipe may give a mark in pieces.
    while (bytes->size() < 3) {
        const QByteArray more = m_device->read(3 - bytes->size());
        if (more.isEmpty())
            break;
        m_bytesRead += more.size();
        *bytes += more;
    }
    m_started = true;
    for (const auto& mark : marks) {
        if (bytes->startsWith(mark.mark)) {
            m_encoding = mark.encoding;
            bytes->remove(0, mark.mark.size());
            return;
        }
    }
}

QByteArray CsvReader::fromUtf16(const QByteArray& bytes)
{
    const QByteArray all = m_pending + bytes;
    const int high = m_encoding == Encoding::Utf16BigEndian ? 0 : 1;
    const auto unitAt = [&all, high](qsizetype i) {
        return QChar(ushort(uchar(all.at(i + high)) << 8 | uchar(all.at(i + 1 - high))));
    };

    QByteArray result;
    QString text;
    qsizetype i = 0;
    for (; i + 1 < all.size(); i += 2) {
        const QChar unit = unitAt(i);
        if (unit.isHighSurrogate() && i + 3 >= all.size() && !m_atEnd)
            break;
        const bool pair = unit.isHighSurrogate() && i + 3 < all.size() && unitAt(i + 2).isLowSurrogate();
        if (unit.isSurrogate() && !pair) {
            result += text.toUtf8() + InvalidByte;
            text.clear();
            continue;
        }
        text += unit;
        if (pair) {
            i += 2;
            text += unitAt(i);
        }
    }
    m_pending = all.mid(i);
    result += text.toUtf8();
    if (m_atEnd && !m_pending.isEmpty())
        result += InvalidByte;
    return result;
}

bool CsvReader::refuse(const QString& reason)
{
    m_error = reason;
    return false;
}

} // namespace ko
