#include "reports/exportcommands.h"

#include "reports/frmimpressao.h"
#include "reports/reporttext.h"
#include "widgets/files.h"
#include "widgets/formkeys.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/pageprinter.h"

#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace exportar {

const ExportTexts &reportTexts()
{
    static const ExportTexts texts{u"Salvar relatório em txt"_s, u"Arquivos de Texto(*.txt)"_s,
                                   u"Salvar relatório em html"_s, u"Arquivos HTML(*.html)"_s};
    return texts;
}

void saveText(QWidget *parent, const Report &report, const ExportTexts &texts)
{
    saveFile(parent, {texts.textTitle, texts.textFilter, u"txt"_s},
             [&](QIODevice &device, Progress *progress) { reporttext::writeText(device, report, progress); });
}

void saveHtml(QWidget *parent, const Report &report, const ExportTexts &texts)
{
    saveFile(parent, {texts.htmlTitle, texts.htmlFilter, u"html"_s},
             [&](QIODevice &device, Progress *progress) { reporttext::writeHtml(device, report, progress); });
}

void saveFile(QWidget *parent, const SaveChooser &chooser, const FileWriter &write)
{
    const QString path = files::save(parent, chooser.title, chooser.filter, chooser.suffix);
    if (path.isEmpty())
        return;
    const bool saved = messages::guarded(parent, messages::generalPrefix, [&] {
        WaitProgress progress(parent, u"Salvando relatório"_s,
                              u"Por favor aguarde enquanto o arquivo é gravado."_s);
        ::saveFile(path, write, &progress);
    });
    if (saved)
        files::offerToOpen(parent, path);
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

bool hasPrinter()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

QString printingText()
{
    return u"Por favor aguarde enquanto as páginas são preparadas."_s;
}

bool printOnPrinter(QWidget *parent, Pages &pages, const QPageLayout &paper)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(paper);
    printer.setDocName(pages.name());
    printer.setCreator(u"Tavaro"_s);
    QPrintDialog dialog(&printer, parent);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, pages.count());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    try {
        WaitProgress progress(parent, u"Imprimindo"_s, printingText());
        const PageRange all;
        const int first = printer.fromPage();
        pageprinter::paint(pages, printer,
                           first > 0 ? PageRange{first, std::max(first, printer.toPage())} : all, &progress);
        if (printer.printerState() != QPrinter::Error && printer.printerState() != QPrinter::Aborted)
            return true;
        showPrintError(parent);
    } catch (const Error &error) {
        if (error.kind() == Error::Kind::File)
            showPrintError(parent);
        else
            showPageError(parent, error);
    }
    return false;
}

QString savePdf(QWidget *parent, const QString &title, Pages &pages, const QPageLayout &paper)
{
    const QString path = files::save(parent, title, u"Arquivos PDF (*.pdf)"_s, u"pdf"_s);
    const bool saved = !path.isEmpty() && messages::guarded(parent, messages::generalPrefix, [&] {
        WaitProgress progress(parent, u"Salvando em PDF"_s, printingText());
        pageprinter::savePdf(path, pages, paper, &progress);
    });
    return saved ? path : QString();
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
