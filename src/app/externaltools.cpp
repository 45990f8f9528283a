#include "app/externaltools.h"

#include "settings/programfolder.h"
#include "widgets/messages.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

void startFirst(QWidget *parent, const QStringList &programs, const QString &title, const QString &missing)
{
    for (const QString &program : programs) {
        const QString found = QStandardPaths::findExecutable(program);
        if (!found.isEmpty() && QProcess::startDetached(found, {}))
            return;
    }
    messages::exclamation(parent, title, missing);
}

} // namespace

namespace externaltools {

void calculator(QWidget *parent)
{
    startFirst(
        parent,
        {u"gnome-calculator"_s, u"kcalc"_s, u"mate-calc"_s, u"qalculate-gtk"_s, u"galculator"_s, u"xcalc"_s},
        u"Calculadora"_s, u"Nenhuma calculadora foi encontrada neste computador."_s);
}

void textEditor(QWidget *parent)
{
    startFirst(parent,
               {u"gnome-text-editor"_s, u"gedit"_s, u"kate"_s, u"kwrite"_s, u"mousepad"_s, u"pluma"_s,
                u"xed"_s, u"featherpad"_s, u"xedit"_s},
               u"Bloco de notas"_s, u"Nenhum editor de textos foi encontrado neste computador."_s);
}

void manual(QWidget *parent)
{
    manual(parent, {});
}

void manual(QWidget *parent, const QString &topic)
{
    const QString file = programfolder::file(u"manual.html"_s);
    QUrl page = QUrl::fromLocalFile(file);
    if (!topic.isEmpty())
        page.setFragment(topic);
    if (!QFileInfo::exists(file) || !QDesktopServices::openUrl(page))
        messages::exclamation(parent, u"Manual"_s, u"Não foi possível abrir o manual: "_s + file);
}

} // namespace externaltools
