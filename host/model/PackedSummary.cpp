#include "model/PackedSummary.h"

namespace ko {

namespace {

std::string_view viewOf(const QByteArray& text)
{
    return {text.constData(), size_t(text.size())};
}

} // namespace

PackedSummary::PackedSummary(const NodeSummary& summary)
    : PackedSummary(summary.id, summary.type, viewOf(summary.name.toUtf8()),
                    viewOf(summary.location.toUtf8()), summary.recordingUsage)
{
}

PackedSummary::PackedSummary(NodeID id, ENodeType type, std::string_view name, std::string_view location,
                             int recordingUsage)
    : m_id(std::move(id))
    , m_nameSize(int(name.size()))
    , m_type(type)
    , m_recordingUsage(recordingUsage)
{
    m_texts.reserve(int(name.size() + location.size()));
    for (const std::string_view text : {name, location})
        m_texts.append(text.data(), int(text.size()));
}

NodeSummary PackedSummary::unpacked() const
{
    NodeSummary summary;
    summary.id = m_id;
    summary.type = m_type;
    summary.name = name();
    summary.location = text(m_nameSize, int(m_texts.size()) - m_nameSize);
    summary.recordingUsage = m_recordingUsage;
    return summary;
}

} // namespace ko
