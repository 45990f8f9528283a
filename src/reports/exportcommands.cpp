#include "reports/exportcommands.h"

#include "reports/frmimpressao.h"
#include "reports/reporttext.h"
#include "widgets/files.h"
#include "widgets/formkeys.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"

#include <QDesktopServices>
#include <QPointer>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

using Save = void (*)(const QString &path, const Report &report, Progress *progress);

void saveAndOffer(QWidget *parent, const Report &report, const QString &path, Save save)
{
    if (path.isEmpty())
        return;
    const bool saved = messages::guarded(parent, messages::generalPrefix, [&] {
        WaitProgress progress(parent, u"Salvando relatório"_s,
                              u"Por favor aguarde enquanto o arquivo é gravado."_s);
        save(path, report, &progress);
    });
    if (saved)
        exportar::offerToOpen(parent, path);
}

} // namespace

namespace exportar {

const ExportTexts &reportTexts()
{
    static const ExportTexts texts{u"Salvar relatório em txt"_s, u"Arquivos de Texto(*.txt)"_s,
                                   u"Salvar relatório em html"_s, u"Arquivos HTML(*.html)"_s};
    return texts;
}

void saveText(QWidget *parent, const Report &report, const ExportTexts &texts)
{
    const QString path = files::save(parent, texts.textTitle, texts.textFilter, u"txt"_s);
    saveAndOffer(parent, report, path, reporttext::saveText);
}

void saveHtml(QWidget *parent, const Report &report, const ExportTexts &texts)
{
    const QString path = files::save(parent, texts.htmlTitle, texts.htmlFilter, u"html"_s);
    saveAndOffer(parent, report, path, reporttext::saveHtml);
}

void print(QWidget *parent, const Report &report, const modimpressao::PageSetup &setup)
{
    try {
        printPages(parent, modimpressao::document(report, setup));
    } catch (const Error &error) {
        showPageError(parent, error);
    }
}

void printPages(QWidget *parent, const PageDocument &document)
{
    const topmost::StepBack stepBack(parent);
    QPointer<frmimpressao> screen;
    try {
        screen = new frmimpressao(document, parent);
    } catch (const Error &error) {
        showPageError(parent, error);
        return;
    }
    screen->exec();
    delete screen;
}

void offerToOpen(QWidget *parent, const QString &path)
{
    const bool open = messages::question(
        parent, u"Visualizar"_s,
        u"Os dados foram salvos com sucesso para arquivo, deseja abrir o arquivo agora?"_s);
    if (open && !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        messages::exclamation(parent, u"Visualizar"_s, u"Não foi possível abrir o arquivo: "_s + path);
}

void showPageError(QWidget *parent, const Error &error)
{
    messages::critical(parent, u"Impressão"_s, u"Erro não previsto:\n"_s + error.text());
}

void showPrintError(QWidget *parent)
{
    messages::critical(
        parent, u"Erro"_s,
        u"Ocorreu um erro ao tentar imprimir, verifique se a impressora está ligada e conectada "
        u"ao computador"_s);
}

} // namespace exportar
