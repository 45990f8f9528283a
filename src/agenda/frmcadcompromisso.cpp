#include "agenda/frmcadcompromisso.h"
#include "ui_frmcadcompromisso.h"

#include "agenda/appointments.h"
#include "data/clock.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

const QString addCaption = u"&Adicionar compromisso"_s;
const QString editCaption = u"&Editar compromisso"_s;

} // namespace

frmCadCompromisso::frmCadCompromisso(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmCadCompromisso>())
{
    m_ui->setupUi(this);
    prepare();
    topmost::set(this, u"ativo");
    // The drop-down calendar is a window that must come above this one.
    connect(m_ui->cbodata, &DateEdit::calendarOpening, this, [this] { topmost::set(this, u"desativo"); });
    connect(m_ui->cbodata, &DateEdit::calendarClosed, this, [this] { topmost::set(this, u"ativo"); });
    connect(m_ui->cmdok, &QPushButton::clicked, this, &frmCadCompromisso::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
}

frmCadCompromisso::~frmCadCompromisso() = default;

frmCadCompromisso *frmCadCompromisso::openNew(QWidget *parent, QDate date)
{
    auto screen = std::unique_ptr<frmCadCompromisso>(new frmCadCompromisso(parent));
    screen->m_ui->cbodata->setDate(date.isValid() ? date : programclock::today());
    return shown(std::move(screen));
}

frmCadCompromisso *frmCadCompromisso::openEdit(const QString &title, QWidget *parent, quint64 listed)
{
    auto screen = std::unique_ptr<frmCadCompromisso>(new frmCadCompromisso(parent));
    Ui::frmCadCompromisso &ui = *screen->m_ui;
    std::optional<Appointment> found;
    if (!screen->loadRow(listed, u"Compromissos"_s, u"Este compromisso não existe mais."_s,
                         [&](Connection &connection) {
                             found = appointments::find(connection, title);
                             return found.has_value();
                         }))
        return nullptr;
    screen->setWindowTitle(u"Editar compromisso"_s);
    ui.cmdok->setText(editCaption);
    ui.cbodata->setText(found->date);
    ui.txthora->setText(found->time);
    ui.txttitulo->setText(found->title);
    ui.txttitulo->setReadOnly(true);
    ui.txttitulo->setToolTip(u"O título identifica o compromisso e não pode ser alterado."_s);
    ui.txtlocal->setText(found->place);
    ui.txtdescricao->setPlainText(found->description);
    return shown(std::move(screen));
}

void frmCadCompromisso::save()
{
    const Appointment typed{m_ui->cbodata->dateText(), m_ui->txthora->text(), m_ui->txttitulo->text(),
                            m_ui->txtlocal->text(), m_ui->txtdescricao->toPlainText()};
    const bool isNew = m_ui->cmdok->text().compare(addCaption, Qt::CaseInsensitive) == 0;
    saveAndClose([&](Connection &connection) {
        isNew ? appointments::add(connection, typed) : appointments::change(connection, typed);
    });
}
