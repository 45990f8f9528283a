#include "stock/frmconfetiqueta.h"
#include "ui_frmconfetiqueta.h"

#include "settings/database.h"
#include "stock/labelcommands.h"
#include "widgets/background.h"
#include "widgets/boxes.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QPageLayout>
#include <QPrintPreviewWidget>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

enum FieldColumn { Source, Top, Left, Width, Format };

constexpr int allPages = std::numeric_limits<int>::max();
const QString title = u"Etiquetas"_s;

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
    m_previewPrinter.setPageLayout(labelcommands::paper());
    m_ui->spninicio->setMaximum(labelsheet::labelsPerPage);

    connect(m_preview, &QPrintPreviewWidget::paintRequested, this, &frmConfEtiqueta::paintPreview);
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

std::vector<std::vector<LabelText>> frmConfEtiqueta::sheets(int maxPages) const
{
    return labels::pages(*openDatabase(), m_query, fields(), m_ui->spninicio->value() - 1, maxPages);
}

void frmConfEtiqueta::paintPreview()
{
    messages::guarded(this, messages::generalPrefix,
                      [this] { labelcommands::preview(m_previewPrinter, sheets(1)); });
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
    messages::guarded(this, messages::generalPrefix,
                      [this] { labelcommands::print(this, sheets(allPages)); });
}

void frmConfEtiqueta::savePdf()
{
    messages::guarded(this, messages::generalPrefix,
                      [this] { labelcommands::savePdf(this, sheets(allPages)); });
}

void frmConfEtiqueta::reject()
{
    if (m_edited && messages::question(this, title, u"Deseja salvar as posições dos campos da etiqueta?"_s) &&
        !save())
        return;
    QDialog::reject();
}
