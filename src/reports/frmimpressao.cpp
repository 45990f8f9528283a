#include "reports/frmimpressao.h"
#include "ui_frmimpressao.h"

#include "data/error.h"
#include "reports/exportcommands.h"
#include "widgets/documentpages.h"
#include "widgets/files.h"
#include "widgets/frmcarregando.h"

#include <QLocale>
#include <QPrintPreviewWidget>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace {

constexpr int previewPages = 30;
constexpr double marginMillimetres = 12;

} // namespace

frmimpressao::frmimpressao(PageDocument document, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmimpressao>()),
      m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_preview(new QPrintPreviewWidget(m_printer.get(), this))
{
    m_ui->setupUi(this);
    m_ui->visualizacao->addWidget(m_preview);
    m_preview->setObjectName(u"paginas"_s);
    setWindowTitle(document.name + u" - Impressão"_s);
    m_printer->setPageMargins(
        QMarginsF(marginMillimetres, marginMillimetres, marginMillimetres, marginMillimetres),
        QPageLayout::Millimeter);
    {
        WaitProgress progress(parent, u"Imprimindo"_s, exportar::printingText());
        m_pages = std::make_unique<DocumentPages>(std::move(document), &progress);
        m_printer->setPageOrientation(m_pages->fittingOrientation(m_printer->pageLayout()));
        m_pages->layOut(m_printer->pageLayout(), &progress);
    }
    m_ui->chkpaisagem->setChecked(m_printer->pageLayout().orientation() == QPageLayout::Landscape);
    m_ui->lblaviso->setVisible(!exportar::hasPrinter());
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

void frmimpressao::paintPreview()
{
    try {
        pageprinter::paint(*m_pages, *m_printer, {.last = previewPages}, nullptr);
    } catch (const Error &error) {
        m_ui->lblpagina->setText(error.text());
    }
}

void frmimpressao::setLandscape(bool on)
{
    m_printer->setPageOrientation(on ? QPageLayout::Landscape : QPageLayout::Portrait);
    try {
        WaitProgress progress(this, u"Imprimindo"_s, exportar::printingText());
        m_pages->layOut(m_printer->pageLayout(), &progress);
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
    const int pages = m_pages->count();
    const int current = m_preview->currentPage();
    const QLocale portuguese(QLocale::Portuguese, QLocale::Brazil);
    QString text = u"Página %1 de %2"_s.arg(current).arg(portuguese.toString(pages));
    if (pages > previewPages)
        text += u" (aqui são mostradas as primeiras %1)"_s.arg(previewPages);
    m_ui->lblpagina->setText(text);
    m_ui->cmdanterior->setEnabled(current > 1);
    m_ui->cmdproxima->setEnabled(current < shown);
}

void frmimpressao::print()
{
    if (!exportar::hasPrinter())
        savePdf();
    else if (exportar::printOnPrinter(this, *m_pages, m_printer->pageLayout()))
        accept();
    else
        m_preview->updatePreview(); // the pages may have been laid out for another paper
}

void frmimpressao::savePdf()
{
    const QString path =
        exportar::savePdf(this, u"Salvar páginas em PDF"_s, *m_pages, m_printer->pageLayout());
    if (!path.isEmpty())
        files::offerToOpen(this, path);
}
