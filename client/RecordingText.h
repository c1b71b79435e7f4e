#ifndef KO_RECORDINGTEXT_H
#define KO_RECORDINGTEXT_H

#include <QString>

namespace ko {

class HostNodeDB;
struct NodeSummary;

namespace RecordingText {

/// What the list shows as the recording of \a node. Needs no window: the view still asks while it goes down
/// with its own.
QString of(const NodeSummary& node, const HostNodeDB& db);

} // namespace RecordingText

} // namespace ko

#endif
