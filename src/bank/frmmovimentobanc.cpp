#include "bank/frmmovimentobanc.h"
#include "ui_frmmovimentobanc.h"

#include "data/changes.h"
#include "data/clock.h"
#include "data/status.h"
#include "widgets/boxes.h"
#include "widgets/messages.h"
#include "widgets/notes.h"

using namespace Qt::StringLiterals;

frmmovimentobanc::frmmovimentobanc(const MovementScreen &screen, QWidget *parent)
    : Screen(parent), m_ui(std::make_unique<Ui::frmmovimentobanc>()), m_screen(screen)
{
    m_ui->setupUi(this);
    prepare();
    setObjectName(screen.name);
    setWindowTitle(screen.caption);
    m_ui->cmdadicionar->setObjectName(screen.saveName);
    m_ui->cmdadicionar->setText(screen.saveCaption);

    m_ui->txtvalor->setPrefix(u"R$ "_s);
    m_ui->txtdata->setDate(programclock::today());
    for (QComboBox *box : {m_ui->cbomovimento, m_ui->cboorigem, m_ui->cbodestino})
        box->setCompleter(nullptr); // what is typed is stored as it stands
    m_ui->cbomovimento->addItems(movement::kinds());
    m_ui->cboestatus->addItems(status::words());
    kindChosen();

    connect(m_ui->cbomovimento, &QComboBox::currentTextChanged, this, &frmmovimentobanc::kindChosen);
    connect(m_ui->cmdadicionar, &QPushButton::clicked, this, &frmmovimentobanc::save);
    connect(m_ui->cmdcancelar, &QPushButton::clicked, this, &QDialog::close);
    connect(&Changes::instance(), &Changes::changed, this, [this](const Change &change) {
        if (change.subject == Subject::Accounts || change.subject == Subject::Database)
            fillAccounts();
    });
}

frmmovimentobanc::~frmmovimentobanc() = default;

frmmovimentobanc *frmmovimentobanc::openNew(QWidget *parent)
{
    auto screen = std::unique_ptr<frmmovimentobanc>(new frmmovimentobanc(movement::newScreen(), parent));
    if (!screen->fillAccounts())
        return nullptr;
    for (QComboBox *box : {screen->m_ui->cboorigem, screen->m_ui->cbodestino})
        box->setCurrentIndex(box->count() - 1);
    return shown(std::move(screen));
}

frmmovimentobanc *frmmovimentobanc::openEdit(qint64 code, QWidget *parent, quint64 listed)
{
    const MovementScreen &values = movement::editScreen();
    auto screen = std::unique_ptr<frmmovimentobanc>(new frmmovimentobanc(values, parent));
    std::optional<MovementForm> form;
    const bool found = screen->loadRow(listed, values.caption, u"Este movimento não existe mais."_s,
                                       [&](Connection &connection) {
                                           form = movement::load(connection, code);
                                           return form.has_value();
                                       });
    if (!found || !screen->fillAccounts())
        return nullptr;
    screen->m_code = code;
    screen->showForm(*form);
    return shown(std::move(screen));
}

bool frmmovimentobanc::fillAccounts()
{
    return load([this](Connection &connection) {
        const QStringList names = movement::accountNames(connection, m_screen);
        boxes::refill(m_ui->cboorigem, names);
        boxes::refill(m_ui->cbodestino, names);
    });
}

void frmmovimentobanc::kindChosen()
{
    const bool hasDestination = movement::takesDestination(m_ui->cbomovimento->currentText());
    m_ui->lbldestino->setEnabled(hasDestination);
    m_ui->cbodestino->setEnabled(hasDestination);
}

void frmmovimentobanc::showForm(const MovementForm &form)
{
    m_ui->txtdata->setText(form.date);
    m_ui->txtvalor->setText(form.value);
    m_ui->cbomovimento->setCurrentText(form.kind);
    m_ui->cboorigem->setCurrentText(form.origin);
    m_ui->cbodestino->setCurrentText(form.destination);
    boxes::choose(m_ui->cboestatus, form.status);
    notes::show(m_ui->txtinfo, form.notes.trimmed());
}

MovementForm frmmovimentobanc::form() const
{
    return {
        .date = m_ui->txtdata->dateText(),
        .value = m_ui->txtvalor->text(),
        .kind = m_ui->cbomovimento->currentText(),
        .origin = m_ui->cboorigem->currentText(),
        .destination = m_ui->cbodestino->currentText(),
        .status = m_ui->cboestatus->currentText(),
        .notes = notes::text(m_ui->txtinfo),
    };
}

void frmmovimentobanc::save()
{
    const MovementForm typed = form();
    if (const auto problem = movement::problem(m_screen, typed)) {
        m_ui->cmdadicionar->setEnabled(false);
        messages::exclamation(this, u"Erro"_s, *problem);
        m_ui->cmdadicionar->setEnabled(true);
        m_ui->cmdadicionar->setFocus(); // a disabled button had to give it away
        return;
    }
    saveAndClose([&](Connection &connection) {
        if (m_code == 0)
            movement::add(connection, typed);
        else
            movement::change(connection, m_code, typed);
    });
}
