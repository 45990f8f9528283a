#include "stock/frmconfetiqueta.h"
#include "ui_frmconfetiqueta.h"

#include "reports/exportcommands.h"
#include "settings/database.h"
#include "widgets/background.h"
#include "widgets/boxes.h"
#include "widgets/files.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QSaveFile>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

enum FieldColumn { Source, Top, Left, Width, Format };

constexpr int allPages = std::numeric_limits<int>::max();
constexpr double unit = 100;      ///< painter units in a millimetre
constexpr int letterHeight = 320; ///< painter units; about 9 points
const QString title = u"Etiquetas"_s;

QString fileError(const QSaveFile &file)
{
    return u"não foi possível gravar o arquivo \"%1\": %2"_s.arg(file.fileName(), file.errorString());
}

/// Paper from edge to edge: the labels' own places keep clear of what printers cannot reach.
void useWholePaper(QPagedPaintDevice &device)
{
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
}

/// The edges of the labels, for the screen alone.
void paintEdges(QPainter &painter)
{
    painter.save();
    painter.setPen(QPen(Qt::lightGray, 0, Qt::DotLine));
    for (int place = 0; place < labelsheet::labelsPerPage; ++place) {
        const int column = place % labelsheet::columns, row = place / labelsheet::columns;
        painter.drawRect(QRectF(column * labelsheet::labelWidth * unit, row * labelsheet::labelHeight * unit,
                                labelsheet::labelWidth * unit, labelsheet::labelHeight * unit));
    }
    painter.restore();
}

void paintPage(QPainter &painter, const std::vector<LabelText> &page)
{
    for (const LabelText &label : page) {
        QFont font = painter.font();
        font.setPixelSize(letterHeight);
        font.setBold(label.bold);
        painter.setFont(font);
        const QRectF place(label.left * unit, label.top * unit, label.width * unit, letterHeight * 1.5);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop | Qt::TextSingleLine,
                         painter.fontMetrics().elidedText(label.text, Qt::ElideRight, int(place.width())));
    }
}

} // namespace

frmConfEtiqueta::frmConfEtiqueta(const QString &query, QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmConfEtiqueta>()),
      m_query(query),
      m_preview(new QPrintPreviewWidget(&m_previewPrinter, this))
{
    m_ui->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    background::apply(this);
    formkeys::modalOverDialog(this);
    m_ui->corpo->addWidget(m_preview, 1);
    m_preview->fitInView();
    m_previewPrinter.setFullPage(true);
    useWholePaper(m_previewPrinter);
    m_ui->spninicio->setMaximum(labelsheet::labelsPerPage);

    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, [this](QPrinter *printer) {
        messages::guarded(this, messages::generalPrefix, [&] { paintOn(*printer, 1); });
    });
    connect(m_ui->spninicio, &QSpinBox::valueChanged, m_preview, &QPrintPreviewWidget::updatePreview);
    connect(m_ui->cmdincluir, &QPushButton::clicked, this, [this] {
        addField({u"nome"_s, 4, 5, 60, labels::formats().first()});
        m_ui->tblcampos->setCurrentCell(m_ui->tblcampos->rowCount() - 1, Source);
        fieldsEdited();
    });
    connect(m_ui->cmdexcluir, &QPushButton::clicked, this, &frmConfEtiqueta::removeField);
    connect(m_ui->cmdpadrao, &QPushButton::clicked, this, [this] {
        showFields(labels::defaultFields());
        fieldsEdited();
    });
    connect(m_ui->cmdsalvar, &QPushButton::clicked, this, &frmConfEtiqueta::save);
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, &frmConfEtiqueta::print);
    connect(m_ui->cmdpdf, &QPushButton::clicked, this, &frmConfEtiqueta::savePdf);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmConfEtiqueta::~frmConfEtiqueta() = default;

frmConfEtiqueta *frmConfEtiqueta::open(const QString &query, QWidget *parent)
{
    auto screen = std::unique_ptr<frmConfEtiqueta>(new frmConfEtiqueta(query, parent));
    if (!messages::guarded(parent, messages::generalPrefix,
                           [&] { screen->showFields(labels::load(*openDatabase())); }))
        return nullptr;
    screen->show();
    return screen.release();
}

void frmConfEtiqueta::showFields(const std::vector<LabelField> &fields)
{
    m_ui->tblcampos->setRowCount(0);
    for (const LabelField &field : fields)
        addField(field);
}

void frmConfEtiqueta::addField(const LabelField &field)
{
    QTableWidget *table = m_ui->tblcampos;
    const int row = table->rowCount();
    table->insertRow(row);
    auto *source = new QComboBox;
    for (const labels::Source &known : labels::sources())
        source->addItem(known.title, known.column);
    if (source->findData(field.column) < 0)
        source->addItem(field.column, field.column);
    source->setCurrentIndex(source->findData(field.column));
    connect(source, &QComboBox::currentIndexChanged, this, &frmConfEtiqueta::fieldsEdited);
    table->setCellWidget(row, Source, source);

    for (const auto &[column, value] :
         {std::pair(Top, field.top), {Left, field.left}, {Width, field.width}}) {
        auto *length = new QDoubleSpinBox;
        length->setDecimals(1);
        length->setMaximum(column == Top ? labelsheet::labelHeight : labelsheet::labelWidth);
        length->setValue(value);
        length->setSuffix(u" mm"_s);
        connect(length, &QDoubleSpinBox::valueChanged, this, &frmConfEtiqueta::fieldsEdited);
        table->setCellWidget(row, column, length);
    }
    auto *format = new QComboBox;
    format->addItems(labels::formats());
    boxes::choose(format, field.format);
    connect(format, &QComboBox::currentIndexChanged, this, &frmConfEtiqueta::fieldsEdited);
    table->setCellWidget(row, Format, format);
    for (int column = Source; column <= Format; ++column)
        table->cellWidget(row, column)->setAccessibleName(table->horizontalHeaderItem(column)->text());
}

std::vector<LabelField> frmConfEtiqueta::fields() const
{
    std::vector<LabelField> result;
    const QTableWidget *table = m_ui->tblcampos;
    for (int row = 0; row < table->rowCount(); ++row) {
        const auto box = [&](int column) { return static_cast<QComboBox *>(table->cellWidget(row, column)); };
        const auto length = [&](int column) {
            return static_cast<QDoubleSpinBox *>(table->cellWidget(row, column))->value();
        };
        result.push_back({box(Source)->currentData().toString(), length(Top), length(Left), length(Width),
                          box(Format)->currentText()});
    }
    return result;
}

void frmConfEtiqueta::fieldsEdited()
{
    m_edited = true;
    m_preview->updatePreview();
}

void frmConfEtiqueta::removeField()
{
    const int row = m_ui->tblcampos->currentRow();
    if (row < 0) {
        messages::information(this, title, u"Selecione um campo na lista."_s);
        return;
    }
    m_ui->tblcampos->removeRow(row);
    fieldsEdited();
}

void frmConfEtiqueta::paintOn(QPagedPaintDevice &device, int maxPages)
{
    const auto pages =
        labels::pages(*openDatabase(), m_query, fields(), m_ui->spninicio->value() - 1, maxPages);
    QPainter painter;
    if (!painter.begin(&device))
        throw Error(Error::Kind::File, u"não foi possível começar a imprimir."_s);
    painter.setWindow(0, 0, int(labelsheet::paperWidth * unit), int(labelsheet::paperHeight * unit));
    if (&device == &m_previewPrinter)
        paintEdges(painter);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0 && !device.newPage())
            throw Error(Error::Kind::File, u"não foi possível começar uma nova página."_s);
        paintPage(painter, pages[i]);
    }
}

bool frmConfEtiqueta::save()
{
    const bool saved =
        messages::guarded(this, messages::savePrefix, [this] { labels::save(*openDatabase(), fields()); });
    if (saved)
        m_edited = false;
    return saved;
}

void frmConfEtiqueta::print()
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setFullPage(true);
    useWholePaper(printer);
    QPrintDialog chooser(&printer, this);
    if (chooser.exec() != QDialog::Accepted)
        return;
    messages::guarded(this, messages::generalPrefix, [&] {
        try {
            paintOn(printer, allPages);
        } catch (const Error &error) {
            if (error.kind() != Error::Kind::File)
                throw;
            exportar::showPrintError(this);
        }
    });
}

void frmConfEtiqueta::savePdf()
{
    const QString path = files::save(this, u"Salvar etiquetas em PDF"_s, u"Arquivos PDF (*.pdf)"_s, u"pdf"_s);
    if (path.isEmpty())
        return;
    messages::guarded(this, messages::generalPrefix, [&] {
        QSaveFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            throw Error(Error::Kind::File, fileError(file));
        QPdfWriter writer(&file);
        useWholePaper(writer);
        writer.setTitle(title);
        paintOn(writer, allPages);
        if (!file.commit())
            throw Error(Error::Kind::File, fileError(file));
    });
}

void frmConfEtiqueta::reject()
{
    if (m_edited && messages::question(this, title, u"Deseja salvar as posições dos campos da etiqueta?"_s) &&
        !save())
        return;
    QDialog::reject();
}
