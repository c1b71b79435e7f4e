#include "Input.h"

#include "exchange/CsvReader.h"
#include "exchange/CsvWriter.h"

#include <QBuffer>

using namespace ko;

namespace {

QVector<QStringList> records(const QByteArray& bytes, bool* complete)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    CsvReader reader(&buffer);
    QVector<QStringList> all;
    QStringList cells;
    qint64 line = 0;
    while (reader.readRecord(&cells)) {
        fuzz::require(reader.line() > line, "line numbers rise");
        line = reader.line();
        if (reader.recordError().isEmpty())
            all.append(cells);
    }
    *complete = reader.error().isEmpty();
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    bool complete = false;
    const QVector<QStringList> read =
        records(QByteArray(reinterpret_cast<const char*>(data), int(size)), &complete);

    QBuffer written;
    written.open(QIODevice::WriteOnly);
    CsvWriter writer(&written);
    for (const QStringList& cells : read)
        fuzz::require(writer.writeRecord(cells), "memory takes everything");
    const QVector<QStringList> again = records(written.data(), &complete);
    fuzz::require(complete, "what was written can be read");
    fuzz::require(again == read, "what was written is what is read");
    return 0;
}
