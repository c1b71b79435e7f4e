#ifndef KO_AUDIOSOURCES_H
#define KO_AUDIOSOURCES_H

#include <QAbstractListModel>
#include <QStringList>

namespace ko {

/// The nodes whose audio may accompany the video of one node: itself and others, whose names are looked up
/// when they are shown. Identifiers are the data of Qt::UserRole.
class AudioSources : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Empty. The node itself is called \a selfName.
    AudioSources(const QString& self, const QString& selfName, QObject* parent);

    /// Adds the node itself and the nodes of \a ids that there are. In a long list those from the hundredth
    /// on are believed to be there: asking for each would take longer than the rest of the page. \a hasSelf:
    /// whether the node itself is one of them.
    void append(QStringList ids, bool hasSelf);

    void setSelfName(const QString& name);

    /// The first row of the node; -1 if it has none.
    int rowOf(const QString& id) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const;

private:
    /// The node itself, and others in the database's own list: a copy without the node would take longer.
    struct Section
    {
        QStringList ids;
        bool hasSelf;
        mutable int own; ///< the node's place in it, or -1 until somebody needs it

        int rows() const { return 1 + ids.size() - (hasSelf ? 1 : 0); }
    };

    bool isAfterSelf(const Section& section, int place) const;
    QString idAt(int row) const;

    const QString m_self;
    QString m_selfName;
    QList<Section> m_sections;
    int m_rows;
};

} // namespace ko

#endif
