#include "reports/frmimpressao.h"
#include "ui_frmimpressao.h"

#include "data/error.h"
#include "reports/exportcommands.h"
#include "widgets/files.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/pageprinter.h"

#include <QLocale>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int previewPages = 30;
constexpr double marginMillimetres = 12;

bool hasPrinter()
{
    return !QPrinterInfo::availablePrinterNames().isEmpty();
}

QString printingText()
{
    return u"Por favor aguarde enquanto as páginas são preparadas."_s;
}

} // namespace

frmimpressao::frmimpressao(PageDocument document, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmimpressao>()),
      m_document(std::move(document)),
      m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_preview(new QPrintPreviewWidget(m_printer.get(), this))
{
    m_ui->setupUi(this);
    m_ui->visualizacao->addWidget(m_preview);
    m_preview->setObjectName(u"paginas"_s);
    setWindowTitle(m_document.name + u" - Impressão"_s);
    m_printer->setPageMargins(
        QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
        QPageLayout::Millimeter);
    m_printer->setPageOrientation(PagePrinter::fittingOrientation(m_document, *m_printer));
    layOut();
    m_ui->chkpaisagem->setChecked(m_printer->pageLayout().orientation() == QPageLayout::Landscape);
    m_ui->lblaviso->setVisible(!hasPrinter());
    connectControls();
    updateControls();
    m_preview->fitToWidth();
}

frmimpressao::~frmimpressao() = default;

void frmimpressao::connectControls()
{
    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, &frmimpressao::paintPreview);
    connect(m_preview, &QPrintPreviewWidget::previewChanged, this, &frmimpressao::updateControls);
    connect(m_ui->cmdanterior, &QToolButton::clicked, this,
            [this] { m_preview->setCurrentPage(m_preview->currentPage() - 1); });
    connect(m_ui->cmdproxima, &QToolButton::clicked, this,
            [this] { m_preview->setCurrentPage(m_preview->currentPage() + 1); });
    connect(m_ui->cmdmenor, &QToolButton::clicked, this, [this] { m_preview->zoomOut(); });
    connect(m_ui->cmdmaior, &QToolButton::clicked, this, [this] { m_preview->zoomIn(); });
    connect(m_ui->cmdlargura, &QToolButton::clicked, this, [this] { m_preview->fitToWidth(); });
    connect(m_ui->chkpaisagem, &QCheckBox::toggled, this, &frmimpressao::setLandscape);
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, &frmimpressao::print);
    connect(m_ui->cmdpdf, &QPushButton::clicked, this, &frmimpressao::savePdf);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

void frmimpressao::layOut()
{
    m_layout = std::make_unique<PagePrinter>(m_document, *m_printer);
    m_pages = m_layout->pageCount();
}

void frmimpressao::paintPreview()
{
    try {
        m_layout->paint({.last = previewPages}, nullptr);
    } catch (const Error &error) {
        m_ui->lblpagina->setText(error.text());
    }
}

void frmimpressao::setLandscape(bool on)
{
    m_printer->setPageOrientation(on ? QPageLayout::Landscape : QPageLayout::Portrait);
    try {
        layOut();
    } catch (const Error &error) { // a slip of paper may be too low lying on its side
        exportar::showPageError(this, error);
        m_ui->chkpaisagem->setChecked(!on);
        return;
    }
    m_preview->updatePreview();
    m_preview->fitToWidth();
}

void frmimpressao::updateControls()
{
    const int shown = m_preview->pageCount();
    const int current = m_preview->currentPage();
    const QLocale portuguese(QLocale::Portuguese, QLocale::Brazil);
    QString text = u"Página %1 de %2"_s.arg(current).arg(portuguese.toString(m_pages));
    if (m_pages > previewPages)
        text += u" (aqui são mostradas as primeiras %1)"_s.arg(previewPages);
    m_ui->lblpagina->setText(text);
    m_ui->cmdanterior->setEnabled(current > 1);
    m_ui->cmdproxima->setEnabled(current < shown);
}

bool frmimpressao::paintPages(QPrinter &printer)
{
    try {
        WaitProgress progress(this, u"Imprimindo"_s, printingText());
        const PageRange all;
        const int first = printer.fromPage();
        PagePrinter(m_document, printer)
            .paint(first > 0 ? PageRange{first, std::max(first, printer.toPage())} : all, &progress);
    } catch (const Error &) {
        exportar::showPrintError(this);
        return false;
    }
    if (printer.printerState() != QPrinter::Error && printer.printerState() != QPrinter::Aborted)
        return true;
    exportar::showPrintError(this);
    return false;
}

void frmimpressao::print()
{
    if (!hasPrinter()) {
        savePdf();
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(m_printer->pageLayout());
    printer.setDocName(m_document.name);
    printer.setCreator(u"Tavaro"_s);
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange);
    dialog.setMinMax(1, m_pages);
    if (dialog.exec() == QDialog::Accepted && paintPages(printer))
        accept();
}

void frmimpressao::savePdf()
{
    const QString path = files::save(this, u"Salvar páginas em PDF"_s, u"Arquivos PDF (*.pdf)"_s, u"pdf"_s);
    if (path.isEmpty())
        return;
    const bool saved = messages::guarded(this, messages::generalPrefix, [&] {
        WaitProgress progress(this, u"Salvando em PDF"_s, printingText());
        ::savePdf(path, m_document, m_printer->pageLayout(), &progress);
    });
    if (saved)
        exportar::offerToOpen(this, path);
}
