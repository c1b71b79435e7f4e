#include "exchange/SurveyTarget.h"

#include "exchange/SurveyRow.h"
#include "exchange/SurveyText.h"
#include "interfaces/INodeDriverComponent.h"
#include "interfaces/ISupportsChannels.h"
#include "ko/IPDeviceNode.h"
#include "ko/NodeDB.h"

namespace ko {

namespace SurveyTarget {

namespace {

ENodeType typeOf(const SurveyRow& row)
{
    if (row.has(SurveyColumn::Type))
        return ENodeType(row.value(SurveyColumn::Type).toInt());
    return row.has(SurveyColumn::Channel) ? ChannelDeviceType : IPDeviceType;
}

} // namespace

kom::smart<NodeHintIPDevice> describe(const SurveyRow& row)
{
    const auto driver = NodeDB::getDB()->nodeDriver(typeOf(row));
    if (driver.null())
        return kom::smart<NodeHintIPDevice>();
    auto hint = driver->createNodeHint(typeOf(row)).cast<NodeHintIPDevice>();
    if (!hint.null())
        row.describe(*hint);
    if (!hint.null() && hint->useSSL && !row.has(SurveyColumn::Port))
        hint->port = HttpsPort;
    return hint;
}

QString refusal(const QString& id, const SurveyRow& row)
{
    const auto node = deviceNode(id);
    if (node.null())
        return SurveyText::tr("what is at this address is not a device");
    if (row.has(SurveyColumn::Channel) && !dynamic_cast<const ISupportsChannels*>(node.get()))
        return SurveyText::tr("the device at this address has no channels");
    return QString();
}

} // namespace SurveyTarget

} // namespace ko
