#include "PlainMessageBox.h"

#include <QLabel>

namespace ko {

PlainMessageBox::PlainMessageBox(Icon icon, const QString& title, const QString& text,
                                 StandardButtons buttons, QWidget* parent)
    : QMessageBox(icon, title, QString(), buttons, parent)
{
    setTextFormat(Qt::PlainText);
    setText(text);
}

void PlainMessageBox::setInformativeText(const QString& text)
{
    QMessageBox::setInformativeText(text);
    const QList<QLabel*> labels = findChildren<QLabel*>();
    for (QLabel* label : labels)
        label->setTextFormat(Qt::PlainText);
}

QMessageBox::StandardButton PlainMessageBox::ask(Icon icon, QWidget* parent, const QString& title,
                                                 const QString& text, StandardButtons buttons,
                                                 StandardButton defaultButton)
{
    PlainMessageBox box(icon, title, text, buttons, parent);
    box.setDefaultButton(defaultButton);
    return StandardButton(box.exec());
}

} // namespace ko
