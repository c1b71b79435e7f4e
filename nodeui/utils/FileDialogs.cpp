#include "utils/FileDialogs.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QLineEdit>
#include <QPushButton>

namespace ko {

namespace FileDialogs {

namespace {

/// Tells files by their names. The toolkit's own may read the beginning of each to learn its type, in the
/// thread of the window: that waits for slow servers, and for ever where a file is a device.
class IconProvider : public QFileIconProvider
{
public:
    using QFileIconProvider::icon;

    QIcon icon(const QFileInfo& info) const override
    {
        return info.isFile() ? m_fileIcon : QFileIconProvider::icon(info);
    }

    QString type(const QFileInfo& info) const override
    {
        return info.isFile() ? info.suffix().toUpper() : QFileIconProvider::type(info);
    }

private:
    const QIcon m_fileIcon = icon(File);
};

/// A base, so that it outlives the dialog, whose thread asks it.
struct Icons
{
    IconProvider fileIcons;
};

class Dialog : private Icons, public QFileDialog
{
public:
    Dialog(QWidget* parent, const QString& title, const QString& filter, const QString& start)
        : QFileDialog(parent, title, QString(), filter)
    {
        setIconProvider(&fileIcons);                          // first: a folder is read at once
        setDirectory(start.isEmpty() ? lastFolder() : start); // which may be gone by now
    }

    QString choose()
    {
        if (exec() != Accepted)
            return QString();
        lastFolder() = directory().path();
        return selectedFiles().value(0);
    }

private:
    static QString& lastFolder()
    {
        static QString folder = QDir::currentPath();
        return folder;
    }
};

/// One of a server, "//server/share", which the desktop need not have mounted.
bool isOnServer(const QString& path)
{
    return path.startsWith(QLatin1String("//")) || path.startsWith(QLatin1String("\\\\"));
}

/// Takes such a folder by its name, too, which the toolkit's own would refuse since it cannot see it.
class FolderDialog : public Dialog
{
public:
    FolderDialog(QWidget* parent, const QString& title, const QString& start)
        : Dialog(parent, title, QString(), start)
    {
        setOption(QFileDialog::DontUseNativeDialog); // none of the desktops' can be taught that
        setFileMode(QFileDialog::Directory);
        setOption(QFileDialog::ShowDirsOnly);
        findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->installEventFilter(this);
    }

    QString choose()
    {
        const QString folder = Dialog::choose();
        return m_onServer.isEmpty() ? folder : m_onServer;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        QWidget* choose = event->type() == QEvent::EnabledChange ? qobject_cast<QWidget*>(watched) : nullptr;
        if (choose && !choose->isEnabled() && isOnServer(typed()))
            choose->setEnabled(true);
        return Dialog::eventFilter(watched, event);
    }

    void accept() override
    {
        m_onServer = isOnServer(typed()) ? typed() : QString();
        if (m_onServer.isEmpty() || QFileInfo(m_onServer).isDir())
            QFileDialog::accept();
        else
            done(QDialog::Accepted); // without the looks that the toolkit takes
    }

private:
    QString typed() const { return findChild<QLineEdit*>(QLatin1String("fileNameEdit"))->text().trimmed(); }

    QString m_onServer; ///< what was chosen by its name
};

} // namespace

QString openFile(QWidget* parent, const QString& title, const QString& filter)
{
    Dialog dialog(parent, title, filter, QString());
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.choose();
}

QString fileOrNewName(QWidget* parent, const QString& title, const QString& filter)
{
    Dialog dialog(parent, title, filter, QString());
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(
        QFileDialog::DontUseNativeDialog); // some of the desktops' take no name that is not there
    return dialog.choose();
}

QString saveFile(QWidget* parent, const QString& title, const QString& name, const QString& filter)
{
    Dialog dialog(parent, title, filter, QString());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.selectFile(name);
    return dialog.choose();
}

QString existingFolder(QWidget* parent, const QString& title, const QString& start)
{
    FolderDialog dialog(parent, title, start);
    return dialog.choose();
}

} // namespace FileDialogs

} // namespace ko
