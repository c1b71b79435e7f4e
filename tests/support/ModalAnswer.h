#ifndef TESTS_SUPPORT_MODALANSWER_H
#define TESTS_SUPPORT_MODALANSWER_H

#include <QDialog>
#include <QTimer>

#include <functional>

namespace testsupport {

/// Answers the next modal dialog, as a user sitting in front of it would.
///
/// Make one before the call that opens the dialog. The action runs once the dialog is shown and must
/// close it; a dialog it leaves open is rejected. fired() tells whether a dialog came at all. A dialog
/// whose action still runs is not the next one, however long that takes.
class ModalAnswer : public QObject
{
    Q_OBJECT

public:
    explicit ModalAnswer(std::function<void(QDialog*)> action);

    bool fired() const { return m_fired; }

    /// Presses the button with this text (mnemonics ignored) in the active modal dialog.
    static std::function<void(QDialog*)> press(const QString& buttonText);

private slots:
    void look();

private:
    const std::function<void(QDialog*)> m_action;
    QTimer m_timer;
    bool m_fired = false;
};

/// The child of this type and name; without it the test ends with a list of the names there are.
template <class T>
T* child(const QObject* parent, const char* name);

/// Names and classes of all named children, for messages.
QString childNames(const QObject* parent);

[[noreturn]] void failMissingChild(const QObject* parent, const char* className, const char* name);

template <class T>
T* child(const QObject* parent, const char* name)
{
    T* found = parent->findChild<T*>(QLatin1String(name));
    if (!found)
        failMissingChild(parent, T::staticMetaObject.className(), name);
    return found;
}

} // namespace testsupport

#endif
