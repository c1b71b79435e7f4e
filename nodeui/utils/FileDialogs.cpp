#include "utils/FileDialogs.h"

#include <QDir>
#include <QFileDialog>

namespace ko {

namespace FileDialogs {

namespace {

class Dialog : public QFileDialog
{
public:
    Dialog(QWidget* parent, const QString& title, const QString& filter, const QString& start)
        : QFileDialog(parent, title, QString(), filter)
    {
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
