#ifndef KO_CSVWRITER_H
#define KO_CSVWRITER_H

#include "HostExport.h"

#include <QStringList>

class QIODevice;

namespace ko {

/// Writes a table of text cells as UTF-8 with a byte order mark, commas and CR LF, so that every
/// spreadsheet takes it; what CsvReader reads is what was written.
///
/// A cell that a spreadsheet would take for a formula (it begins with a tab or line break, or with = + - @,
/// also full-width or behind blanks) is written with an apostrophe in front. A NUL, or half of a character
/// outside the basic plane, can't stand in a text file and becomes U+FFFD.
class KO_HOST_EXPORT CsvWriter
{
public:
    /// \a device must be open for writing and stays the caller's.
    explicit CsvWriter(QIODevice* device);

    /// False when the device did not take all of it; its errorString() tells why.
    bool writeRecord(const QStringList& cells);

private:
    QIODevice* const m_device;
    bool m_started = false;
};

} // namespace ko

#endif
