#ifndef KO_SURVEYTARGET_H
#define KO_SURVEYTARGET_H

#include "ko/NodeHintIPDevice.h"
#include "kom/smart.h"

namespace ko {

class SurveyRow;

/// The device that a line of a survey is about.
namespace SurveyTarget {

/// A hint filled from the row; null if there is no driver for such a device.
kom::smart<NodeHintIPDevice> describe(const SurveyRow& row);

/// Why the row cannot change the node; empty if it can.
QString refusal(const QString& id, const SurveyRow& row);

} // namespace SurveyTarget

} // namespace ko

#endif
