#ifndef KO_CSVFORMULA_H
#define KO_CSVFORMULA_H

#include <QString>

namespace ko {

/// Whether a spreadsheet would take the cell for a formula, not counting apostrophes in front.
/// CsvWriter puts one more apostrophe before such a cell and CsvReader takes one off, so that cells
/// that really begin with apostrophes come back as they were.
inline bool isCsvFormula(const QString& cell)
{
    int i = 0;
    while (i < cell.size() && cell.at(i) == QLatin1Char('\''))
        ++i;
    if (i < cell.size() && QLatin1String("\t\r\n").contains(cell.at(i)))
        return true;
    // Some programs pass over blanks, and over what has no width, at the beginning.
    while (i < cell.size() && (cell.at(i).isSpace() || cell.at(i).category() == QChar::Other_Control ||
                               cell.at(i).category() == QChar::Other_Format))
        ++i;
    return i < cell.size() && QString::fromUtf8("=+-@\uff1d\uff0b\uff0d\uff20").contains(cell.at(i));
}

} // namespace ko

#endif
