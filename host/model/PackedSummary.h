#ifndef KO_PACKEDSUMMARY_H
#define KO_PACKEDSUMMARY_H

#include "model/NodeData.h"

#include <string_view>

namespace ko {

/// A NodeSummary in a third of the memory: its texts stand in UTF-8 in one array. Of most nodes of a large
/// database nobody asks for them.
class PackedSummary
{
public:
    PackedSummary() = default;
    explicit PackedSummary(const NodeSummary& summary);

    /// Texts in UTF-8.
    PackedSummary(std::string_view id, ENodeType type, std::string_view name, std::string_view location,
                  int recordingUsage);

    NodeID id() const { return text(0, m_idSize); }
    ENodeType type() const { return m_type; }
    QString name() const { return text(m_idSize, m_nameSize); }
    NodeSummary unpacked() const;

    /// Valid as long as the summary is there.
    std::string_view idUtf8() const { return {m_texts.constData(), size_t(m_idSize)}; }

    bool operator==(const PackedSummary& other) const
    {
        return m_idSize == other.m_idSize && m_nameSize == other.m_nameSize && m_type == other.m_type &&
               m_recordingUsage == other.m_recordingUsage && m_texts == other.m_texts;
    }
    bool operator!=(const PackedSummary& other) const { return !(*this == other); }

private:
    QString text(int from, int size) const { return QString::fromUtf8(m_texts.constData() + from, size); }

    QByteArray m_texts; ///< id, name and location
    int m_idSize = 0;
    int m_nameSize = 0;
    ENodeType m_type = AllNodeTypes;
    int m_recordingUsage = -1;
};

} // namespace ko

#endif
