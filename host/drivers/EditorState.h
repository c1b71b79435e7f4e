#ifndef KO_EDITORSTATE_H
#define KO_EDITORSTATE_H

#include <QHash>
#include <QVariant>

class QWidget;

namespace ko {

/// What the fields of a page showed when they were last filled; tells what the user has changed since.
class EditorState
{
public:
    void capture(const QWidget* page);

    /// Gives the fields of \a page that the user has not touched the values that the same fields of
    /// \a fresh have. What was typed stays.
    void refresh(QWidget* page, QWidget* fresh);

private:
    QHash<const QWidget*, QVariant> m_values;
};

} // namespace ko

#endif
