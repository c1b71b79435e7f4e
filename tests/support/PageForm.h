#ifndef TESTS_SUPPORT_PAGEFORM_H
#define TESTS_SUPPORT_PAGEFORM_H

#include "support/ModalAnswer.h"

#include <QGridLayout>
#include <QLabel>
#include <QTest>

namespace testsupport {

/// A caption as a page's form gives it.
struct Caption
{
    const char* name;
    const char* text;
    int minimumWidth;
    Qt::Alignment alignment;
    const char* buddy;
};

const Qt::Alignment RightCentred = Qt::AlignRight | Qt::AlignVCenter;
const Qt::Alignment RightTop = Qt::AlignRight | Qt::AlignTop;

/// Compares captions with their labels, all of which must be bold.
inline void checkCaptions(const QWidget* page, const QList<Caption>& captions)
{
    const Qt::Alignment relevant = Qt::AlignHorizontal_Mask | Qt::AlignVertical_Mask;
    for (const Caption& caption : captions) {
        const auto* label = child<QLabel>(page, caption.name);
        QCOMPARE(label->text(), QString::fromUtf8(caption.text));
        QVERIFY2(label->font().bold(), caption.name);
        QCOMPARE(label->minimumWidth(), caption.minimumWidth);
        QCOMPARE((label->alignment() & relevant) & ~Qt::AlignAbsolute, caption.alignment);
        QVERIFY2(label->buddy(), caption.name);
        QCOMPARE(label->buddy()->objectName(), QString::fromUtf8(caption.buddy));
    }
}

/// Where a grid has a widget, as "row,column,rows,columns".
inline QString gridCell(const QGridLayout* grid, QWidget* widget)
{
    int row = -1, column = -1, rows = 0, columns = 0;
    const int index = grid->indexOf(widget);
    if (index >= 0)
        const_cast<QGridLayout*>(grid)->getItemPosition(index, &row, &column, &rows, &columns);
    return QString::fromLatin1("%1,%2,%3,%4").arg(row).arg(column).arg(rows).arg(columns);
}

/// The combo box's items as "data:text".
template <class ComboBox>
QStringList comboItems(const ComboBox* comboBox)
{
    QStringList items;
    for (int i = 0; i < comboBox->count(); ++i)
        items.append(comboBox->itemData(i).toString() + QLatin1Char(':') + comboBox->itemText(i));
    return items;
}

} // namespace testsupport

#endif
