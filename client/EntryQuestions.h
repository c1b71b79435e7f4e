#ifndef KO_ENTRYQUESTIONS_H
#define KO_ENTRYQUESTIONS_H

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QVector>

class QAbstractButton;
class QDialogButtonBox;
class QWidget;

namespace ko {

class NodeDialog;

/// Asks before OK adds or changes a node in a way that is seldom meant: without a name, without a name and an
/// address, or with the address, port and channel of another node. What was so when an editor opened is not
/// asked about.
///
/// Holds for all dialogs of the program that add or edit a node as long as the object lives.
class EntryQuestions : public QObject
{
    Q_OBJECT

public:
    explicit EntryQuestions(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Doubt
    {
        QString text;
        QWidget* field; ///< where it can be taken away

        bool operator==(const Doubt& other) const { return text == other.text; }
    };
    typedef QVector<Doubt> Doubts;

    /// What an editor began with.
    struct Beginning
    {
        Doubts doubts;
        QStringList target;
    };

    static Doubts doubtsOfName(const NodeDialog& dialog);
    static Doubts doubtsOfTarget(const NodeDialog& dialog);
    static QStringList targetOf(const NodeDialog& dialog);
    static bool agrees(const Doubts& doubts, NodeDialog& dialog);
    void begin(NodeDialog& dialog);
    void confirm(NodeDialog& dialog, QDialogButtonBox& buttons) const;

    QHash<const QObject*, Beginning> m_stored; ///< of each open dialog
};

} // namespace ko

#endif
