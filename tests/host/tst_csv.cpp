#include "support/TestMain.h"

#include "exchange/CsvReader.h"
#include "exchange/CsvWriter.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QRandomGenerator>

using namespace ko;

namespace {

/// Everything a reader made of a file: records joined by '|' and '/', and what it complained about.
struct Reading
{
    QList<QStringList> records;
    QVector<qint64> lines;
    QStringList recordErrors; ///< "line: reason"
    QString error;
};

Reading readAll(QIODevice& device)
{
    CsvReader reader(&device);
    Reading reading;
    QStringList cells;
    while (reader.readRecord(&cells)) {
        reading.records.append(cells);
        reading.lines.append(reader.line());
        if (!reader.recordError().isEmpty())
            reading.recordErrors.append(QString("%1: %2").arg(reader.line()).arg(reader.recordError()));
    }
    reading.error = reader.error();
    return reading;
}

Reading readAll(const QByteArray& bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readAll(buffer);
}

QByteArray written(const QList<QStringList>& records)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    CsvWriter writer(&buffer);
    for (const QStringList& record : records) {
        if (!writer.writeRecord(record))
            qFatal("a buffer takes everything");
    }
    return buffer.data();
}

QByteArray utf16(const QString& text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar c : QChar(0xfeff) + text) {
        const char high = char(c.unicode() >> 8);
        const char low = char(c.unicode() & 0xff);
        bytes += bigEndian ? high : low;
        bytes += bigEndian ? low : high;
    }
    return bytes;
}

/// Gives its data in pieces of a few bytes and cannot seek, as a pipe does.
class Pipe : public QIODevice
{
public:
    Pipe(const QByteArray& data, int piece)
        : m_data(data)
        , m_piece(piece)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 size) override
    {
        const qint64 count = qMin<qint64>(qMin<qint64>(size, m_piece), m_data.size() - m_position);
        memcpy(data, m_data.constData() + m_position, size_t(count));
        m_position += count;
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const QByteArray m_data;
    const int m_piece;
    qint64 m_position = 0;
};

/// Endless, and counts what was taken.
class Endless : public QIODevice
{
public:
    explicit Endless(char c)
        : m_char(c)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }
    qint64 taken = 0;

protected:
    qint64 readData(char* data, qint64 size) override
    {
        memset(data, m_char, size_t(size));
        taken += size;
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    const char m_char;
};

class Broken : public QBuffer
{
protected:
    qint64 readData(char* data, qint64 size) override
    {
        if (pos() == 0)
            return QBuffer::readData(data, qMin<qint64>(size, 8));
        setErrorString("the disk is gone");
        return -1;
    }
};

} // namespace

class tst_Csv : public QObject
{
    Q_OBJECT

private slots:
    void records_data();
    void records();
    void delimiters_data();
    void delimiters();
    void encodings_data();
    void encodings();
    void refusals_data();
    void refusals();
    void lineNumbersAreThoseOfAnEditor();
    void malformedRecordIsNamedAndTheNextIsRead();
    void pieces_data();
    void pieces();
    void blocksCutNothing_data();
    void blocksCutNothing();
    void longestLine();
    void endlessFileIsRefusedEarly_data();
    void endlessFileIsRefusedEarly();
    void quotedCellWithoutEndIsRefusedEarly();
    void readErrorIsReported();

    void formulas_data();
    void formulas();
    void allShortCellsComeBack();
    void foreignApostrophesStay();
    void writesWhatEverySpreadsheetTakes();
    void whatTextCannotHoldIsReplaced();
    void fullDeviceIsReported();
    void randomCellsComeBack();
    void randomBytesDoNoHarm();
    void damagedFilesDoNoHarm();
};

void tst_Csv::records_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QList<QStringList>>("records");
    typedef QList<QStringList> Records;
    QTest::newRow("empty file") << QByteArray() << Records();
    QTest::newRow("LF") << QByteArray("a,b\n1,2\n") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("CR LF") << QByteArray("a,b\r\n1,2\r\n") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("CR") << QByteArray("a,b\r1,2\r") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("no end of the last line") << QByteArray("a,b\n1,2") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("CR at the end of the file") << QByteArray("a,b\n1,2\r") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("empty lines") << QByteArray("\n\na,b\n\n  \n1,2\n\n") << Records{{"a", "b"}, {"1", "2"}};
    QTest::newRow("empty cells") << QByteArray("a,b,c\n,,\n") << Records{{"a", "b", "c"}, {"", "", ""}};
    QTest::newRow("pair of quotes") << QByteArray("a,b\n\"\",\"\"\n") << Records{{"a", "b"}, {"", ""}};
    QTest::newRow("one column, quoted empty") << QByteArray("a\n\"\"\n") << Records{{"a"}, {""}};
    QTest::newRow("quoted delimiter") << QByteArray("a,b\n\"1,2\",3\n") << Records{{"a", "b"}, {"1,2", "3"}};
    QTest::newRow("doubled quotes") << QByteArray("a\n\"say \"\"hi\"\"\"\n")
                                    << Records{{"a"}, {"say \"hi\""}};
    QTest::newRow("only a doubled quote") << QByteArray("a\n\"\"\"\"\n") << Records{{"a"}, {"\""}};
    QTest::newRow("quote within a plain cell") << QByteArray("a\n5\" disk\n") << Records{{"a"}, {"5\" disk"}};
    QTest::newRow("line break") << QByteArray("a,b\n\"x\ny\",2\n") << Records{{"a", "b"}, {"x\ny", "2"}};
    QTest::newRow("CR LF within a cell")
        << QByteArray("a,b\r\n\"x\r\ny\",2\r\n") << Records{{"a", "b"}, {"x\r\ny", "2"}};
    QTest::newRow("empty line within a cell") << QByteArray("a\n\"x\n\ny\"\n") << Records{{"a"}, {"x\n\ny"}};
    QTest::newRow("line break in the header")
        << QByteArray("\"a\nb\",c\n1,2\n") << Records{{"a\nb", "c"}, {"1", "2"}};
    QTest::newRow("blanks stay") << QByteArray("a,b\n x , y\n") << Records{{"a", "b"}, {" x ", " y"}};
    QTest::newRow("uneven records") << QByteArray("a,b\n1\n1,2,3\n")
                                    << Records{{"a", "b"}, {"1"}, {"1", "2", "3"}};
}

void tst_Csv::records()
{
    QFETCH(QByteArray, bytes);
    const Reading reading = readAll(bytes);
    QTEST(reading.records, "records");
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.recordErrors, QStringList());
}

void tst_Csv::delimiters_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("second");
    QTest::newRow("comma") << QByteArray("a,b\n1,2;3\t4\n") << QStringList{"1", "2;3\t4"};
    QTest::newRow("semicolon") << QByteArray("a;b\n1;2,3\t4\n") << QStringList{"1", "2,3\t4"};
    QTest::newRow("tab") << QByteArray("a\tb\n1\t2,3;4\n") << QStringList{"1", "2,3;4"};
    QTest::newRow("the commonest") << QByteArray("a;b;c,d\n1;2;3,4\n") << QStringList{"1", "2", "3,4"};
    QTest::newRow("quoted ones don't count") << QByteArray("\"a,b,c\";d\n1;2\n") << QStringList{"1", "2"};
    QTest::newRow("none") << QByteArray("a\n1,2\n") << QStringList{"1", "2"};
}

void tst_Csv::delimiters()
{
    QFETCH(QByteArray, bytes);
    QTEST(readAll(bytes).records.value(1), "second");
}

void tst_Csv::encodings_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QString text = QString::fromUtf8("name,b\nTür \xf0\x9f\x93\xb7,é\n");
    QTest::newRow("UTF-8") << text.toUtf8();
    QTest::newRow("UTF-8 with a mark") << "\xef\xbb\xbf" + text.toUtf8();
    QTest::newRow("UTF-16 little endian") << utf16(text, false);
    QTest::newRow("UTF-16 big endian") << utf16(text, true);
}

void tst_Csv::encodings()
{
    QFETCH(QByteArray, bytes);
    const QList<QStringList> records = {{"name", "b"},
                                        {QString::fromUtf8("Tür \xf0\x9f\x93\xb7"), QString::fromUtf8("é")}};
    const Reading reading = readAll(bytes);
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.records, records);
    for (int piece = 1; piece <= 5; ++piece) {
        Pipe pipe(bytes, piece);
        QCOMPARE(readAll(pipe).records, records);
    }
}

void tst_Csv::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("error");
    QTest::addColumn<int>("records");
    const QString notUtf8 = "Line %1 is not UTF-8 text. Save the file as UTF-8 and try again.";
    const QString binary =
        "This is not a text file (line %1 contains binary data). Save the file as UTF-8 text.";
    QTest::newRow("Latin-1") << QByteArray("a,b\n1,2\nT\xfcr,3\n") << notUtf8.arg(3) << 2;
    QTest::newRow("Latin-1 in a quoted cell")
        << QByteArray("a,b\n\"x\ny\nT\xfcr\",3\n") << notUtf8.arg(4) << 1;
    QTest::newRow("cut character") << QByteArray("a,b\n1,\xc3") << notUtf8.arg(2) << 1;
    QTest::newRow("overlong") << QByteArray("a\n\xc0\xaf\n") << notUtf8.arg(2) << 1;
    QTest::newRow("coded surrogate") << QByteArray("a\n\xed\xa0\x80\n") << notUtf8.arg(2) << 1;
    QTest::newRow("NUL") << QByteArray("a,b\n1,\0002\n", 9) << binary.arg(2) << 1;
    QTest::newRow("UTF-16 without a mark") << utf16("a,b\n1,2\n", false).mid(2) << binary.arg(1) << 0;
    QTest::newRow("UTF-32") << QByteArray("\xff\xfe\0\0a\0\0\0\n\0\0\0", 12) << binary.arg(1) << 0;
    QTest::newRow("UTF-16, half a character") << utf16("a\nb\n", false) + 'x' << notUtf8.arg(3) << 2;
    QTest::newRow("UTF-16, lone high surrogate")
        << utf16(QString("a\n") + QChar(0xd83d) + "b\n", false) << notUtf8.arg(2) << 1;
    QTest::newRow("UTF-16, lone low surrogate")
        << utf16(QString("a\nb\n") + QChar(0xdcf7) + "\n", true) << notUtf8.arg(3) << 2;
    QTest::newRow("UTF-16, high surrogate at the end")
        << utf16(QString("a\nb") + QChar(0xd83d), true) << notUtf8.arg(2) << 1;
    QTest::newRow("never closed") << QByteArray("a,b\n1,2\n\"x,3\n4,5\n")
                                  << "The quoted cell that begins in the record of line 3 is never closed."
                                  << 2;
}

void tst_Csv::refusals()
{
    QFETCH(QByteArray, bytes);
    const Reading reading = readAll(bytes);
    QTEST(reading.error, "error");
    QTEST(int(reading.records.size()), "records");
}

void tst_Csv::lineNumbersAreThoseOfAnEditor()
{
    const Reading reading = readAll("\n"                // 1
                                    "a,b\r\n"           // 2
                                    "\"x\ny\r\nz\",1\n" // 3 to 5
                                    "\r"                // 6
                                    "2,3\r"             // 7
                                    "4,5");             // 8
    QCOMPARE(reading.lines, QVector<qint64>({2, 3, 7, 8}));
}

void tst_Csv::malformedRecordIsNamedAndTheNextIsRead()
{
    const Reading reading = readAll("a,b\n\"Gate,10.0.0.1\n\"Door\",x\n3,4\n\"5\" ,6\n");
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.recordErrors, QStringList({"2: text follows the closing quote of a cell",
                                                "5: text follows the closing quote of a cell"}));
    QCOMPARE(reading.records.value(2), QStringList({"3", "4"}));
}

void tst_Csv::pieces_data()
{
    QTest::addColumn<int>("piece");
    for (int piece : {1, 2, 3, 7, 64})
        QTest::addRow("%d bytes", piece) << piece;
}

void tst_Csv::pieces()
{
    QFETCH(int, piece);
    const QByteArray bytes("\xef\xbb\xbf"
                           "a,b\r\n\"x\r\ny\"\"\",2\r\n3,T\xc3\xbcr\r4,5\r\n");
    Pipe pipe(bytes, piece);
    const Reading reading = readAll(pipe);
    QCOMPARE(reading.error, QString());
    QCOMPARE(
        reading.records,
        (QList<QStringList>{{"a", "b"}, {"x\r\ny\"", "2"}, {"3", QString::fromUtf8("Tür")}, {"4", "5"}}));
    QCOMPARE(reading.lines, QVector<qint64>({1, 2, 4, 5}));
}

void tst_Csv::blocksCutNothing_data()
{
    QTest::addColumn<int>("encoding");
    QTest::newRow("UTF-8") << 8;
    QTest::newRow("UTF-16 little endian") << 0;
    QTest::newRow("UTF-16 big endian") << 1;
}

/// Characters of every length and CR LF come to lie across the edges of the reader's blocks.
void tst_Csv::blocksCutNothing()
{
    QFETCH(int, encoding);
    for (int shift = 0; shift < 8; ++shift) {
        QString text("a,b\r\n");
        QList<QStringList> records = {{"a", "b"}};
        text += QString(shift, 'x') + ",\r\n";
        records.append(QStringList{QString(shift, 'x'), ""});
        const QString cell = QString::fromUtf8("\xf0\x9f\x93\xb7ü€y");
        for (int i = 0; i < 20000; ++i) {
            text += cell + "," + cell + "\r\n";
            records.append(QStringList{cell, cell});
        }
        const Reading reading = readAll(encoding == 8 ? text.toUtf8() : utf16(text, encoding == 1));
        QCOMPARE(reading.error, QString());
        QVERIFY(reading.records == records);
    }
}

void tst_Csv::longestLine()
{
    const QByteArray longest = "a\n" + QByteArray(CsvReader::MaximumRecordSize - 1, 'x') + '\n';
    QCOMPARE(readAll(longest).records.value(1).value(0).size(), CsvReader::MaximumRecordSize - 1);
    const QByteArray tooLong = "a\n" + QByteArray(CsvReader::MaximumRecordSize, 'x') + "\nb\n";
    QCOMPARE(readAll(tooLong).error, QString("Line 2 is longer than 1 MiB."));
    QCOMPARE(readAll(QByteArray(CsvReader::MaximumRecordSize + 1, 'x')).error,
             QString("Line 1 is longer than 1 MiB."));
}

void tst_Csv::endlessFileIsRefusedEarly_data()
{
    QTest::addColumn<int>("byte");
    QTest::addColumn<QString>("error");
    QTest::newRow("text") << int('x') << "Line 1 is longer than 1 MiB.";
    QTest::newRow("quotes") << int('"') << "Line 1 is longer than 1 MiB.";
    QTest::newRow("zeros")
        << 0 << "This is not a text file (line 1 contains binary data). Save the file as UTF-8 text.";
}

void tst_Csv::endlessFileIsRefusedEarly()
{
    QFETCH(int, byte);
    Endless device{char(byte)};
    QTEST(readAll(device).error, "error");
    QVERIFY(device.taken <= 2 * CsvReader::MaximumRecordSize);
}

void tst_Csv::quotedCellWithoutEndIsRefusedEarly()
{
    QByteArray bytes = "a,b\n\"";
    for (int i = 0; i < 300000; ++i)
        bytes += "10.0.0.1,80\n";
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    CsvReader reader(&buffer);
    QStringList cells;
    QVERIFY(reader.readRecord(&cells));
    QVERIFY(!reader.readRecord(&cells));
    QCOMPARE(reader.error(), QString("The record that begins in line 2 is longer than 1 MiB."));
    QVERIFY(reader.bytesRead() <= 2 * CsvReader::MaximumRecordSize);
    QVERIFY(!reader.readRecord(&cells));
}

void tst_Csv::readErrorIsReported()
{
    Broken device;
    device.setData("a,b\n1,2\n3,4\n5,6\n");
    device.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    QCOMPARE(readAll(device).error, QString("The file cannot be read: the disk is gone"));
}

void tst_Csv::formulas_data()
{
    QTest::addColumn<QString>("cell");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("equals") << "=1+1" << QByteArray("'=1+1");
    QTest::newRow("plus") << "+49 30" << QByteArray("'+49 30");
    QTest::newRow("minus") << "-x" << QByteArray("'-x");
    QTest::newRow("at") << "@SUM(A1)" << QByteArray("'@SUM(A1)");
    QTest::newRow("tab") << "\tx" << QByteArray("\"'\tx\"");
    QTest::newRow("CR") << "\rx" << QByteArray("\"'\rx\"");
    QTest::newRow("with quotes and comma")
        << "=HYPERLINK(\"a\",1)" << QByteArray("\"'=HYPERLINK(\"\"a\"\",1)\"");
    QTest::newRow("with an apostrophe of its own") << "'=1" << QByteArray("''=1");
    QTest::newRow("with two") << "''@" << QByteArray("'''@");
    QTest::newRow("harmless") << "1=1" << QByteArray("1=1");
    QTest::newRow("only an apostrophe") << "'" << QByteArray("'");
    QTest::newRow("apostrophe and text") << "'s Gravenhage" << QByteArray("'s Gravenhage");
    QTest::newRow("LF") << "\nx" << QByteArray("\"'\nx\"");
    QTest::newRow("equals behind a line break") << "\n=1" << QByteArray("\"'\n=1\"");
    QTest::newRow("equals behind a blank") << " =1" << QByteArray("' =1");
    QTest::newRow("plus behind other blanks")
        << QString::fromUtf8("\u00a0\u3000+1") << QString::fromUtf8("'\u00a0\u3000+1").toUtf8();
    QTest::newRow("at behind what has no width")
        << QString::fromUtf8("\u200b\ufeff@x") << QString::fromUtf8("'\u200b\ufeff@x").toUtf8();
    QTest::newRow("behind an apostrophe and a blank") << "' =1" << QByteArray("'' =1");
    for (const char* sign : {"\uff1d", "\uff0b", "\uff0d", "\uff20"})
        QTest::newRow(sign) << QString::fromUtf8(sign) + "1"
                            << "'" + QByteArray(sign) + "1";
    QTest::newRow("blank") << " 1=1" << QByteArray("\" 1=1\"");
}

void tst_Csv::formulas()
{
    QFETCH(QString, cell);
    QFETCH(QByteArray, bytes);
    const QByteArray file = written({{cell, "b"}});
    QCOMPARE(file, "\xef\xbb\xbf" + bytes + ",b\r\n");
    QCOMPARE(readAll(file).records, QList<QStringList>({{cell, "b"}}));
}

void tst_Csv::allShortCellsComeBack()
{
    const QString signs = QString::fromUtf8("'= \t\n\r\"a,\uff1d\u3000\u200b");
    const int count = int(signs.size());
    QList<QStringList> records;
    for (int i = 0; i < count * count * count * count; ++i) {
        QString cell;
        for (int rest = i; rest > 0; rest /= count)
            cell += signs.at(rest % count);
        records.append({"x", cell});
    }
    QCOMPARE(records.at(1).at(1), QString("="));
    const Reading reading = readAll(written(records));
    QCOMPARE(reading.error, QString());
    QVERIFY(reading.records == records);
}

void tst_Csv::foreignApostrophesStay()
{
    QCOMPARE(readAll("a,b\n'x,'\n").records.value(1), QStringList({"'x", "'"}));
    QCOMPARE(readAll("a,b\n=x,+1\n").records.value(1), QStringList({"=x", "+1"}));
}

void tst_Csv::writesWhatEverySpreadsheetTakes()
{
    QCOMPARE(written({{"a", "b;c", "d\te"}, {"", " x", QString::fromUtf8("ü")}, {"1\n2", "\"", "3,4"}}),
             QByteArray("\xef\xbb\xbf"
                        "a,\"b;c\",\"d\te\"\r\n,\" x\",\xc3\xbc\r\n\"1\n2\",\"\"\"\",\"3,4\"\r\n"));
}

void tst_Csv::whatTextCannotHoldIsReplaced()
{
    const QChar nul(0);
    const QChar half(0xd83d);
    const QString replaced = QString("a") + QChar(0xfffd) + "b" + QChar(0xfffd);
    const Reading reading = readAll(written({{QString("a") + nul + "b" + half, "x"}}));
    QCOMPARE(reading.error, QString());
    QCOMPARE(reading.records, QList<QStringList>({{replaced, "x"}}));
}

void tst_Csv::fullDeviceIsReported()
{
    QFile full("/dev/full");
    if (!full.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        QFAIL("a device that is always full is needed here");
    CsvWriter writer(&full);
    QVERIFY(!writer.writeRecord({"a"}));
    QVERIFY(!full.errorString().isEmpty());
}

void tst_Csv::randomCellsComeBack()
{
    QRandomGenerator random(20261121);
    const QString alphabet = QString::fromUtf8("aB3 ,;\t\"'=+-@\r\nüß€") + QChar(0xfeff) + QChar(0x2028) +
                             QChar(0xa0) + QChar(0xfffe) + QChar(0x1b);
    for (int round = 0; round < 2000; ++round) {
        QList<QStringList> records;
        const int columns = random.bounded(1, 6);
        const int rows = random.bounded(1, 6);
        for (int row = 0; row < rows; ++row) {
            QStringList record;
            for (int column = 0; column < columns; ++column) {
                QString cell;
                for (int i = random.bounded(8); i > 0; --i) {
                    const int pick = random.bounded(alphabet.size() + 1);
                    cell += pick < alphabet.size() ? QString(alphabet.at(pick))
                                                   : QString::fromUtf8("\xf0\x9f\x93\xb7");
                }
                // Delimiters are found in the first line, outside quotes; titles have none there.
                record.append(cell);
            }
            records.append(record);
        }
        const QByteArray bytes = written(records);
        const Reading reading = readAll(bytes);
        QVERIFY2(reading.error.isEmpty() && reading.recordErrors.isEmpty(), qPrintable(reading.error));
        QVERIFY2(reading.records == records, bytes.toPercentEncoding().constData());
    }
}

void tst_Csv::randomBytesDoNoHarm()
{
    QRandomGenerator random(4711);
    QElapsedTimer timer;
    timer.start();
    for (int round = 0; round < 3000; ++round) {
        QByteArray bytes(random.bounded(2000), Qt::Uninitialized);
        for (char& byte : bytes)
            byte = char(random.bounded(256));
        // Without these nearly every file ends at its first NUL or bad byte.
        if (round % 3 == 1) {
            for (char& byte : bytes)
                byte = "ab,;\t\"'=\r\n\xc3\xbc"[random.bounded(12)];
        } else if (round % 3 == 2) {
            bytes.prepend(round % 2 ? "\xff\xfe" : "\xfe\xff");
        }
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::ReadOnly);
        const Reading reading = readAll(buffer);
        qint64 characters = 0;
        for (const QStringList& record : reading.records)
            characters += record.join(QString()).size();
        QVERIFY(characters <= bytes.size());
        QVERIFY(reading.error.isEmpty() || reading.error.contains("ine "));
    }
    QVERIFY(timer.elapsed() < 60000);
}

void tst_Csv::damagedFilesDoNoHarm()
{
    const QByteArray good = written({{"name", "address", "port"},
                                     {QString::fromUtf8("Tür \"A\"\n2"), "10.0.0.1", "80"},
                                     {"=x", "10.0.0.2", "8080"}});
    QRandomGenerator random(815);
    int refused = 0;
    for (int round = 0; round < 5000; ++round) {
        QByteArray bytes = good;
        for (int damage = random.bounded(1, 4); damage > 0; --damage)
            bytes[random.bounded(bytes.size())] = char(random.bounded(256));
        bytes.truncate(random.bounded(bytes.size() + 1));
        const Reading reading = readAll(bytes);
        refused += reading.error.isEmpty() ? 0 : 1;
        QVERIFY(reading.records.size() <= 10);
    }
    QVERIFY(refused > 1000);
}

KO_TEST_MAIN(tst_Csv)
#include "tst_csv.moc"
