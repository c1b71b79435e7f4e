#include "support/DialogCheck.h"

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QMetaMethod>

namespace testsupport {

namespace {

QString nameOf(const QWidget* widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    return button && button->objectName().isEmpty() ? button->text().remove(QLatin1Char('&'))
                                                    : widget->objectName();
}

} // namespace

QStringList tabOrder(QWidget* window)
{
    QStringList names;
    for (QWidget* widget = window->nextInFocusChain(); widget != window;
         widget = widget->nextInFocusChain()) {
        const bool visited = (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() &&
                             widget->isEnabled() && !widget->focusProxy();
        if (visited)
            names.append(nameOf(widget));
    }
    return names;
}

QStringList declaredSlots(const QMetaObject& metaObject)
{
    QStringList signatures;
    for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
        const QMetaMethod method = metaObject.method(i);
        if (method.methodType() != QMetaMethod::Slot)
            continue;
        QStringList parameters;
        for (int p = 0; p < method.parameterCount(); ++p) {
            const QString type = QString::fromLatin1(method.parameterTypes().at(p));
            parameters.append(
                (type + QLatin1Char(' ') + QString::fromLatin1(method.parameterNames().at(p))).trimmed());
        }
        signatures.append(QString::fromLatin1("%1(%2)").arg(QString::fromLatin1(method.name()),
                                                            parameters.join(QLatin1String(", "))));
    }
    return signatures;
}

QStringList cutOff(const QWidget* window)
{
    QStringList names;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (const QWidget* widget : widgets) {
        const bool showsText = qobject_cast<const QLabel*>(widget) ||
                               qobject_cast<const QAbstractButton*>(widget) ||
                               qobject_cast<const QGroupBox*>(widget);
        const QSize needed = widget->minimumSizeHint().boundedTo(widget->maximumSize());
        if (showsText && widget->isVisible() &&
            (widget->width() < needed.width() || widget->height() < needed.height()))
            names.append(nameOf(widget));
    }
    return names;
}

LongLanguage::LongLanguage()
{
    QApplication::installTranslator(this);
}

LongLanguage::~LongLanguage()
{
    QApplication::removeTranslator(this);
}

QString LongLanguage::translate(const char*, const char* text, const char*, int) const
{
    const QString original = QString::fromUtf8(text);
    return original.isEmpty() ? QString() : original + QLatin1Char(' ') + original;
}

} // namespace testsupport
