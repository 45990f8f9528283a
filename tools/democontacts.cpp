#include "democontacts.h"

#include "data/connection.h"
#include "data/dates.h"

#include <array>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView houses[] = {u"Imobiliária Três Irmãos Administração de Imóveis Ltda.",
                                  u"Companhia de Energia do Vale",
                                  u"Águas do Planalto Saneamento",
                                  u"TeleSerra Telecomunicações",
                                  u"Folha de pagamento",
                                  u"Simples Nacional",
                                  u"Contabilidade Andrade & Filhos",
                                  u"Antônio Conceição (proprietário)",
                                  u"Banco Horizonte",
                                  u"Transportadora Rota Sul"};

constexpr QStringView firstNames[] = {u"Ana",
                                      u"João",
                                      u"Maria Aparecida",
                                      u"José",
                                      u"Antônia",
                                      u"Luís",
                                      u"Conceição",
                                      u"Marcos",
                                      u"Érica",
                                      u"Sérgio",
                                      u"Cláudia",
                                      u"Fábio",
                                      u"Inês",
                                      u"Mário",
                                      u"Letícia",
                                      u"Vinícius",
                                      u"Patrícia",
                                      u"César",
                                      u"Mônica",
                                      u"Rogério",
                                      u"Jéssica",
                                      u"Otávio",
                                      u"Simone",
                                      u"Tomás",
                                      u"Verônica",
                                      u"Ângelo",
                                      u"Francisca",
                                      u"Gonçalo",
                                      u"Heloísa",
                                      u"Ícaro",
                                      u"Júlia",
                                      u"Raimundo",
                                      u"Sebastiana",
                                      u"Estêvão",
                                      u"Terezinha",
                                      u"Wagner",
                                      u"Maria das Graças",
                                      u"Zélia",
                                      u"Pedro Henrique"};
constexpr QStringView middleNames[] = {
    u"Alves",        u"de Araújo",  u"Barbosa", u"Brandão",  u"Cardoso",
    u"da Conceição", u"Duarte",     u"Falcão",  u"Galvão",   u"Henriques",
    u"Leão",         u"Magalhães",  u"Monção",  u"Nogueira", u"Paixão",
    u"Queirós",      u"do Rosário", u"Sampaio", u"Trindade", u"Vasconcelos de Albuquerque",
    u"Xavier"};
constexpr QStringView lastNames[] = {u"da Silva", u"Gonçalves",   u"dos Santos", u"Assunção", u"Damião",
                                     u"Fração",   u"Guimarães",   u"de Jesus",   u"Lourenço", u"Muñoz",
                                     u"Neves",    u"de Oliveira", u"Peçanha",    u"Ramalho",  u"de Sá",
                                     u"Simões",   u"Tavares",     u"Uchôa",      u"Valença",  u"e Souza",
                                     u"Zanella",  u"Araújo Filho"};

constexpr QStringView trades[] = {
    u"Mercearia",  u"Distribuidora", u"Papelaria",  u"Padaria",     u"Atacado",    u"Comercial",
    u"Indústria",  u"Ferragens",     u"Confecções", u"Restaurante", u"Laticínios", u"Gráfica",
    u"Embalagens", u"Floricultura",  u"Cerâmica",   u"Armarinho",   u"Madeireira"};
constexpr QStringView tradeNames[] = {
    u"Boa Vista",   u"São João",      u"Três Corações",    u"Aliança",        u"do Sertão",
    u"Pôr do Sol",  u"Santo Antônio", u"Esperança",        u"Irmãos Brandão", u"Ipê-Amarelo",
    u"Praça da Sé", u"União",         u"Flor de Maracujá", u"do Povo",        u"Nossa Senhora das Graças",
    u"Avó Zulmira", u"Água Clara",    u"Progresso",        u"Bem-Te-Vi"};
constexpr QStringView companyForms[] = {
    u"Ltda.", u"ME",      u"EIRELI", u"e Cia.", u"Comércio, Importação e Representações Ltda.",
    u"S/A",   u"& Filhos"};

constexpr QStringView streets[] = {
    u"Rua das Palmeiras",  u"Avenida Sete de Setembro", u"Rua Coronel João Brandão", u"Praça da Matriz",
    u"Rua XV de Novembro", u"Travessa São Sebastião",   u"Avenida Getúlio Vargas",   u"Rua do Comércio",
    u"Alameda dos Ipês",   u"Rodovia Municipal, km 4,", u"Rua Doutora Inês Falcão"};
constexpr QStringView districts[] = {u"Centro",      u"Vila Nova",           u"Jardim América",
                                     u"São José",    u"Boa Esperança",       u"Lagoa",
                                     u"Bairro Alto", u"Distrito Industrial", u"Parque das Águas"};

struct City
{
    QStringView name, state;
    int areaCode;
    int weight;
};

constexpr City cities[] = {
    {u"São Paulo", u"SP", 11, 30}, {u"Ribeirão Preto", u"SP", 16, 12}, {u"Belo Horizonte", u"MG", 31, 8},
    {u"Uberlândia", u"MG", 34, 5}, {u"Curitiba", u"PR", 41, 7},        {u"Florianópolis", u"SC", 48, 4},
    {u"Goiânia", u"GO", 62, 4},    {u"Brasília", u"DF", 61, 4},        {u"São Luís", u"MA", 98, 3},
    {u"Belém", u"PA", 91, 3},      {u"Maceió", u"AL", 82, 3},          {u"Vitória", u"ES", 27, 3},
    {u"Niterói", u"RJ", 21, 6},    {u"Porto Alegre", u"RS", 51, 5}};

constexpr QStringView notes[] = {
    u"Prefere receber a cobrança por e-mail.", u"Entregar somente pela manhã, até às 11h.",
    u"Cliente desde a inauguração; desconto de 5% à vista.", u"Falar com a dona Conceição, no balcão.",
    u"Só faz pedidos acima de R$ 500,00; confirmar o frete antes de fechar a compra."};

/// Takes the next choice out of a number that counts combinations.
template <std::size_t size>
QStringView choose(const QStringView (&list)[size], qint64 &combination)
{
    const qint64 index = combination % qint64(size);
    combination /= qint64(size);
    return list[index];
}

/// `index` mixed up so that neighbours differ, still one to one below `total`; what is above repeats with a
/// number.
QString combined(qint64 index, qint64 total, QString (*nameOf)(qint64))
{
    constexpr qint64 stride = 7919; // a prime that divides no `total` here
    const QString name = nameOf(index % total * stride % total);
    const qint64 round = index / total;
    return round == 0 ? name : name + u" (%1)"_s.arg(round + 1);
}

QString personName(qint64 combination)
{
    const QStringView first = choose(firstNames, combination);
    const QStringView last = choose(lastNames, combination);
    return u"%1 %2 %3"_s.arg(first, choose(middleNames, combination), last);
}

QString companyName(qint64 combination)
{
    const QStringView trade = choose(trades, combination);
    const QStringView name = choose(tradeNames, combination);
    return u"%1 %2 %3"_s.arg(trade, name, choose(companyForms, combination));
}

constexpr qint64 persons =
    qint64(std::size(firstNames)) * qint64(std::size(middleNames)) * qint64(std::size(lastNames));
constexpr qint64 companies =
    qint64(std::size(trades)) * qint64(std::size(tradeNames)) * qint64(std::size(companyForms));

/// `mask` with a digit for each "#".
QString digits(Random &random, QString mask)
{
    for (QChar &c : mask) {
        if (c == u'#')
            c = QChar(u'0' + int(random.between(0, 9)));
    }
    return mask;
}

/// CPF of a person or CNPJ of a company in form only: nobody worked out check digits.
QString taxNumber(Random &random, bool person)
{
    return digits(random, person ? u"###.###.###-##"_s : u"##.###.###/0001-##"_s);
}

QString telephone(Random &random, int areaCode, bool mobile)
{
    return digits(random, u"(%1) %2####-####"_s.arg(areaCode).arg(mobile ? u"9"_s : QString()));
}

/// Letters and dots without accents, for an address that nobody can have: ".example" is reserved.
QString addressPart(const QString &name)
{
    QString part;
    for (const QChar c : name.normalized(QString::NormalizationForm_D).toLower()) {
        if (c.unicode() < 128 && c.isLetterOrNumber())
            part += c;
        else if (c == u' ' && !part.isEmpty() && !part.endsWith(u'.'))
            part += u'.';
    }
    while (part.endsWith(u'.'))
        part.chop(1);
    return part;
}

void bindContact(Statement &insert, const QString &name, bool person, Random &random, QDate today)
{
    const City &city = random.weighted(cities);
    const QString address = addressPart(name);
    constexpr qint64 year = 365;
    const qint64 days = person ? random.between(20 * year, 75 * year) : random.between(year, 40 * year);
    const std::array values{
        name,
        person ? u"f"_s : u"j"_s,
        taxNumber(random, person),
        person ? QString() : digits(random, u"############"_s),
        u"%1, %2"_s.arg(random.pick(streets)).arg(random.between(1, 2400)),
        random.pick(districts).toString(),
        city.name.toString(),
        city.state.toString(),
        u"Brasil"_s,
        telephone(random, city.areaCode, false),
        random.percent(20) ? telephone(random, city.areaCode, false) : QString(),
        random.percent(80) ? telephone(random, city.areaCode, true) : QString(),
        random.percent(75) ? address + u"@correio.example"_s : QString(),
        person || random.percent(60) ? QString() : u"www."_s + QString(address).remove(u'.') + u".example"_s,
        dates::stored(today.addDays(-days)),
        dates::stored(today.addDays(-random.between(0, 3 * year))),
        QString(),
        random.percent(25) ? random.pick(notes).toString() : QString()};
    for (std::size_t i = 0; i < values.size(); ++i)
        insert.bind(int(i) + 1, values[i]);
}

} // namespace

DemoContacts::Contact DemoContacts::at(qint64 index) const
{
    if (m_kind == Kind::Suppliers) {
        if (index < qint64(std::size(houses)))
            return {houses[index].toString(), index == qint64(House::Owner)};
        index -= qint64(std::size(houses));
    }
    // Most clients are persons and most suppliers companies. Each kind of name is counted for itself, so that
    // none comes twice.
    const bool isFourth = index % 4 == 3;
    const qint64 rank = isFourth ? index / 4 : index - index / 4;
    if ((m_kind == Kind::Clients) != isFourth)
        return {combined(rank, persons, personName), true};
    return {combined(rank, companies, companyName), false};
}

qint64 DemoContacts::firstTrader() const
{
    return m_kind == Kind::Suppliers ? std::min(qint64(std::size(houses)), m_count - 1) : 0;
}

void DemoContacts::write(Connection &connection, Random &random, QDate today) const
{
    const QByteArray table = m_kind == Kind::Clients ? "cliente"_ba : "fornecedor"_ba;
    Statement insert = connection.prepareNative(
        "insert into " + table +
        " (nome, tipo, cpf, insc, endereco, bairro, cidade, estado, pais, tel, tel2, cel, email, site, "
        "nascimento,"
        " data, local, adicionais) values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (qint64 i = 0; i < m_count; ++i) {
        const Contact contact = at(i);
        bindContact(insert, contact.name, contact.isPerson, random, today);
        insert.step();
        insert.reset();
    }
}
