#ifndef KO_SURVEYROW_H
#define KO_SURVEYROW_H

#include "exchange/SurveyFields.h"

#include <QStringList>

#include <array>

namespace ko {

/// Which column of a file is which.
class SurveyHeader
{
public:
    /// Titles may come in any order and case. \a error is set when the file cannot be a survey.
    static SurveyHeader read(const QStringList& titles, QString* error);

    /// Titles that say nothing to the import, as they stand in the file.
    const QStringList& ignoredColumns() const { return m_ignored; }

private:
    friend class SurveyRow;
    QVector<int> m_columns; ///< the SurveyColumn of each column of the file, -1 where ignored
    QStringList m_ignored;
};

/// The values of one line, checked and normalised; an empty one leaves the device as it is.
class SurveyRow
{
public:
    /// \a reason is set when the line is not to be imported.
    static SurveyRow read(const SurveyHeader& header, const QStringList& cells, QString* reason);

    QString value(SurveyColumn column) const { return m_values[size_t(column)]; }
    QString value(int column) const { return m_values[size_t(column)]; }
    bool has(SurveyColumn column) const { return !value(column).isEmpty(); }

    /// Only delimiters: spreadsheets write such lines below a table.
    bool isEmpty() const;

private:
    QString contradiction() const;

    std::array<QString, SurveyFields::Count> m_values;
};

} // namespace ko

#endif
