#include "entries/frmcadregular.h"
#include "ui_frmcadregular.h"

#include "data/clock.h"
#include "data/dates.h"
#include "settings/database.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

const QString regularTitle = u"Contas regulares"_s;

} // namespace

frmCadRegular::frmCadRegular(const Side &side, qint64 code, QWidget *parent)
    : EntryScreen(side, parent), m_ui(std::make_unique<Ui::frmCadRegular>()), m_code(code)
{
    m_ui->setupUi(this);
    setUp({nullptr, m_ui->cboorigem, m_ui->cbotipo, m_ui->txtdescricao, m_ui->cbomoeda, nullptr,
           m_ui->txtproximo, m_ui->cmdcancelar});
    setWindowTitle((code == 0 ? u"Nova "_s : u"Alterar "_s) +
                   (&side == &payable() ? u"despesa regular"_s : u"receita regular"_s));
    m_ui->lbldescricao->setText(side.installmentsDescriptionLabel);
    m_ui->lblnome->setText(side.contactLabel);
    m_ui->cboritmo->addItems(regular::rhythms());
    m_ui->cboritmo->setCurrentIndex(int(Rhythm::Monthly));
    stepBackFor(m_ui->txtfim);
    connect(m_ui->cmdsalvar, &QPushButton::clicked, this, &frmCadRegular::save);
}

frmCadRegular::~frmCadRegular() = default;

frmCadRegular *frmCadRegular::openNew(const Side &side, QWidget *parent)
{
    auto screen = std::unique_ptr<frmCadRegular>(new frmCadRegular(side, 0, parent));
    return screen->fillBoxes() ? shown(std::move(screen)) : nullptr;
}

frmCadRegular *frmCadRegular::openEdit(qint64 code, QWidget *parent, quint64 listed)
{
    std::optional<RegularForm> rule;
    if (!messages::guarded(parent, messages::openPrefix,
                           [&] { rule = regular::load(*openDatabase(listed), code); }))
        return nullptr;
    auto screen =
        std::unique_ptr<frmCadRegular>(new frmCadRegular(rule ? *rule->side : payable(), code, parent));
    if (!screen->fillBoxes() ||
        !screen->loadRow(listed, regularTitle, u"Esta conta regular não existe mais."_s,
                         [&](Connection &connection) {
                             rule = regular::load(connection, code);
                             return rule.has_value();
                         }))
        return nullptr;
    screen->fill(*rule);
    return shown(std::move(screen));
}

void frmCadRegular::fill(const RegularForm &form)
{
    const auto choose = [](QComboBox *box, const QString &text) {
        if (box->findText(text) < 0)
            box->addItem(text);
        box->setCurrentText(text);
    };
    choose(m_ui->txtdescricao, form.description);
    choose(m_ui->cbotipo, form.contact);
    choose(m_ui->cboorigem, form.account);
    choose(m_ui->cbomoeda, form.currency);
    m_ui->txtvalor->setText(form.value);
    m_ui->txtdocumento->setText(form.document);
    m_ui->txtinfo->setText(form.notes.trimmed());
    m_ui->cboritmo->setCurrentIndex(int(form.rhythm));
    m_ui->txtproximo->setDate(dates::read(form.next));
    m_ui->txtfim->setDate(dates::read(form.until));
    m_ui->txtvezes->setText(form.times);
    m_ui->txtadiante->setText(form.ahead);
}

RegularForm frmCadRegular::form() const
{
    return {.side = &m_side,
            .account = m_ui->cboorigem->currentText(),
            .contact = m_ui->cbotipo->currentText(),
            .description = m_ui->txtdescricao->currentText(),
            .document = m_ui->txtdocumento->text(),
            .notes = m_ui->txtinfo->text(),
            .value = m_ui->txtvalor->text(),
            .currency = m_ui->cbomoeda->currentText(),
            .rhythm = Rhythm(m_ui->cboritmo->currentIndex()),
            .next = m_ui->txtproximo->dateText(),
            .until = m_ui->txtfim->dateText(),
            .times = m_ui->txtvezes->text(),
            .ahead = m_ui->txtadiante->text()};
}

void frmCadRegular::save()
{
    const RegularForm typed = form();
    const QDate today = programclock::today();
    if (refuseBlank(regular::blankFields(typed)))
        return;
    if (const auto problem = regular::problem(typed, today)) {
        messages::exclamation(this, u"Erro"_s, *problem);
        return;
    }
    std::optional<QDate> from;
    int pending = 0;
    if (m_code != 0 &&
        !load([&](Connection &connection) { pending = regular::pendingFrom(connection, m_code, today); }))
        return;
    if (pending > 0 &&
        messages::question(
            this, regularTitle,
            u"Alterar também as contas pendentes já lançadas por esta regra, de hoje em diante (%1)?"_s.arg(
                pending)))
        from = today;
    saveAndClose([&](Connection &connection) {
        regular::save(connection, m_code, typed, from);
        regular::post(connection, today);
    });
}
