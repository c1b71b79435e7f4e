#ifndef KO_PACKEDSUMMARY_H
#define KO_PACKEDSUMMARY_H

#include "model/NodeData.h"

#include <string_view>

namespace ko {

/// A NodeSummary in half of the memory: name and location stand in UTF-8 in one array, since of most nodes of
/// a large database nobody asks for them. The identifier is handed out again and again, in lists of all
/// nodes.
class PackedSummary
{
public:
    PackedSummary() = default;
    explicit PackedSummary(const NodeSummary& summary);

    /// Texts in UTF-8.
    PackedSummary(NodeID id, ENodeType type, std::string_view name, std::string_view location,
                  int recordingUsage);

    const NodeID& id() const { return m_id; }
    ENodeType type() const { return m_type; }
    QString name() const { return text(0, m_nameSize); }
    NodeSummary unpacked() const;

    bool operator==(const PackedSummary& other) const
    {
        return m_id == other.m_id && m_nameSize == other.m_nameSize && m_type == other.m_type &&
               m_recordingUsage == other.m_recordingUsage && m_texts == other.m_texts;
    }
    bool operator!=(const PackedSummary& other) const { return !(*this == other); }

private:
    QString text(int from, int size) const { return QString::fromUtf8(m_texts.constData() + from, size); }

    NodeID m_id;
    QByteArray m_texts; ///< name and location
    int m_nameSize = 0;
    ENodeType m_type = AllNodeTypes;
    int m_recordingUsage = -1;
};

} // namespace ko

#endif
