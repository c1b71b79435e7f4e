#ifndef KO_LISTCOLUMNS_H
#define KO_LISTCOLUMNS_H

#include "CameraState.h"
#include "model/NodeData.h"

#include <QHash>
#include <QStringList>

#include <functional>

namespace ko {

/// The columns of the list, and the texts of their cells.
///
/// Those from NodeListModel::FirstPropertyColumn on show one property of the nodes each, or their last
/// change. They are empty until they are given their texts: most of the time nobody looks at them.
class ListColumns
{
public:
    typedef std::function<QString(const NodeSummary&)> RecordingText;
    typedef QHash<QString, QString> Texts; ///< by the identifier of the node

    /// The key of the column that shows no property, but when a node was changed last, and by whom.
    static constexpr QLatin1String LastChange{"@history", 8};

    explicit ListColumns(RecordingText recordingText);

    int count() const;
    QString title(int column) const;

    /// By which a search names the columns.
    QStringList fields() const;

    /// The same in no language, for a search that is kept.
    QStringList neutralFields() const;
    QString text(const NodeSummary& node, int column) const;

    /// For Qt::ForegroundRole and Qt::ToolTipRole.
    QVariant decoration(const NodeSummary& node, int column, int role) const;

    /// Of the cameras; any other node has none.
    CameraState state(const NodeSummary& node) const;
    bool hasStates() const { return !m_states.isEmpty(); }
    void setState(const QString& id, const CameraState& state);

    /// The texts that are made once, in the language that the program has now.
    void retranslate();

    // Columns of properties.
    QString key(int column) const; ///< of the property; empty for another column
    bool isFilled(int column) const { return m_texts.contains(column); }
    void fill(int column, const Texts& texts) { m_texts.insert(column, texts); }
    void empty(int column) { m_texts.remove(column); }
    void setText(int column, const QString& id, const QString& text);

    /// The node is gone.
    void forget(const QString& id);

    /// What a column of a property shows for its value.
    QString shown(int column, const QVariant& value) const;

private:
    struct PropertyColumn
    {
        QString key;
        QString title;
        const char* source; ///< of the title
    };
    static QVector<PropertyColumn> propertyColumns();
    const PropertyColumn* propertyColumn(int column) const;

    const RecordingText m_recordingText;
    QVector<PropertyColumn> m_properties;
    QHash<int, QString> m_stateTexts; ///< made once: a list of many cameras wants each often
    QHash<QString, CameraState> m_states;
    QHash<int, Texts> m_texts; ///< of the columns that are filled
};

} // namespace ko

#endif
