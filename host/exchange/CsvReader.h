#ifndef KO_CSVREADER_H
#define KO_CSVREADER_H

#include "HostExport.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QStringList>

class QIODevice;

namespace ko {

/// Reads a table of text cells, record by record, as RFC 4180 and spreadsheets write it.
///
/// Text is UTF-8 with or without a byte order mark, or UTF-16 with one. Comma, semicolon or tab separate
/// the cells: whichever the first line has most of outside quotes. A quoted cell may hold delimiters,
/// doubled quotes and line breaks; LF, CR LF and CR end a line. An empty cell and an empty pair of
/// quotes are the same. The apostrophe that CsvWriter puts before a formula is taken off again.
///
/// A line of more than MaximumRecordSize bytes, or a record of more characters, is refused, so that a
/// file of any size and content takes little memory.
class KO_HOST_EXPORT CsvReader
{
    Q_DECLARE_TR_FUNCTIONS(CsvReader)

public:
    enum { MaximumRecordSize = 1024 * 1024 };

    /// \a device must be open for reading and stays the caller's.
    explicit CsvReader(QIODevice* device);

    /// Reads the next record; empty lines are skipped. False at the end and when error() stops it.
    bool readRecord(QStringList* cells);

    /// Why nothing more can be read, naming the line; empty as long as there is no reason.
    QString error() const { return m_error; }

    /// What is wrong with the last record alone, the next one can be read; empty when it is well formed.
    QString recordError() const { return m_recordError; }

    /// The line on which the last record begins, counted from 1 as an editor does.
    qint64 line() const { return m_recordLine; }

    /// Bytes taken from the device.
    qint64 bytesRead() const { return m_bytesRead; }

private:
    enum class Encoding { Utf8, Utf16LittleEndian, Utf16BigEndian };

    bool readLine(QString* line);
    qsizetype endOfLine() const;
    void fill();
    void detectEncoding(QByteArray* bytes);
    QByteArray fromUtf16(const QByteArray& bytes);
    bool refuse(const QString& reason);

    QIODevice* const m_device;
    QByteArray m_buffer; ///< UTF-8, not yet handed out from m_position on
    qsizetype m_position = 0;
    QByteArray m_pending; ///< what is left of a UTF-16 character cut by the end of a block
    Encoding m_encoding = Encoding::Utf8;
    bool m_started = false;
    bool m_atEnd = false;
    QChar m_delimiter;
    qint64 m_line = 0;
    qint64 m_recordLine = 0;
    qint64 m_bytesRead = 0;
    QString m_error;
    QString m_recordError;
};

} // namespace ko

#endif
