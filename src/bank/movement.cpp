#include "bank/movement.h"

#include "data/dates.h"
#include "data/formtext.h"
#include "data/rows.h"

using namespace Qt::StringLiterals;

namespace {

const QString noOrigin = u"-"_s;
const QString noDestination = u" - "_s;

QString fromByCode(qint64 code)
{
    return u"FROM bancario where(código like '"_s + QString::number(code) + u"')"_s;
}

QString selectByCode(qint64 code)
{
    return u"SELECT * "_s + fromByCode(code);
}

/// The error about a movement that another installation has removed.
Error gone()
{
    return {Error::Kind::Data, u"este movimento não existe mais; ele foi removido por outro usuário."_s};
}

void writeColumns(Recordset &row, const MovementForm &form)
{
    row.set(u"estatus", form.status);
    row.set(u"origem", form.origin.isEmpty() ? noOrigin : form.origin);
    row.set(u"destino", movement::storedDestination(form));
    row.set(u"data", formtext::storedDate(u"Data"_s, form.date));
    row.set(u"movimento", form.kind);
    row.set(u"informacoes", formtext::freeText(form.notes));
    row.set(u"valor", formtext::amount(u"Valor"_s, form.value).grouped());
}

} // namespace

namespace movement {

const MovementScreen &newScreen()
{
    static const MovementScreen screen{
        .name = u"frmmovimentobanc"_s,
        .caption = u"Cadastrar movimento bancário"_s,
        .saveName = u"cmdadicionar"_s,
        .saveCaption = u"&Adicionar"_s,
        .accountsQuery = u"select * from banco"_s,
        .missingValue = u"O campo valor deve preenchido!"_s,
        .missingDate = u"O campo data deve preenchido!"_s,
    };
    return screen;
}

const MovementScreen &editScreen()
{
    static const MovementScreen screen{
        .name = u"frmeditarbancario"_s,
        .caption = u"Editar movimento bancário"_s,
        .saveName = u"cmdeditar"_s,
        .saveCaption = u"&Editar"_s,
        .accountsQuery = u"select * from banco order by banco"_s,
        .missingValue = u"O campo valor deve ser preenchido!"_s,
        .missingDate = u"O campo data deve ser preenchido!"_s,
    };
    return screen;
}

QStringList kinds()
{
    return {deposit.toString(), withdrawal.toString(), transfer.toString()};
}

bool takesDestination(const QString &kind)
{
    return kind.toLower() == transfer.toString().toLower();
}

QString storedDestination(const MovementForm &form)
{
    return form.kind == transfer ? form.destination : noDestination;
}

QStringList accountNames(Connection &connection, const MovementScreen &screen)
{
    QStringList names;
    for (Recordset rows(connection, screen.accountsQuery); rows.next();)
        names << rows.text(u"banco");
    return names;
}

std::optional<QString> problem(const MovementScreen &screen, const MovementForm &form)
{
    if (form.value.trimmed().isEmpty())
        return screen.missingValue;
    if (form.date.trimmed().isEmpty())
        return screen.missingDate;
    return std::nullopt;
}

void add(Connection &connection, const MovementForm &form)
{
    Transaction transaction(connection);
    Recordset row(connection, u"bancario"_s);
    row.addNew();
    writeColumns(row, form);
    transaction.note(Subject::Movements, row.update());
    transaction.commit();
}

void change(Connection &connection, qint64 code, const MovementForm &form)
{
    Transaction transaction(connection);
    Recordset row(connection, selectByCode(code));
    if (!row.next())
        throw gone();
    writeColumns(row, form);
    transaction.note(Subject::Movements, row.update());
    transaction.commit();
}

std::optional<MovementForm> load(Connection &connection, qint64 code)
{
    Recordset row(connection, selectByCode(code));
    if (!row.next())
        return std::nullopt;
    return MovementForm{
        .date = dates::shownFromStored(row.text(u"data")),
        .value = Money::stored(row.text(u"valor")).inReais(),
        .kind = row.text(u"movimento"),
        .origin = row.text(u"origem"),
        .destination = row.text(u"destino"),
        .status = row.text(u"estatus"),
        .notes = row.text(u"informacoes"),
    };
}

void remove(Connection &connection, const std::vector<qint64> &codes)
{
    Transaction transaction(connection);
    for (const qint64 code : codes)
        if (!rows::remove(connection, transaction, Subject::Movements, fromByCode(code)))
            throw gone();
    transaction.commit();
}

} // namespace movement
