#include "support/ModalAnswer.h"

#include <QAbstractButton>
#include <QApplication>
#include <QProgressDialog>
#include <QTest>
#include <QVector>

#include <cstdio>
#include <cstdlib>

namespace testsupport {

namespace {

/// Whose actions run, the outermost first.
QVector<QDialog*>& inAction()
{
    static QVector<QDialog*> dialogs;
    return dialogs;
}

} // namespace

ModalAnswer::ModalAnswer(std::function<void(QDialog*)> action)
    : m_action(std::move(action))
{
    m_timer.setInterval(5);
    connect(&m_timer, SIGNAL(timeout()), this, SLOT(look()));
    m_timer.start();
}

void ModalAnswer::look()
{
    QDialog* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!dialog || inAction().contains(dialog) || !dialog->isVisible() || m_fired ||
        qobject_cast<QProgressDialog*>(dialog))
        return; // progress is not a question
    m_timer.stop();
    m_fired = true;
    inAction().append(dialog);
    m_action(dialog);
    inAction().removeLast();
    if (dialog->isVisible())
        dialog->reject();
}

std::function<void(QDialog*)> ModalAnswer::press(const QString& buttonText)
{
    return [buttonText](QDialog* dialog) {
        const QList<QAbstractButton*> buttons = dialog->findChildren<QAbstractButton*>();
        for (QAbstractButton* button : buttons) {
            if (button->text().remove(QLatin1Char('&')) == buttonText) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
        failMissingChild(dialog, "QAbstractButton", qPrintable(buttonText));
    };
}

QString childNames(const QObject* parent)
{
    QStringList names;
    const QList<QObject*> children = parent->findChildren<QObject*>();
    for (const QObject* object : children) {
        if (!object->objectName().isEmpty())
            names.append(QString::fromLatin1("%1 (%2)").arg(
                object->objectName(), QString::fromLatin1(object->metaObject()->className())));
    }
    return names.join(QLatin1String(", "));
}

void failMissingChild(const QObject* parent, const char* className, const char* name)
{
    std::fprintf(stderr, "no %s named \"%s\"; there are: %s\n", className, name,
                 qPrintable(childNames(parent)));
    std::abort();
}

} // namespace testsupport
