#include "entries/contact.h"

#include "data/dates.h"
#include "data/formtext.h"
#include "data/like.h"
#include "data/literal.h"
#include "data/rows.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Where the contact columns that hold plain text are kept in a form, in the order in which they are stored.
struct TextColumn
{
    QStringView column;
    QString ContactForm::*field;
};

constexpr std::array textColumns{
    TextColumn{u"pais", &ContactForm::country},      TextColumn{u"estado", &ContactForm::state},
    TextColumn{u"cidade", &ContactForm::city},       TextColumn{u"bairro", &ContactForm::district},
    TextColumn{u"endereco", &ContactForm::address},  TextColumn{u"tel", &ContactForm::phone},
    TextColumn{u"tel2", &ContactForm::phone2},       TextColumn{u"cel", &ContactForm::mobile},
    TextColumn{u"site", &ContactForm::site},         TextColumn{u"email", &ContactForm::email},
    TextColumn{u"insc", &ContactForm::registration},
};

/// A choice of the sort and filter boxes and the column it stands for.
struct Choice
{
    QString text;
    QString column;
    bool sorts = true;
};

std::vector<Choice> choices(const ContactSide &side)
{
    return {
        {side.nameChoice, u"nome"_s}, {u"data de nascimento"_s, u"nascimento"_s, false},
        {u"país"_s, u"pais"_s},       {u"estado"_s, u"estado"_s},
        {u"cidade"_s, u"cidade"_s},   {u"bairro"_s, u"bairro"_s},
        {u"cep"_s, u"endereco"_s}, // people write the postal code behind the street
        {u"cpf/cnpj"_s, u"cpf"_s},    {u"telefone"_s, u"tel"_s},
    };
}

QString columnOf(const ContactSide &side, const QString &choice)
{
    for (const Choice &known : choices(side))
        if (known.text == choice.toLower())
            return known.column;
    return u"nome"_s;
}

/// "10/12" as the store has it: "12/10", and "10/12/19", of which the year is not complete, as "19%/12/10".
/// Text that begins with a year is in the store's order already.
QString storedOrder(const QString &shownDate)
{
    QStringList parts = shownDate.split(u'/');
    if (parts.first().size() < 4)
        std::ranges::reverse(parts);
    if (parts.size() == 3 && parts.first().size() < 4)
        parts.first() += u'%';
    return parts.join(u'/');
}

QString orderBy(const ContactSide &side, const ContactFilter &filter)
{
    const QString direction = filter.direction.toLower() == u"decrescente" ? u"DESC"_s : u"ASC"_s;
    return columnOf(side, filter.sortBy) + u"] "_s + direction + u", [nome] ASC"_s;
}

QString fromByCode(const ContactSide &side, const QString &code)
{
    return u"FROM "_s + side.table + u" where(código like "_s + sql::literal(code) + u")"_s;
}

QString byCode(const ContactSide &side, const QString &code)
{
    return u"SELECT * "_s + fromByCode(side, code);
}

/// The error about a contact that another installation has removed.
Error gone()
{
    return {Error::Kind::Data, u"este cadastro não existe mais; ele foi removido por outro usuário."_s};
}

QString storedBirth(const QString &text)
{
    return text.trimmed().isEmpty() ? QString() : formtext::storedDate(u"Nascimento"_s, text);
}

void writeColumns(Recordset &row, const ContactForm &form)
{
    row.set(u"nome", form.name.trimmed());
    row.set(u"cpf", form.taxNumber.trimmed());
    row.set(u"nascimento", storedBirth(form.birth));
    for (const TextColumn &text : textColumns)
        row.set(text.column, (form.*text.field).trimmed());
    row.set(u"local", form.picture);
    row.set(u"adicionais", form.notes);
    row.set(u"tipo", form.isPerson ? u"f"_s : u"j"_s);
}

void writeKind(std::span<const std::string_view> values, std::string &out)
{
    out = values[0] == "f" ? "Pessoa Física" : "Pessoa Jurídica";
}

} // namespace

namespace contact {

QStringList sortChoices(const ContactSide &side)
{
    QStringList texts;
    for (const Choice &choice : choices(side))
        if (choice.sorts)
            texts << choice.text;
    return texts;
}

QStringList filterChoices(const ContactSide &side)
{
    QStringList texts;
    for (const Choice &choice : choices(side))
        texts << choice.text;
    return texts;
}

QStringList directionChoices()
{
    return {u"crescente"_s, u"decrescente"_s};
}

QString query(const ContactSide &side, const ContactFilter &filter)
{
    if (filter.text.isEmpty())
        return u"SELECT * FROM ["_s + side.table + u"] ORDER BY ["_s + orderBy(side, filter);
    const QString column = columnOf(side, filter.field);
    const QString text = column == u"nascimento" ? storedOrder(filter.text) : filter.text;
    return u"select * from ["_s + side.table + u"] where ("_s + column + u" like "_s + sql::containing(text) +
           u") order by ["_s + orderBy(side, filter);
}

QString heading(const ContactSide &side, const ContactFilter &filter)
{
    return filter.text.isEmpty() ? side.allHeading
                                 : u"Filtrando dados por "_s + filter.field + u" - "_s + filter.text;
}

std::vector<ListColumn> columns(const ContactSide &side)
{
    return {{u"código"_s, u"Código"_s, CellKind::Number, 0},
            {u"nome"_s, side.nameTitle, CellKind::Text, 220},
            {u"tipo"_s, u"Tipo"_s, CellKind::Text, 110, {u"tipo"_s}, writeKind},
            {u"cpf"_s, u"CPF/CNPJ"_s, CellKind::Text, 140},
            {u"nascimento"_s, u"Nascimento"_s, CellKind::Date, 95},
            {u"pais"_s, u"País"_s, CellKind::Text, 70},
            {u"estado"_s, u"Estado"_s, CellKind::Text, 70},
            {u"cidade"_s, u"Cidade"_s, CellKind::Text, 130},
            {u"bairro"_s, u"Bairro"_s, CellKind::Text, 130},
            {u"endereco"_s, u"Endereço"_s, CellKind::Text, 200},
            {u"tel"_s, u"Telefone"_s, CellKind::Text, 120},
            {u"tel2"_s, u"Telefone 2"_s, CellKind::Text, 120},
            {u"cel"_s, u"Celular"_s, CellKind::Text, 120},
            {u"email"_s, u"E-mail"_s, CellKind::Text, 180},
            {u"site"_s, u"Site"_s, CellKind::Text, 160}};
}

int emailColumn(const ContactSide &side)
{
    const std::vector<ListColumn> all = columns(side);
    return int(std::ranges::find(all, u"email"_s, &ListColumn::key) - all.begin());
}

QStringList used(Connection &connection, const ContactSide &side, const QString &column)
{
    QStringList values;
    for (Recordset found(connection, u"SELECT DISTINCT "_s + column + u" from "_s + side.table);
         found.next();)
        if (const QString value = found.text(0); !value.trimmed().isEmpty())
            values << value;
    std::ranges::sort(values,
                      [](const QString &a, const QString &b) { return textorder::compareNames(a, b) < 0; });
    return values;
}

std::optional<ContactForm> load(Connection &connection, const ContactSide &side, const QString &code)
{
    Recordset row(connection, byCode(side, code));
    if (!row.next())
        return std::nullopt;
    ContactForm form;
    form.name = row.text(u"nome");
    form.taxNumber = row.text(u"cpf");
    form.birth = dates::shownFromStored(row.text(u"nascimento"));
    for (const TextColumn &text : textColumns)
        form.*text.field = row.text(text.column);
    form.picture = row.text(u"local");
    form.notes = row.text(u"adicionais");
    form.isPerson = row.text(u"tipo") == u"f";
    return form;
}

void save(Connection &connection, const ContactSide &side, const ContactForm &form, const QString &code)
{
    Transaction transaction(connection);
    Recordset row(connection, code.isEmpty() ? side.table : byCode(side, code));
    if (code.isEmpty())
        row.addNew();
    else if (!row.next())
        throw gone();
    writeColumns(row, form);
    transaction.note(side.subject, row.update());
    transaction.commit();
}

void remove(Connection &connection, const ContactSide &side, const QString &code)
{
    Transaction transaction(connection);
    if (!rows::remove(connection, transaction, side.subject, fromByCode(side, code)))
        throw gone();
    transaction.commit();
}

} // namespace contact
