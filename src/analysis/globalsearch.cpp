#include "analysis/globalsearch.h"

#include "data/connection.h"
#include "data/dates.h"
#include "data/decimal.h"
#include "data/searchtext.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// Where to look. Of the columns the first four are what is shown: date, what, who, amount; an amount is the
/// column that is also looked for without its points.
struct Kind
{
    Subject subject;
    QString name, columns, table;
    bool hasDate = true, hasAmount = true;
};

const std::vector<Kind> &kinds()
{
    const QString entry =
        u"vencimento, descricao, %1, valor, data, documento, informacoes, origem, produto, estatus"_s;
    static const std::vector<Kind> all{
        {Subject::Payables, u"Conta a pagar"_s, entry.arg(u"fornecedor"), u"pagar"_s},
        {Subject::Receivables, u"Conta a receber"_s, entry.arg(u"cliente"), u"receber"_s},
        {Subject::Movements, u"Movimento bancário"_s,
         u"data, movimento, origem, valor, destino, informacoes, estatus"_s, u"bancario"_s},
        {Subject::Clients, u"Cliente"_s,
         u"data, nome, email, tel, cpf, insc, endereco, bairro, cidade, estado, tel2, cel, site, adicionais"_s,
         u"cliente"_s, true, false},
        {Subject::Suppliers, u"Fornecedor"_s,
         u"data, nome, email, tel, cpf, insc, endereco, bairro, cidade, estado, tel2, cel, site, adicionais"_s,
         u"fornecedor"_s, true, false},
        {Subject::Products, u"Produto"_s, u"'', produto, info, custo, qtde"_s, u"produto"_s, false},
        {Subject::Appointments, u"Compromisso"_s, u"data, Titulo, local, '', hora, descricao"_s,
         u"compromisso"_s, true, false},
    };
    return all;
}

} // namespace

GlobalSearch::GlobalSearch(std::shared_ptr<Connection> connection, const QString &text)
    : m_connection(std::move(connection)),
      m_found(
          std::make_shared<StoredTable>(std::vector<ListColumn>{{u"onde"_s, u"Onde"_s},
                                                                {u"data"_s, u"Data"_s, CellKind::Date},
                                                                {u"oque"_s, u"O que é"_s},
                                                                {u"quem"_s, u"Quem ou onde"_s},
                                                                {u"valor"_s, u"Valor"_s, CellKind::Amount}}))
{
    for (const QString &word : searchtext::plain(text).split(u' ', Qt::SkipEmptyParts))
        m_words.push_back(word.toStdString());
    for (const Kind &kind : kinds()) {
        Statement count = m_connection->prepareNative("SELECT count(*) FROM " + kind.table.toUtf8());
        count.step();
        m_rowsInAll += count.integer(0);
    }
    startKind();
}

GlobalSearch::~GlobalSearch() = default;

void GlobalSearch::startKind()
{
    const Kind &kind = kinds()[m_kind];
    m_foundOfKind = 0;
    m_rows = std::make_unique<Statement>(m_connection->prepareNative(
        u"SELECT rowid, %1 FROM %2 ORDER BY rowid DESC"_s.arg(kind.columns, kind.table).toUtf8()));
}

bool GlobalSearch::run(const QDeadlineTimer &until)
{
    constexpr int rowsBetweenLooks = 64;
    if (m_connection->inTransaction()) // what is written there may never be committed
        return false;
    for (int row = 1; m_rows && !m_words.empty(); ++row) {
        if (m_rows->step()) {
            ++m_rowsRead;
            if (matches())
                keep();
        } else if (++m_kind < kinds().size()) {
            startKind();
        } else {
            m_rows.reset();
        }
        if (row % rowsBetweenLooks == 0 && until.hasExpired())
            return false;
    }
    m_rows.reset();
    return true;
}

bool GlobalSearch::matches()
{
    const Kind &kind = kinds()[m_kind];
    m_text.clear();
    for (int column = 1; column < m_rows->columnCount(); ++column) {
        searchtext::appendPlain(m_rows->utf8(column), m_text);
        m_text += '\n';
    }
    if (kind.hasDate)
        dates::appendShown(m_rows->utf8(1), m_text);
    if (kind.hasAmount) {
        m_text += '\n';
        std::ranges::copy_if(m_rows->utf8(4), std::back_inserter(m_text), [](char c) { return c != '.'; });
    }
    return std::ranges::all_of(m_words,
                               [this](const std::string &word) { return m_text.find(word) != m_text.npos; });
}

void GlobalSearch::keep()
{
    if (m_foundOfKind++ == mostOfKind)
        m_isCut = true;
    if (m_foundOfKind > mostOfKind)
        return;
    const Kind &kind = kinds()[m_kind];
    const QByteArray cells[] = {
        kind.name.toUtf8(), kind.hasDate ? dates::shownFromStored(m_rows->text(1)).toUtf8() : QByteArray(),
        m_rows->text(2).toUtf8(), m_rows->text(3).trimmed().toUtf8(),
        kind.hasAmount ? Money::stored(m_rows->utf8(4)).grouped().toUtf8()
                       : m_rows->text(4).trimmed().toUtf8()};
    m_found->append(std::vector<std::string_view>(std::begin(cells), std::end(cells)),
                    {kind.subject, m_rows->integer(0), m_connection->serial()});
}
