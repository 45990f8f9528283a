#pragma once

#include "lists/storedtable.h"
#include "mail/mailer.h"

#include <QDate>

#include <memory>
#include <optional>
#include <vector>

class Connection;
class Progress;

/// What a message tells of.
struct MailChoice
{
    enum class Status { All, Pending, Settled };

    bool payables = false, receivables = false, movements = false;
    bool dated = false; ///< only what was entered from `first` to `last`
    QDate first = {}, last = {};
    Status status = Status::All; ///< of a report; statistics tell both apart
};

/// Who the message is from and for, and the server that takes it, as typed.
struct MailSender
{
    QString name, address, server;
};

/// What a report has of one table.
struct MailSection
{
    QString heading; ///< "CONTAS A PAGAR"
    std::shared_ptr<StoredTable> rows;
    QString totals; ///< one line
};

/// Messages of reports and statistics. What reads throws Error and passes on what `progress` throws.
namespace mailreport {

inline constexpr QStringView attachmentName = u"relatório via-email.txt";
inline constexpr QStringView advice =
    u"É recomendável enviar pequenas quantidade de dados por e-mail, pois este processo pode ser "
    u"extremamente "
    "lento se enviado todo o banco de dados, você pode filtrar os dados entre datas para que o envio seja "
    "mais rápido.";

/// The three tables, in the order in which messages tell of them.
enum class Table { Payables, Receivables, Movements };
inline constexpr Table tables[] = {Table::Payables, Table::Receivables, Table::Movements};
bool isChosen(const MailChoice &choice, Table table);
std::vector<ListColumn> columns(Table table);

/// Why nothing can be sent.
std::optional<QString> problem(const MailSender &sender, const MailChoice &choice);
/// The word by which a status choice is kept: "Todos", "Pendentes", "Concluidos".
QString statusWord(MailChoice::Status status);
MailChoice::Status statusNamed(const QString &word);

/// Of a report's rows.
QString query(Table table, const MailChoice &choice);
MailSection section(Connection &connection, Table table, const MailChoice &choice, Progress *progress);
/// The attached file.
void saveText(const QString &path, const std::vector<MailSection> &sections, Progress *progress);
MailMessage reportMessage(const MailSender &sender, const MailChoice &choice, const QString &attachment);

/// Of one table's figures.
QString statisticsQuery(Table table, const MailChoice &choice);
QString statistics(Connection &connection, Table table, const MailChoice &choice, Progress *progress);
/// `blocks` are those of statistics().
MailMessage statisticsMessage(const MailSender &sender, const MailChoice &choice, const QStringList &blocks);

} // namespace mailreport
