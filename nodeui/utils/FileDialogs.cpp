#include "utils/FileDialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIcon>

namespace ko {

namespace FileDialogs {

namespace {

/// Tells folders from files, and nothing else. Made on the GUI thread, asked by that which reads folders.
class PlainIcons : public QFileIconProvider
{
public:
    PlainIcons()
        : m_folder(QFileIconProvider::icon(Folder))
        , m_file(QFileIconProvider::icon(File))
    {
    }

    QIcon icon(IconType type) const override { return QFileIconProvider::icon(type); }
    QIcon icon(const QFileInfo& info) const override { return info.isDir() ? m_folder : m_file; }
    QString type(const QFileInfo& info) const override
    {
        return info.isDir() ? QFileDialog::tr("Folder") : QFileDialog::tr("File");
    }

private:
    const QIcon m_folder;
    const QIcon m_file;
};

/// A base, so that the icons are there until the dialog has ended its thread.
struct IconsOfDialog
{
    PlainIcons icons;
};

/// Begins with the folder of all folders, because what it lists before it has its icons is read.
class Dialog : private IconsOfDialog, public QFileDialog
{
public:
    Dialog(QWidget* parent, const QString& title, const QString& filter, const QString& start)
        : QFileDialog(parent, title, QDir::rootPath(), filter)
    {
        setOption(DontUseNativeDialog);
        setIconProvider(&icons);
        setDirectory(start.isEmpty() ? lastFolder() : start);
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
