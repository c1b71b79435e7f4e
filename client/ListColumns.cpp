#include "ListColumns.h"

#include "NodeListModel.h"
#include "Places.h"
#include "devices/NodeTarget.h"
#include "drivers/NodeTypes.h"
#include "ko/PropertyKeys.h"
#include "model/SearchText.h"

#include <QColor>
#include <QGuiApplication>
#include <QPalette>

#include <algorithm>

namespace ko {

namespace {

const char* const titles[] = {
    QT_TRANSLATE_NOOP("NodeListModel", "Name"),    QT_TRANSLATE_NOOP("NodeListModel", "Type"),
    QT_TRANSLATE_NOOP("NodeListModel", "Address"), QT_TRANSLATE_NOOP("NodeListModel", "Recording"),
    QT_TRANSLATE_NOOP("NodeListModel", "State"),
};

const struct
{
    QLatin1String key;
    const char* title;
} known[] = {
    {PropertyKeys::Model, QT_TRANSLATE_NOOP("NodeListModel", "Model")},
    {PropertyKeys::Version, QT_TRANSLATE_NOOP("NodeListModel", "Version")},
    {PropertyKeys::MacAddress, QT_TRANSLATE_NOOP("NodeListModel", "MAC")},
    {PropertyKeys::Port, QT_TRANSLATE_NOOP("NodeListModel", "Port")},
    {PropertyKeys::UseSSL, QT_TRANSLATE_NOOP("NodeListModel", "SSL")},
    {PropertyKeys::User, QT_TRANSLATE_NOOP("NodeListModel", "User")},
    {PropertyKeys::Channel, QT_TRANSLATE_NOOP("NodeListModel", "Channel")},
    {Places::Location, QT_TRANSLATE_NOOP("NodeListModel", "Location")},
    {Places::Tags, QT_TRANSLATE_NOOP("NodeListModel", "Tags")},
    {ListColumns::LastChange, QT_TRANSLATE_NOOP("NodeListModel", "Last Change")},
};

QString field(const QString& title)
{
    return SearchText::folded(title).remove(QLatin1Char(' '));
}

/// Rows are one line high; a name may hold line breaks.
QString inOneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

ListColumns::ListColumns(RecordingText recordingText)
    : m_recordingText(std::move(recordingText))
{
    retranslate();
}

void ListColumns::retranslate()
{
    m_properties = propertyColumns();
    for (const DeviceReport::State state : CameraStates::all())
        m_stateTexts.insert(state, CameraStates::text(state));
}

/// Those that this program declares for devices, too.
QVector<ListColumns::PropertyColumn> ListColumns::propertyColumns()
{
    QVector<PropertyColumn> columns;
    for (const auto& column : known)
        columns.append({column.key, NodeListModel::tr(column.title), column.title});
    const QVector<NodeProperty> declared = NodeTypes::properties(IPDeviceType);
    for (const NodeProperty& property : declared) {
        const bool isListed = std::any_of(columns.begin(), columns.end(), [&](const PropertyColumn& column) {
            return column.key == property.key;
        });
        if (property.column && !isListed)
            columns.append({property.key, QString::fromUtf8(property.column), property.column});
    }
    return columns;
}

const ListColumns::PropertyColumn* ListColumns::propertyColumn(int column) const
{
    const int i = column - NodeListModel::FirstPropertyColumn;
    return i >= 0 && i < m_properties.size() ? &m_properties.at(i) : nullptr;
}

int ListColumns::count() const
{
    return NodeListModel::FirstPropertyColumn + int(m_properties.size());
}

QString ListColumns::title(int column) const
{
    const PropertyColumn* property = propertyColumn(column);
    return property ? property->title : NodeListModel::tr(titles[column]);
}

QString ListColumns::key(int column) const
{
    const PropertyColumn* property = propertyColumn(column);
    return property ? property->key : QString();
}

QStringList ListColumns::fields() const
{
    QStringList fields;
    for (int column = 0; column < count(); ++column)
        fields.append(field(title(column)));
    return fields;
}

QStringList ListColumns::neutralFields() const
{
    QStringList fields;
    for (const char* title : titles)
        fields.append(field(QLatin1String(title)));
    for (const PropertyColumn& column : m_properties)
        fields.append(field(QString::fromUtf8(column.source)));
    return fields;
}

QString ListColumns::text(const NodeSummary& node, int column) const
{
    switch (column) {
    case NodeListModel::NameColumn:
        return inOneLine(node.name);
    case NodeListModel::TypeColumn:
        return NodeTypes::readableName(node.type);
    case NodeListModel::AddressColumn:
        return inOneLine(node.location);
    case NodeListModel::RecordingColumn:
        return inOneLine(m_recordingText(node));
    case NodeListModel::StateColumn:
        return NodeTarget::isOf(node) ? m_stateTexts.value(state(node).state) : QString();
    default: {
        const auto texts = m_texts.constFind(column);
        return texts == m_texts.constEnd() ? QString() : texts->value(node.id);
    }
    }
}

QVariant ListColumns::decoration(const NodeSummary& node, int column, int role) const
{
    if (column != NodeListModel::StateColumn || !m_states.contains(node.id))
        return QVariant();
    const CameraState state = m_states.value(node.id);
    if (role == Qt::ToolTipRole) // which would take the words of a device with markup for rich text
        return QStringLiteral("<span>%1</span>").arg(CameraStates::details(state).toHtmlEscaped());
    const QColor color = CameraStates::color(state.state, QGuiApplication::palette());
    return color.isValid() ? QVariant(color) : QVariant();
}

QString ListColumns::shown(int column, const QVariant& value) const
{
    // A word that can be looked for: "ssl:ssl", "-ssl".
    if (value.userType() == QMetaType::Bool)
        return value.toBool() ? title(column) : QString();
    return inOneLine(value.toString());
}

CameraState ListColumns::state(const NodeSummary& node) const
{
    return m_states.value(node.id);
}

void ListColumns::setState(const QString& id, const CameraState& state)
{
    m_states.insert(id, state);
}

void ListColumns::setText(int column, const QString& id, const QString& text)
{
    if (text.isEmpty())
        m_texts[column].remove(id);
    else
        m_texts[column].insert(id, text);
}

void ListColumns::forget(const QString& id)
{
    m_states.remove(id);
    for (Texts& texts : m_texts)
        texts.remove(id);
}

} // namespace ko
