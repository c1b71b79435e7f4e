#ifndef KO_FOCUSMARK_H
#define KO_FOCUSMARK_H

#include <QObject>
#include <QPointer>

class QFocusFrame;
class QWidget;

namespace ko {

/// Frames the control that has the keyboard's focus where the style draws it as without: default buttons,
/// and read-only fields, which have neither a cursor nor, in the library's forms, an edge.
///
/// Holds for all windows of the program as long as the object lives.
class FocusMark : public QObject
{
    Q_OBJECT

public:
    explicit FocusMark(QObject* parent);
    ~FocusMark() override;

private:
    void follow(QWidget* focus);

    QPointer<QFocusFrame> m_frame; ///< lies in the window that has the focus, and may go with it
};

} // namespace ko

#endif
