#ifndef KO_FORMLAYOUT_H
#define KO_FORMLAYOUT_H

#include <QString>

class QGridLayout;
class QLabel;
class QWidget;

namespace ko {

/// Lays out the host's pages like those of the library: bold captions, aligned right, one field to a row.
class FormLayout
{
public:
    /// Gives \a page a grid layout, which it owns.
    explicit FormLayout(QWidget* page);

    /// Returns the caption, whose buddy is \a field, and beside it the field with whatever belongs behind it.
    QLabel* addRow(const QString& caption, QWidget* field, QWidget* behind = nullptr);

    /// A field that says itself what it is, such as a check box.
    void addRow(QWidget* field);

private:
    QGridLayout* const m_grid;
    int m_rows = 0;
};

} // namespace ko

#endif
