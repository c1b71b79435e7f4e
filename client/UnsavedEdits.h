#ifndef KO_UNSAVEDEDITS_H
#define KO_UNSAVEDEDITS_H

#include <QHash>
#include <QMap>
#include <QObject>
#include <QVariant>

class QDialog;
class QPushButton;

namespace ko {

class PageStack;

/// Asks before Escape or the close button of a window throws away what was entered in a dialog. Its Cancel
/// button asks nothing: whoever presses that means it. Its Apply button can be pressed only while there is
/// something to be stored.
///
/// Holds for all dialogs of the program that can be cancelled as long as the object lives.
class UnsavedEdits : public QObject
{
    Q_OBJECT

public:
    explicit UnsavedEdits(QObject* parent);

    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void fieldChanged();

private:
    typedef QMap<QString, QVariant> Values; ///< by the names of the fields

    static Values valuesOf(const QDialog& dialog);
    static void enableApply(const QDialog& dialog, bool touched);
    void begin(QDialog& dialog);
    void beginApplying(QDialog& dialog, QPushButton& apply);
    void watch(QWidget& field);
    void follow(QDialog& dialog, const PageStack& pages);
    void applied(QDialog& dialog);
    bool isTouched(const QDialog& dialog) const;

    QHash<const QObject*, Values> m_stored; ///< what is stored, as each open dialog shows it
    bool m_isAsking = false;
};

} // namespace ko

#endif
