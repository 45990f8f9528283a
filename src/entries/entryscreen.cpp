#include "entries/entryscreen.h"

#include "data/clock.h"
#include "data/status.h"
#include "entries/entry.h"
#include "widgets/boxes.h"
#include "widgets/dateedit.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QEvent>

using namespace Qt::StringLiterals;

EntryScreen::EntryScreen(const Side &side, QWidget *parent) : Screen(parent), m_side(side)
{
}

void EntryScreen::setUp(const Controls &controls)
{
    m_controls = controls;
    prepare();
    topmost::set(this, u"ativo");
    boxes::offerWhileTyping(controls.description);
    if (controls.status)
        controls.status->addItems(status::words());
    controls.currency->addItems(entry::currencies());
    controls.date->setDate(programclock::today());
    stepBackFor(controls.date);
    connect(controls.cancel, &QAbstractButton::clicked, this, &QDialog::close);
}

bool EntryScreen::fillBoxes()
{
    const bool filled = load([this](Connection &connection) {
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
    const auto concerns = [changed = change.subject](Subject subject) {
        return changed == subject || changed == Subject::Database;
    };
    if (!concerns(Subject::Accounts) && !concerns(m_side.contacts.subject) &&
        !concerns(m_side.centres.subject) && !concerns(Subject::Products))
        return;
    load([&](Connection &connection) {
        if (concerns(Subject::Accounts))
            boxes::refillTakingNew(m_controls.account, entry::accountNames(connection));
        if (concerns(m_side.contacts.subject))
            boxes::refillTakingNew(m_controls.contact,
                                   entry::names(connection, m_side.contactQuery, u"nome"));
        if (concerns(m_side.centres.subject))
            boxes::refillTakingNew(m_controls.description,
                                   entry::names(connection, m_side.centreQuery, u"descricao"));
        if (concerns(Subject::Products) && m_controls.product)
            boxes::refill(m_controls.product, entry::productNames(connection));
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
