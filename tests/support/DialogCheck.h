#ifndef TESTS_SUPPORT_DIALOGCHECK_H
#define TESTS_SUPPORT_DIALOGCHECK_H

#include <QStringList>
#include <QTranslator>

class QWidget;
struct QMetaObject;

namespace testsupport {

/// Names of the widgets that Tab visits in the shown \a window, in their order; a standard button is named
/// by its text.
QStringList tabOrder(QWidget* window);

/// Slots that the class itself declares, with types and parameter names: "nodeAdded(ko::NodeID id)".
QStringList declaredSlots(const QMetaObject& metaObject);

/// Names of the visible children that have less room than their content needs, where the form lets them.
QStringList cutOff(const QWidget* window);

/// A language in which every text is twice as long, from construction to destruction.
class LongLanguage : public QTranslator
{
    Q_OBJECT

public:
    LongLanguage();
    ~LongLanguage() override;

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* comment, int n) const override;
};

} // namespace testsupport

#endif
