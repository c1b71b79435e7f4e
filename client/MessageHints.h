#ifndef KO_MESSAGEHINTS_H
#define KO_MESSAGEHINTS_H

#include <QObject>

namespace ko {

/// Adds to messages of the library's dialogs where in this program what they miss can be set: the library
/// does not know our menus.
class MessageHints : public QObject
{
    Q_OBJECT

public:
    explicit MessageHints(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace ko

#endif
