#include "PropertyColumns.h"

#include "NodeListModel.h"
#include "NodeListView.h"
#include "database/HostNodeDB.h"
#include "ko/Node.h"
#include "kogen/PropertySet.h"

#include <QHeaderView>
#include <QSet>

namespace ko {

namespace {

/// One node costs as much as this many in a column that is read as a whole.
const int dearer = 8;

} // namespace

PropertyColumns::PropertyColumns(HostNodeDB& db, NodeListModel& model, const NodeListView& view,
                                 QObject* parent)
    : QObject(parent)
    , m_db(db)
    , m_model(model)
    , m_view(view)
    , m_lastChange(db, model)
{
    connect(&view, &NodeListView::columnsChanged, this, &PropertyColumns::update);
    connect(view.header(), &QHeaderView::sortIndicatorChanged, this, &PropertyColumns::update);
}

void PropertyColumns::setSearch(const QString& search)
{
    m_search = search;
    update();
}

bool PropertyColumns::isWanted(int column) const
{
    return !m_view.isColumnHidden(column) || m_view.header()->sortIndicatorSection() == column ||
           NodeSearch(m_search, m_model.columns().fields()).columns().contains(column);
}

void PropertyColumns::update()
{
    if (!m_db.isLoaded())
        return; // the first picture does not wait for a column
    m_lastChange.setWanted(isWanted(m_lastChange.column()));
    for (int column = NodeListModel::FirstPropertyColumn; column < m_model.columnCount(); ++column) {
        if (column == m_lastChange.column())
            continue;
        const bool isFilled = m_model.columns().isFilled(column);
        const bool isNeeded = isWanted(column);
        if (isNeeded && !isFilled)
            read(column);
        else if (isFilled && !isNeeded)
            m_model.empty(column);
    }
}

void PropertyColumns::read(int column)
{
    ListColumns::Texts texts;
    QSet<QString> different; // most cameras have the same model, port or user
    m_db.column(m_model.columns().key(column), [&](const NodeID& id, const QVariant& value) {
        const QString text = m_model.columns().shown(column, value);
        if (!text.isEmpty())
            texts.insert(m_model.knownId(id), *different.insert(text));
    });
    m_model.fill(column, texts);
}

void PropertyColumns::retranslate()
{
    const QVector<int> columns = filled();
    for (const int column : columns)
        read(column); // a switch that is on shows the column's title
}

/// Of those that show properties.
QVector<int> PropertyColumns::filled() const
{
    QVector<int> columns;
    for (int column = NodeListModel::FirstPropertyColumn; column < m_model.columnCount(); ++column) {
        if (column != m_lastChange.column() && m_model.columns().isFilled(column))
            columns.append(column);
    }
    return columns;
}

void PropertyColumns::take(const QVector<NodeSummary>& changed)
{
    m_lastChange.take(changed);
    const QVector<int> columns = filled();
    if (columns.isEmpty())
        return;
    if (int(changed.size()) > m_model.nodeCount() / dearer) {
        for (const int column : std::as_const(columns))
            read(column);
        return;
    }
    for (const NodeSummary& summary : changed) {
        const kom::smart<const Node> node = m_db.node(summary.id);
        if (!node.null())
            take(*node, columns);
    }
}

void PropertyColumns::take(const Node& node, const QVector<int>& columns)
{
    const kogen::PropertySet& properties = node.properties();
    for (const int column : columns) {
        const auto property = properties[m_model.columns().key(column)];
        const QVariant value = property.null() ? QVariant() : property->value();
        m_model.setText(column, m_model.knownId(node.id()), m_model.columns().shown(column, value));
    }
}

} // namespace ko
