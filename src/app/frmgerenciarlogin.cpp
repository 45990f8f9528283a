#include "app/frmgerenciarlogin.h"
#include "ui_frmgerenciarlogin.h"

#include "data/changes.h"
#include "widgets/messages.h"

#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Login"_s;

} // namespace

frmGerenciarLogin::frmGerenciarLogin(QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmGerenciarLogin>())
{
    m_ui->setupUi(this);
    prepare();
    connect(m_ui->lstusuarios, &QListWidget::currentRowChanged, this, &frmGerenciarLogin::showUser);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmGerenciarLogin::add);
    connect(m_ui->cmdatualizar, &QPushButton::clicked, this, &frmGerenciarLogin::update);
    connect(m_ui->cdmremover, &QPushButton::clicked, this, &frmGerenciarLogin::remove);
    connect(m_ui->chkusuario, &QCheckBox::toggled, this, &frmGerenciarLogin::setRequired);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == Subject::Database)
            reload();
    });
}

frmGerenciarLogin::~frmGerenciarLogin() = default;

frmGerenciarLogin *frmGerenciarLogin::open(QWidget *parent)
{
    if (auto *screen = raised<frmGerenciarLogin>(parent, u"frmGerenciarLogin"_s))
        return screen;
    auto screen = std::unique_ptr<frmGerenciarLogin>(new frmGerenciarLogin(parent));
    return screen->reload() ? shown(std::move(screen)) : nullptr;
}

bool frmGerenciarLogin::reload()
{
    const bool read = loadForChange([this](Connection &connection) {
        const QStringList names = users::names(connection);
        const bool required = users::isLoginRequired(connection);
        const QSignalBlocker quietBox(m_ui->chkusuario), quietList(m_ui->lstusuarios);
        m_ui->lstusuarios->clear();
        m_ui->lstusuarios->addItems(names);
        m_ui->chkusuario->setChecked(required);
    });
    showUser();
    return read;
}

void frmGerenciarLogin::showUser()
{
    std::optional<users::User> user;
    if (const QListWidgetItem *item = m_ui->lstusuarios->currentItem())
        load([&](Connection &connection) { user = users::find(connection, item->text()); });
    m_selected = user ? user->code : 0;
    m_ui->txtusuario->setText(user ? user->name : QString());
    m_ui->txtsenha->setText(user ? user->password : QString());
    m_ui->cmdatualizar->setEnabled(user.has_value());
    m_ui->cdmremover->setEnabled(user.has_value());
}

bool frmGerenciarLogin::isTypedWell()
{
    const QString name = m_ui->txtusuario->text(), password = m_ui->txtsenha->text();
    if (name.isEmpty() || password.isEmpty())
        messages::exclamation(this, title, u"O campo nome de usuário e senha não podem estar vazios!"_s);
    else if (users::hasForbidden(name) || users::hasForbidden(password))
        messages::exclamation(this, title, u"Os seguintes caractes não são permitidos: '=%-#;"_s);
    else
        return true;
    return false;
}

bool frmGerenciarLogin::change(const std::function<void(Connection &)> &work)
{
    const bool changed = write(messages::generalPrefix, work);
    if (changed)
        reload();
    return changed;
}

void frmGerenciarLogin::add()
{
    const QString name = m_ui->txtusuario->text(), password = m_ui->txtsenha->text();
    if (isTypedWell() && change([&](Connection &connection) { users::add(connection, name, password); }))
        m_ui->txtusuario->setFocus();
}

void frmGerenciarLogin::update()
{
    const users::User user{m_selected, m_ui->txtusuario->text(), m_ui->txtsenha->text()};
    if (isTypedWell() && change([&](Connection &connection) { users::update(connection, user); }))
        messages::information(this, title, u"Dados atualizados com sucesso!"_s);
}

void frmGerenciarLogin::remove()
{
    const QString name = m_ui->lstusuarios->currentItem()->text();
    if (!messages::question(this, title,
                            u"tem certeza que deseja remover "_s + name +
                                u" e todos os seus produtos do banco de dados?"_s))
        return;
    bool removed = true;
    change([&](Connection &connection) { removed = users::remove(connection, name); });
    if (!removed)
        messages::critical(this, u"Erro"_s,
                           u"Não é possível remover este usuário, o sistema não pode ficar sem usuários!"_s);
}

void frmGerenciarLogin::setRequired(bool required)
{
    if (!change([required](Connection &connection) { users::setLoginRequired(connection, required); })) {
        const QSignalBlocker quiet(m_ui->chkusuario);
        m_ui->chkusuario->setChecked(!required);
    }
}
