#include "FocusMark.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QFocusFrame>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace ko {

namespace {

bool isReadOnly(const QWidget* widget)
{
    const QVariant readOnly = widget->property("readOnly");
    return (qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QAbstractSpinBox*>(widget) ||
            qobject_cast<const QPlainTextEdit*>(widget)) &&
           readOnly.toBool();
}

bool needsMark(const QWidget* widget)
{
    const auto* button = qobject_cast<const QPushButton*>(widget);
    return widget->window()->testAttribute(Qt::WA_KeyboardFocusChange) &&
           ((button && button->isDefault()) || isReadOnly(widget));
}

} // namespace

FocusMark::FocusMark(QObject* parent)
    : QObject(parent)
{
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { follow(now); });
}

FocusMark::~FocusMark()
{
    delete m_frame;
}

void FocusMark::follow(QWidget* focus)
{
    delete m_frame;
    if (!focus || !needsMark(focus))
        return;
    m_frame = new QFocusFrame(focus);
    m_frame->setWidget(focus);
}

} // namespace ko
