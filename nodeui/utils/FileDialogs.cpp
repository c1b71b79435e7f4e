#include "utils/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>

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
    Dialog dialog(parent, title, QString(), start);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return dialog.choose();
}

} // namespace FileDialogs

} // namespace ko
