#ifndef KO_SURVEYROW_H
#define KO_SURVEYROW_H

#include "exchange/SurveyFields.h"

#include <QStringList>
#include <QVector>

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

    QString value(SurveyColumn column) const { return m_values.at(int(column)); }
    QString value(int column) const { return m_values.at(int(column)); }
    bool has(SurveyColumn column) const { return !value(column).isEmpty(); }

    /// Only delimiters: spreadsheets write such lines below a table.
    bool isEmpty() const;

    /// Whether the row says something else than the device.
    bool differs(const IPDeviceNode& device) const;

    /// Writes what differs.
    void write(IPDeviceNode& device) const;
    void describe(NodeHintIPDevice& hint) const;

private:
    QString contradiction() const;
    bool differs(const IPDeviceNode& device, const SurveyField& field) const;

    QVector<QString> m_values = QVector<QString>(int(SurveyFields::all().size()));
};

} // namespace ko

#endif
