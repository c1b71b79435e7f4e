#include "exchange/SurveyRow.h"

#include "exchange/SurveyText.h"
#include "ko/Types.h"

#include <algorithm>

namespace ko {

namespace {

int columnOf(const QString& title)
{
    for (const SurveyField& field : SurveyFields::all()) {
        if (title.simplified().compare(QLatin1String(field.title), Qt::CaseInsensitive) == 0)
            return int(field.column);
    }
    return -1;
}

} // namespace

SurveyHeader SurveyHeader::read(const QStringList& titles, QString* error)
{
    SurveyHeader header;
    for (const QString& title : titles) {
        const int column = columnOf(title);
        if (column >= 0 && header.m_columns.contains(column))
            *error = SurveyText::tr("There are two columns \"%1\".")
                         .arg(QLatin1String(SurveyFields::all()[size_t(column)].title));
        if (column < 0 && !title.trimmed().isEmpty())
            header.m_ignored.append(title.simplified());
        header.m_columns.append(column);
    }
    // The titles are not repeated: without a header they would be the first camera with its password.
    if (!header.m_columns.contains(int(SurveyColumn::Address)))
        *error = SurveyText::tr("There is no column \"address\". The first line must name the columns.");
    return header;
}

SurveyRow SurveyRow::read(const SurveyHeader& header, const QStringList& cells, QString* reason)
{
    SurveyRow row;
    for (int i = 0; i < cells.size(); ++i) {
        const int column = i < header.m_columns.size() ? header.m_columns.at(i) : -1;
        if (i >= header.m_columns.size() && !cells.at(i).trimmed().isEmpty())
            *reason = SurveyText::tr("there are more cells than columns");
        if (column < 0)
            continue;
        const SurveyField& field = SurveyFields::all()[size_t(column)];
        QString badCell;
        row.m_values[column] = field.normalised(cells.at(i), &badCell);
        if (!badCell.isEmpty() && reason->isEmpty())
            *reason = SurveyText::tr("bad %1: %2").arg(QLatin1String(field.title), badCell);
    }
    if (reason->isEmpty() && !row.isEmpty())
        *reason = row.contradiction();
    return row;
}

bool SurveyRow::isEmpty() const
{
    return std::all_of(m_values.begin(), m_values.end(),
                       [](const QString& value) { return value.isEmpty(); });
}

bool SurveyRow::differs(const IPDeviceNode& device, const SurveyField& field) const
{
    return field.read && has(field.column) && value(field.column) != field.read(device);
}

bool SurveyRow::differs(const IPDeviceNode& device) const
{
    const std::vector<SurveyField>& fields = SurveyFields::all();
    return std::any_of(fields.begin(), fields.end(),
                       [this, &device](const SurveyField& field) { return differs(device, field); });
}

void SurveyRow::write(IPDeviceNode& device) const
{
    for (const SurveyField& field : SurveyFields::all()) {
        if (differs(device, field))
            field.write(device, value(field.column));
    }
}

void SurveyRow::describe(NodeHintIPDevice& hint) const
{
    for (const SurveyField& field : SurveyFields::all()) {
        if (field.describe && has(field.column))
            field.describe(hint, value(field.column));
    }
}

QString SurveyRow::contradiction() const
{
    if (!has(SurveyColumn::Address) && !has(SurveyColumn::Name))
        return SurveyText::tr("there is neither a name nor an address");
    const int type = has(SurveyColumn::Type) ? value(SurveyColumn::Type).toInt() : int(ChannelDeviceType);
    if (has(SurveyColumn::Channel) && (type == IPDeviceType || type == UrlCameraType))
        return SurveyText::tr("a device of this type has no channels");
    return QString();
}

} // namespace ko
