#include "exchange/SurveyForecast.h"

#include "drivers/NodeTypes.h"
#include "exchange/RecordingPath.h"
#include "exchange/SurveyRow.h"
#include "exchange/SurveyText.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"
#include "ko/NodeHintIPDevice.h"

namespace ko {

namespace {

/// Equal for lines about one device that is not there yet.
QString keyOf(const SurveyRow& row, const NodeHintIPDevice& hint)
{
    const QString key = NodeTypes::lookupKey(NodeTypes::described(hint));
    return key.isEmpty() ? row.value(SurveyColumn::Name) : key;
}

bool changes(const SurveyRow& row, const QString& id)
{
    const auto device = deviceNode(id);
    const QString path = row.value(SurveyColumn::RecordingPath);
    return device.null() || row.differs(*device) || (!path.isEmpty() && path != RecordingPath::of(id));
}

} // namespace

void SurveyForecast::take(qint64 line, const SurveyRow& row, const NodeHintIPDevice& hint, const QString& id,
                          CameraSurvey::ImportResult* result)
{
    const QString key = id.isEmpty() ? keyOf(row, hint) : id;
    const qint64 first = m_lines.value(key);
    if (first > 0) {
        result->doubtfulLines.append(
            {line, SurveyText::tr("it is about the same device as line %1, and would change what that says")
                       .arg(first)});
        ++result->updated;
        return;
    }
    m_lines.insert(key, line);
    if (id.isEmpty() && !row.has(SurveyColumn::Name))
        result->doubtfulLines.append({line, SurveyText::tr("the new device would have no name")});
    ++(id.isEmpty() ? result->added : changes(row, id) ? result->updated : result->unchanged);
}

} // namespace ko
