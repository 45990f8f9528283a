#include "widgets/files.h"

#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QPointer>
#include <QUrl>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

/// The folder of the last choice of this run; at first the one the system proposes.
QString &lastFolder()
{
    static QString folder;
    return folder;
}

QString choose(QWidget *parent, const QString &title, const QString &filter,
               const std::function<void(QFileDialog &)> &prepare)
{
    const topmost::StepBack stepBack(parent);
    // The parent may be destroyed while the chooser is open, and takes the chooser with it.
    const QPointer<QFileDialog> dialog = new QFileDialog(parent, title, lastFolder(), filter);
    prepare(*dialog);
    QString chosen;
    if (dialog->exec() == QDialog::Accepted && dialog) {
        chosen = dialog->selectedFiles().value(0);
        lastFolder() = dialog->directory().absolutePath();
    }
    delete dialog;
    return chosen;
}

} // namespace

QString files::open(QWidget *parent, const QString &title, const QString &filter)
{
    return choose(parent, title, filter, [](QFileDialog &dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
    });
}

QString files::save(QWidget *parent, const QString &title, const QString &filter, const QString &suffix)
{
    return choose(parent, title, filter, [&suffix](QFileDialog &dialog) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(suffix);
    });
}

QString files::folder(QWidget *parent, const QString &title, const QString &start)
{
    return choose(parent, title, {}, [&start](QFileDialog &dialog) {
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        dialog.setDirectory(start);
    });
}

void files::offerToOpen(QWidget *parent, const QString &path)
{
    const bool open = messages::question(
        parent, u"Visualizar"_s,
        u"Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s);
    if (open && !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        messages::exclamation(parent, u"Visualizar"_s, u"Não foi possível abrir o arquivo: "_s + path);
}
