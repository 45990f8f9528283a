#include "mail/mailreport.h"

#include "bank/movementlist.h"
#include "data/clock.h"
#include "data/dates.h"
#include "data/status.h"
#include "entries/side.h"
#include "lists/readrows.h"
#include "reports/c_relatorios.h"
#include "reports/html.h"
#include "reports/modimpressao.h"
#include "reports/output.h"
#include "reports/reporttext.h"

#include <array>

using namespace Qt::StringLiterals;

namespace mailreport {

namespace {

constexpr std::size_t ruleLength = 48;

/// Everything in which the three tables differ.
struct Words
{
    bool MailChoice::*chosen;
    const Side *side; ///< null for movements
    Subject subject;
    QString table, heading;
    QString included; ///< of a report's message
    QString listed;   ///< of the statistics
};

const Words &words(Table table)
{
    static const std::array<Words, 3> all{
        Words{&MailChoice::payables, &payable(), payable().subject, payable().table, payable().reportHeading,
              u" Contas a pagar / "_s, u"Contas a pagar<br>"_s},
        Words{&MailChoice::receivables, &receivable(), receivable().subject, receivable().table,
              receivable().reportHeading, u"Contas a receber / "_s, u"Contas a receber<br>"_s},
        Words{&MailChoice::movements, nullptr, Subject::Movements, u"bancario"_s, u"MOVIMENTO BANCÁRIO"_s,
              u"Movimento bancario"_s, u"Movimento bancario<br>"_s}};
    return all[std::size_t(table)];
}

struct StatusWords
{
    MailChoice::Status status;
    QString kept, condition, shown;
};

const StatusWords &statusWords(MailChoice::Status status)
{
    static const std::array<StatusWords, 3> all{
        StatusWords{MailChoice::Status::All, u"Todos"_s, {}, u"Todas as contas (concluídas e pendentes)"_s},
        StatusWords{MailChoice::Status::Pending, u"Pendentes"_s,
                    u" WHERE estatus(like '"_s + status::pending.toString() + u"')"_s,
                    u"Somente contas Pendentes"_s},
        StatusWords{MailChoice::Status::Settled, u"Concluidos"_s,
                    u" WHERE estatus(like '"_s + status::settled.toString() + u"')"_s,
                    u"Somente contas Concluídas"_s}};
    return all[std::size_t(status)];
}

QString dateCondition(const MailChoice &choice)
{
    if (!choice.dated)
        return {};
    return u" WHERE Data BETWEEN '"_s + dates::stored(choice.first) + u"' AND '"_s +
           dates::stored(choice.last) + u'\'';
}

QString totalsLine(const Figures &figures)
{
    return u"Valor total: "_s + figures.total().sum.inReais() + u" - Total concluído: "_s +
           figures.settled.sum.inReais() + u" - Total pendente: "_s + figures.pending.sum.inReais();
}

QString totalsLine(const MovementTotals &totals)
{
    return u"Total depósito: "_s + totals.deposits.sum.inReais() + u" - Total retirada: "_s +
           totals.withdrawals.sum.inReais() + u" - Total transferência: "_s + totals.transfers.sum.inReais();
}

QString generatedLine()
{
    return u"Gerado dia: "_s + dates::longDate(programclock::today());
}

/// The end of a message: when it was made, the product, the company's site.
QString closing(const QString &product)
{
    return u"<hr><br> "_s + generatedLine() + u"<br><br><b>"_s + product + u"</b><br>"_s +
           modimpressao::closingHtml() + u"</font></p>"_s;
}

QString between(const MailChoice &choice)
{
    return dates::shown(choice.first) + u" e "_s + dates::shown(choice.last);
}

} // namespace

bool isChosen(const MailChoice &choice, Table table)
{
    return choice.*words(table).chosen;
}

std::vector<ListColumn> columns(Table table)
{
    const Side *side = words(table).side;
    if (!side)
        return {{u"código"_s, u"Código"_s, CellKind::Number},
                {u"data"_s, u"Data"_s, CellKind::Date},
                {u"movimento"_s, u"Movimento"_s},
                {u"origem"_s, u"Origem"_s},
                {u"destino"_s, u"Destino"_s},
                {u"valor"_s, u"Valor"_s, CellKind::Amount, 80, {}, cellformat::reais},
                {u"informacoes"_s, u"Informações"_s}};
    return {
        {u"código"_s, u"Código"_s, CellKind::Number},
        {u"data"_s, u"Data"_s, CellKind::Date},
        {u"descricao"_s, u"Descrição"_s},
        {u"documento"_s, u"Documento"_s},
        {side->contactColumn, side->contactTitle},
        {u"vencimento"_s, u"Vencimento"_s, CellKind::Date},
        {u"valor"_s, u"Valor"_s, CellKind::Amount, 80, {u"valor"_s, u"moeda"_s}, cellformat::withCurrency},
        {u"estatus"_s, u"Estatus"_s},
        {u"origem"_s, u"Origem"_s},
    };
}

std::optional<QString> problem(const MailSender &sender, const MailChoice &choice)
{
    QString missing;
    const std::pair<const QString &, QString> fields[] = {
        {sender.server, u"Servidor "_s}, {sender.name, u"Seu Nome "_s}, {sender.address, u"Seu E-mail "_s}};
    for (const auto &[text, field] : fields)
        if (text.trimmed().isEmpty())
            missing += field;
    if (!missing.isEmpty())
        return u"Os campos "_s + missing + u" devem ser preenchidos."_s;
    if (choice.dated && (!choice.first.isValid() || !choice.last.isValid()))
        return u"A data inicial e a data final devem ser preenchidas!"_s;
    return std::nullopt;
}

QString statusWord(MailChoice::Status status)
{
    return statusWords(status).kept;
}

MailChoice::Status statusNamed(const QString &word)
{
    for (const auto status : {MailChoice::Status::Pending, MailChoice::Status::Settled})
        if (statusWord(status).compare(word, Qt::CaseInsensitive) == 0)
            return status;
    return MailChoice::Status::All;
}

QString query(Table table, const MailChoice &choice)
{
    const QString date = dateCondition(choice), status = statusWords(choice.status).condition;
    const QString joiner = date.isEmpty() || status.isEmpty() ? QString() : u" AND "_s;
    return u"select * from "_s + words(table).table + date + joiner + status;
}

MailSection section(Connection &connection, Table table, const MailChoice &choice, Progress *progress)
{
    const Words &own = words(table);
    const std::vector<ListColumn> shown = columns(table);
    MailSection section{own.heading, std::make_shared<StoredTable>(shown), {}};
    const auto read = [&](RowTotals &totals) {
        readrows::into(*section.rows, connection, query(table, choice), shown, own.subject, totals, progress);
    };
    if (own.side) {
        FigureTotals totals(StatusRule::BothWords);
        read(totals);
        section.totals = totalsLine(totals.figures);
    } else {
        MovementTotals totals;
        read(totals);
        section.totals = totalsLine(totals);
    }
    return section;
}

void saveText(const QString &path, const std::vector<MailSection> &sections, Progress *progress)
{
    ::saveFile(
        path,
        [&](QIODevice &device, Progress *told) {
            Output output(device);
            output << u"RELATÓRIO ENVIADO POR E-MAIL" << "\n";
            c_relatorios lists;
            lists.setProgress(told);
            for (const MailSection &section : sections) {
                output << "\n" << section.heading << "\n";
                output.repeat(ruleLength, '-');
                output << "\n";
                output.flush();
                lists.listToText(device, *section.rows);
                output << section.totals << "\n";
            }
            output << generatedLine() << "\n" << modimpressao::companyName() << "\n";
            output.flush();
        },
        progress);
}

MailMessage reportMessage(const MailSender &sender, const MailChoice &choice, const QString &attachment)
{
    QString page =
        u"<p><font face='Verdana' style='font-size: 11pt'>"
        "<b>Olá </b>"_s +
        html::escaped(sender.name) +
        u",<br><br>"
        "Segue em anexo o relatório que foi enviado pelo senhor através do software Tavaro.<br><br> "
        "Obrigado por utilizar nossos softwares!<br><br>"
        "Os dados no arquivo em anexo foram filtrados de acordo com a sua preferência, segue abaixo "
        "os dados filtrados:<br><br>"_s;
    if (choice.dated)
        page += u"<b>Filtrados entre as datas:</b> "_s + between(choice) + u"<br>"_s;
    page += u"<b>Filtrados por estatus:</b> "_s + statusWords(choice.status).shown + u"<br>"_s;
    page += u"<b>Dados incluídos:</b>"_s;
    for (const Table table : tables)
        if (isChosen(choice, table))
            page += words(table).included;
    return {sender.name.trimmed(), sender.address.trimmed(), u"Relatorio do Tavaro"_s,
            page + closing(u"Tavaro"_s), attachment};
}

QString statisticsQuery(Table table, const MailChoice &choice)
{
    return u"select * from "_s + words(table).table + dateCondition(choice);
}

QString statistics(Connection &connection, Table table, const MailChoice &choice, Progress *progress)
{
    FigureTotals totals(StatusRule::BothWords);
    readrows::sum(connection, statisticsQuery(table, choice), totals, progress);
    const Figures &figures = totals.figures;
    const auto count = [](const Figures::Part &part) { return QString::number(part.count); };
    return u"> "_s + words(table).listed + u"<br><b>Total de contas cadastradas:</b> "_s +
           count(figures.total()) + u" cadastros<br><br><b>Total de contas pendentes cadastradas:</b> "_s +
           count(figures.pending) + u"<b>Valor total de contas pendentes:</b> "_s +
           figures.pending.sum.inReais() + u"<br><br><b>Total de contas concluídas cadastradas:</b> "_s +
           count(figures.settled) + u"<b>Valor total de contas concluidas:</b> "_s +
           figures.settled.sum.inReais() + u"<b>Total geral:</b> "_s + figures.total().sum.inReais() +
           u"<br><br><hr>"_s;
}

MailMessage statisticsMessage(const MailSender &sender, const MailChoice &choice, const QStringList &blocks)
{
    QString page = u"<p><font face='Verdana' style='font-size: 11pt'><b>Estatística enviada por e-mail</b>"
                   "<br><br><b>Olá </b>"_s +
                   html::escaped(sender.name) +
                   u",<br><br>Segue abaixo as estatísticas enviadas por você:<br><br>"_s;
    if (choice.dated)
        page += u"Filtrados entre as datas: "_s + between(choice) + u"<br><br>"_s;
    page += u"> Dados incluídos:<br><br>"_s;
    for (const Table table : tables)
        if (isChosen(choice, table))
            page += words(table).listed;
    page += u"<br><br><hr>"_s + blocks.join(QString());
    return {sender.name.trimmed(), sender.address.trimmed(), u"Estatisticas do Tavaro"_s,
            page + closing(u"Corvel"_s)};
}

} // namespace mailreport
