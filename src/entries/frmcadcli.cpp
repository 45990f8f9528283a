#include "entries/frmcadcli.h"
#include "ui_frmcadcli.h"

#include "widgets/boxes.h"
#include "widgets/files.h"
#include "widgets/messages.h"
#include "widgets/notes.h"

using namespace Qt::StringLiterals;

frmCadCli::frmCadCli(const ContactSide &side, const QString &code, const QString &caption, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmCadCli>()), m_side(side), m_code(code)
{
    m_ui->setupUi(this);
    setObjectName(side.recordName);
    setWindowTitle(caption);
    prepare();
    for (QComboBox *box : {m_ui->txtpais, m_ui->txtestado, m_ui->txtcidade, m_ui->txtbairro})
        boxes::offerWhileTyping(box);
    connect(m_ui->optcpf, &QRadioButton::toggled, this, &frmCadCli::showKind);
    connect(m_ui->img1, &PictureBox::clicked, this, &frmCadCli::choosePicture);
    connect(m_ui->cmdsemimagem, &QToolButton::clicked, this, [this] { showPicture(QString()); });
    connect(m_ui->cmdok, &QPushButton::clicked, this, &frmCadCli::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
    showKind(true);
    showPicture(QString());
}

frmCadCli::~frmCadCli() = default;

frmCadCli *frmCadCli::openNew(const ContactSide &side, const QString &caption, QWidget *parent)
{
    auto dialog = std::unique_ptr<frmCadCli>(new frmCadCli(side, QString(), caption, parent));
    dialog->refillSuggestions();
    return shown(std::move(dialog));
}

frmCadCli *frmCadCli::openEdit(const ContactSide &side, const QString &code, QWidget *parent, quint64 listed)
{
    auto dialog = std::unique_ptr<frmCadCli>(new frmCadCli(side, code, side.editCaption, parent));
    std::optional<ContactForm> form;
    if (!dialog->loadRow(listed, side.editCaption, side.goneMessage, [&](Connection &connection) {
            form = contact::load(connection, side, code);
            return form.has_value();
        }))
        return nullptr;
    dialog->refillSuggestions();
    dialog->showForm(*form);
    return shown(std::move(dialog));
}

void frmCadCli::refillSuggestions()
{
    load([this](Connection &connection) {
        boxes::refill(m_ui->txtestado, contact::used(connection, m_side, u"estado"_s));
        boxes::refill(m_ui->txtcidade, contact::used(connection, m_side, u"cidade"_s));
        boxes::refill(m_ui->txtbairro, contact::used(connection, m_side, u"bairro"_s));
        boxes::refill(m_ui->txtpais, contact::used(connection, m_side, u"pais"_s));
    });
}

void frmCadCli::showKind(bool isPerson)
{
    m_ui->lblcpf->setText(isPerson ? u"C&PF:"_s : u"CN&PJ:"_s);
}

void frmCadCli::showPicture(const QString &path)
{
    m_ui->lbllocal->setText(path);
    m_ui->lbllocal->setToolTip(path);
    m_ui->img1->setFile(path);
    m_ui->cmdsemimagem->setEnabled(!path.isEmpty());
}

void frmCadCli::choosePicture()
{
    const QString path =
        files::open(this, u"Carregar imagem do contato"_s, u"Arquivos de imagens (*.bmp *.jpg *.gif)"_s);
    if (!path.isEmpty())
        showPicture(path);
}

void frmCadCli::showForm(const ContactForm &form)
{
    (form.isPerson ? m_ui->optcpf : m_ui->optcnpj)->setChecked(true);
    m_ui->txtnome->setText(form.name);
    m_ui->txtcpf->setText(form.taxNumber);
    m_ui->cbonascimento->setText(form.birth);
    m_ui->txtpais->setCurrentText(form.country);
    m_ui->txtestado->setCurrentText(form.state);
    m_ui->txtcidade->setCurrentText(form.city);
    m_ui->txtbairro->setCurrentText(form.district);
    m_ui->txtendereco->setText(form.address);
    m_ui->txttel->setText(form.phone);
    m_ui->txttel2->setText(form.phone2);
    m_ui->txtcel->setText(form.mobile);
    m_ui->txtsite->setText(form.site);
    m_ui->txtemail->setText(form.email);
    m_ui->txtinsc->setText(form.registration);
    showPicture(form.picture);
    notes::show(m_ui->txtadicionais, form.notes);
}

ContactForm frmCadCli::form() const
{
    return {
        .name = m_ui->txtnome->text(),
        .taxNumber = m_ui->txtcpf->text(),
        .birth = m_ui->cbonascimento->dateText(),
        .country = m_ui->txtpais->currentText(),
        .state = m_ui->txtestado->currentText(),
        .city = m_ui->txtcidade->currentText(),
        .district = m_ui->txtbairro->currentText(),
        .address = m_ui->txtendereco->text(),
        .phone = m_ui->txttel->text(),
        .phone2 = m_ui->txttel2->text(),
        .mobile = m_ui->txtcel->text(),
        .site = m_ui->txtsite->text(),
        .email = m_ui->txtemail->text(),
        .registration = m_ui->txtinsc->text(),
        .picture = m_ui->lbllocal->text(),
        .notes = notes::text(m_ui->txtadicionais),
        .isPerson = m_ui->optcpf->isChecked(),
    };
}

void frmCadCli::save()
{
    const ContactForm typed = form();
    if (typed.name.trimmed().isEmpty()) {
        messages::exclamation(this, u"Erro"_s, m_side.nameMissing);
        m_ui->txtnome->setFocus();
        return;
    }
    saveAndClose([&](Connection &connection) { contact::save(connection, m_side, typed, m_code); });
}
