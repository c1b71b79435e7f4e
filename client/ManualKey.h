#ifndef KO_MANUALKEY_H
#define KO_MANUALKEY_H

#include <QObject>

#include <memory>

class QWidget;

namespace ko {

class ManualWindow;

/// Opens the manual at the page of the window in which F1 is pressed.
class ManualKey : public QObject
{
    Q_OBJECT

public:
    /// In all windows of the program, as long as \a window is there.
    explicit ManualKey(QWidget* window);
    ~ManualKey() override;

    /// At the page about the window that \a widget is in.
    void open(const QWidget* widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<ManualWindow> m_manual; ///< once somebody asked for it
};

} // namespace ko

#endif
