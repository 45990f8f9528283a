#include "stock/labels.h"

#include "data/dates.h"
#include "data/decimal.h"
#include "data/recordset.h"

using namespace Qt::StringLiterals;

namespace {

const QString bold = u"Negrito"_s;
const QString capitals = u"Maiúsculas"_s;

constexpr double moneyUnits =
    10000; ///< positions are decimal numbers, kept in the same fixed point as amounts

double length(const Recordset &row, QStringView column)
{
    return double(Money::stored(row.text(column)).tenThousandths()) / moneyUnits;
}

QString lengthText(double millimetres)
{
    return Money::fromTenThousandths(qRound64(millimetres * moneyUnits)).plain();
}

QString shown(const Recordset &contact, const LabelField &field)
{
    const QString stored = contact.text(field.column).simplified();
    if (field.column == u"nascimento")
        return dates::shownFromStored(stored);
    return field.format == capitals ? stored.toUpper() : stored;
}

/// Appends the texts of one contact's label, the `place`-th of its page.
void appendLabel(std::vector<LabelText> &page, int place, const Recordset &contact,
                 const std::vector<LabelField> &fields)
{
    const int row = place / labelsheet::columns, column = place % labelsheet::columns;
    const double top = row * labelsheet::labelHeight;
    const double left = column * labelsheet::labelWidth;
    for (const LabelField &field : fields)
        if (const QString text = shown(contact, field); !text.isEmpty())
            page.push_back({top + field.top, left + field.left, field.width, field.format == bold, text});
}

} // namespace

namespace labels {

const std::vector<Source> &sources()
{
    static const std::vector<Source> all{
        {u"nome"_s, u"Nome"_s},
        {u"endereco"_s, u"Endereço"_s},
        {u"bairro"_s, u"Bairro"_s},
        {u"cidade"_s, u"Cidade"_s},
        {u"estado"_s, u"Estado"_s},
        {u"pais"_s, u"País"_s},
        {u"tel"_s, u"Telefone"_s},
        {u"tel2"_s, u"Telefone 2"_s},
        {u"cel"_s, u"Celular"_s},
        {u"email"_s, u"E-mail"_s},
        {u"site"_s, u"Site"_s},
        {u"cpf"_s, u"CPF/CNPJ"_s},
        {u"insc"_s, u"Inscrição"_s},
        {u"nascimento"_s, u"Nascimento"_s},
        {u"adicionais"_s, u"Informações"_s},
    };
    return all;
}

QStringList formats()
{
    return {u"Normal"_s, bold, capitals};
}

std::vector<LabelField> defaultFields()
{
    return {
        {u"nome"_s, 4, 5, 60, bold},
        {u"endereco"_s, 9, 5, 60, u"Normal"_s},
        {u"bairro"_s, 14, 5, 60, u"Normal"_s},
        {u"cidade"_s, 19, 5, 45, u"Normal"_s},
        {u"estado"_s, 19, 52, 13, u"Normal"_s},
    };
}

std::vector<LabelField> load(Connection &connection)
{
    std::vector<LabelField> fields;
    for (Recordset rows(connection, u"Select * from CamposEtiqueta order by [Index]"_s); rows.next();)
        fields.push_back({rows.text(u"Campo"), length(rows, u"Top"), length(rows, u"Left"),
                          length(rows, u"Width"), rows.text(u"Formato")});
    return fields.empty() ? defaultFields() : fields;
}

void save(Connection &connection, const std::vector<LabelField> &fields)
{
    Transaction transaction(connection);
    connection.execute(u"Delete * from CamposEtiqueta"_s);
    Recordset row(connection, u"CamposEtiqueta"_s);
    int index = 0;
    for (const LabelField &field : fields) {
        row.addNew();
        row.set(u"Index", QString::number(++index));
        row.set(u"Campo", field.column);
        row.set(u"Top", lengthText(field.top));
        row.set(u"Left", lengthText(field.left));
        row.set(u"Width", lengthText(field.width));
        row.set(u"Formato", field.format);
        row.update();
    }
    transaction.commit();
}

std::vector<std::vector<LabelText>> pages(Connection &connection, const QString &query,
                                          const std::vector<LabelField> &fields, int skipped, int maxPages)
{
    std::vector<std::vector<LabelText>> result;
    int place = skipped;
    for (Recordset contacts(connection, query); contacts.next(); ++place) {
        const int page = place / labelsheet::labelsPerPage;
        if (page >= maxPages)
            break;
        if (page >= int(result.size()))
            result.resize(std::size_t(page) + 1);
        appendLabel(result.back(), place % labelsheet::labelsPerPage, contacts, fields);
    }
    return result;
}

} // namespace labels
