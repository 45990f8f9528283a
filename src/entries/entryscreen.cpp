#include "entries/entryscreen.h"

#include "data/clock.h"
#include "data/status.h"
#include "entries/entry.h"
#include "settings/database.h"
#include "widgets/background.h"
#include "widgets/boxes.h"
#include "widgets/dateedit.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QCompleter>
#include <QEvent>

using namespace Qt::StringLiterals;

EntryScreen::EntryScreen(const Side &side, QWidget *parent) : QDialog(parent), m_side(side)
{
    setAttribute(Qt::WA_DeleteOnClose);
}

void EntryScreen::setUp(const Controls &controls)
{
    m_controls = controls;
    background::apply(this);
    formkeys::enterMovesOn(this);
    topmost::set(this, u"ativo");
    // offers names, but adds nothing to what is typed
    controls.description->completer()->setCompletionMode(QCompleter::PopupCompletion);
    controls.status->addItems(status::words());
    controls.currency->addItems(entry::currencies());
    controls.date->setDate(programclock::today());
    stepBackFor(controls.date);
    connect(controls.cancel, &QAbstractButton::clicked, this, &QDialog::close);
}

bool EntryScreen::fillBoxes()
{
    const bool filled = messages::guarded(parentWidget(), messages::generalPrefix, [this] {
        const std::shared_ptr<Connection> database = openDatabase();
        Connection &connection = *database;
        boxes::refill(m_controls.account, entry::accountNames(connection));
        boxes::refill(m_controls.contact, entry::names(connection, m_side.contactQuery, u"nome"));
        boxes::refill(m_controls.description, entry::names(connection, m_side.centreQuery, u"descricao"));
        if (m_controls.product) {
            boxes::refill(m_controls.product, entry::productNames(connection));
            m_controls.product->setCurrentIndex(0);
        }
    });
    m_controls.account->setCurrentIndex(m_controls.account->count() > 0 ? 0 : -1);
    connect(&Changes::instance(), &Changes::changed, this, &EntryScreen::refill);
    return filled;
}

void EntryScreen::refill(const Change &change)
{
    const Subject subject = change.subject;
    messages::guarded(this, messages::generalPrefix, [&] {
        if (subject == Subject::Accounts)
            boxes::refillTakingNew(m_controls.account, entry::accountNames(*openDatabase()));
        else if (subject == m_side.contacts.subject)
            boxes::refillTakingNew(m_controls.contact,
                                   entry::names(*openDatabase(), m_side.contactQuery, u"nome"));
        else if (subject == m_side.centres.subject)
            boxes::refillTakingNew(m_controls.description,
                                   entry::names(*openDatabase(), m_side.centreQuery, u"descricao"));
        else if (subject == Subject::Products && m_controls.product)
            boxes::refill(m_controls.product, entry::productNames(*openDatabase()));
    });
}

bool EntryScreen::refuseBlank(const QStringList &fields)
{
    if (!fields.isEmpty())
        messages::exclamation(this, u"Erro"_s,
                              u"Os seguintes dados estão em branco: \n"_s + fields.join(u'\n'));
    return !fields.isEmpty();
}

void EntryScreen::stepBackFor(DateEdit *field)
{
    connect(field, &DateEdit::calendarOpening, this, [this] { topmost::set(this, u"desativo"); });
    connect(field, &DateEdit::calendarClosed, this, [this] { topmost::set(this, u"ativo"); });
}

void EntryScreen::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        topmost::set(this, u"ativo");
}
