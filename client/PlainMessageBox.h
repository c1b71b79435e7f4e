#ifndef KO_PLAINMESSAGEBOX_H
#define KO_PLAINMESSAGEBOX_H

#include <QMessageBox>

namespace ko {

/// A message box that shows its texts as they are.
///
/// QMessageBox guesses: a file named "<b>x" would be shown in bold, and an <img> would be read.
class PlainMessageBox : public QMessageBox
{
public:
    PlainMessageBox(Icon icon, const QString& title, const QString& text, StandardButtons buttons,
                    QWidget* parent);

    /// Hides that of QMessageBox, whose text format does not reach this text.
    void setInformativeText(const QString& text);

    /// Shows a box and returns what was pressed.
    static StandardButton ask(Icon icon, QWidget* parent, const QString& title, const QString& text,
                              StandardButtons buttons = Ok, StandardButton defaultButton = NoButton);
};

} // namespace ko

#endif
