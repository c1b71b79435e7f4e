#include "exchange/CsvWriter.h"

#include "exchange/CsvFormula.h"

#include <QIODevice>

namespace ko {

namespace {

QString writable(QString cell)
{
    for (int i = 0; i < cell.size(); ++i) {
        const QChar c = cell.at(i);
        if (c.isHighSurrogate() && i + 1 < cell.size() && cell.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isNull() || c.isSurrogate())
            cell[i] = QChar(QChar::ReplacementCharacter);
    }
    return cell;
}

bool needsQuotes(const QString& cell)
{
    for (const QChar c : cell) {
        if (QLatin1String(",;\t\"\r\n").contains(c))
            return true;
    }
    // Some spreadsheets drop blanks at the edges of cells without quotes.
    return cell != cell.trimmed();
}

QString coded(const QString& text)
{
    QString cell = writable(text);
    if (isCsvFormula(cell))
        cell.prepend(QLatin1Char('\''));
    if (!needsQuotes(cell))
        return cell;
    return QLatin1Char('"') + cell.replace(QLatin1Char('"'), QLatin1String("\"\"")) + QLatin1Char('"');
}

} // namespace

CsvWriter::CsvWriter(QIODevice* device)
    : m_device(device)
{
}

bool CsvWriter::writeRecord(const QStringList& cells)
{
    QStringList line;
    for (const QString& cell : cells)
        line.append(coded(cell));
    // A lone empty cell would be an empty line, which is not a record.
    if (line.join(QString()).isEmpty() && line.size() <= 1)
        line = QStringList(QLatin1String("\"\""));
    QByteArray bytes = (line.join(QLatin1Char(',')) + QLatin1String("\r\n")).toUtf8();
    if (!m_started)
        bytes.prepend("\xef\xbb\xbf");
    m_started = true;
    return m_device->write(bytes) == bytes.size();
}

} // namespace ko
