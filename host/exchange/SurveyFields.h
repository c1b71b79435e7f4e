#ifndef KO_SURVEYFIELDS_H
#define KO_SURVEYFIELDS_H

#include <QString>

namespace ko {

class IPDeviceNode;
class NodeHintIPDevice;

/// The columns of a survey, in the order in which they are written.
enum class SurveyColumn {
    Name,
    Address,
    Port,
    Ssl,
    User,
    Password,
    Channel,
    Model,
    Mac,
    RecordingPath,
    Type
};

/// What a column means: how its cells are read, and where its value is in a device.
struct SurveyField
{
    SurveyColumn column;
    const char* title;

    /// The one form in which equal values are equal texts. An empty text leaves the value as it is. For
    /// a bad cell \a reason is set; it never repeats the cell, which may be a misplaced password.
    QString (*normalised)(const QString& cell, QString* reason);

    // Null for the columns that are no value of the device itself.
    QString (*read)(const IPDeviceNode& node);
    void (*write)(IPDeviceNode& node, const QString& value);
    void (*describe)(NodeHintIPDevice& hint, const QString& value);
};

namespace SurveyFields {

const int Count = 11;

/// The fields by the number of their column.
const SurveyField& field(int column);

/// The cell of the column "type".
QString typeText(int type);

} // namespace SurveyFields

} // namespace ko

#endif
