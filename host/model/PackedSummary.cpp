#include "model/PackedSummary.h"

namespace ko {

namespace {

std::string_view viewOf(const QByteArray& text)
{
    return {text.constData(), size_t(text.size())};
}

} // namespace

PackedSummary::PackedSummary(const NodeSummary& summary)
    : PackedSummary(viewOf(summary.id.toUtf8()), summary.type, viewOf(summary.name.toUtf8()),
                    viewOf(summary.location.toUtf8()), summary.recordingUsage)
{
}

PackedSummary::PackedSummary(std::string_view id, ENodeType type, std::string_view name,
                             std::string_view location, int recordingUsage)
    : m_idSize(int(id.size()))
    , m_nameSize(int(name.size()))
    , m_type(type)
    , m_recordingUsage(recordingUsage)
{
    m_texts.reserve(int(id.size() + name.size() + location.size()));
    for (const std::string_view text : {id, name, location})
        m_texts.append(text.data(), int(text.size()));
}

NodeSummary PackedSummary::unpacked() const
{
    NodeSummary summary;
    summary.id = id();
    summary.type = m_type;
    summary.name = name();
    const int from = m_idSize + m_nameSize;
    summary.location = text(from, int(m_texts.size()) - from);
    summary.recordingUsage = m_recordingUsage;
    return summary;
}

} // namespace ko
