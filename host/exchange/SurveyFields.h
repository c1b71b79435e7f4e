#ifndef KO_SURVEYFIELDS_H
#define KO_SURVEYFIELDS_H

#include <QString>

#include <functional>
#include <vector>

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
    Type,
    OwnCount ///< from here on: the properties of devices that have a column, see NodeProperty
};

/// What a column means: how its cells are read, and where its value is in a device.
struct SurveyField
{
    SurveyColumn column;
    const char* title;

    /// The one form in which equal values are equal texts. An empty text leaves the value as it is. For
    /// a bad cell \a reason is set; it never repeats the cell, which may be a misplaced password.
    std::function<QString(const QString& cell, QString* reason)> normalised;

    // Null for the columns that are no value of the device itself.
    std::function<QString(const IPDeviceNode& node)> read;
    std::function<void(IPDeviceNode& node, const QString& value)> write;
    std::function<void(NodeHintIPDevice& hint, const QString& value)> describe;
};

namespace SurveyFields {

/// The fields in the order of their columns.
const std::vector<SurveyField>& all();

/// The cell of the column "type".
QString typeText(int type);

} // namespace SurveyFields

} // namespace ko

#endif
