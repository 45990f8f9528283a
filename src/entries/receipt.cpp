#include "entries/receipt.h"

#include "data/dates.h"
#include "reports/modimpressao.h"

using namespace Qt::StringLiterals;

namespace {

QString amountText(const QString &typed)
{
    const auto amount = Money::parse(typed);
    return amount ? amount->grouped() : QString();
}

} // namespace

namespace receipt {

Receipt of(const Side &side, const EntryForm &entry, QDate today)
{
    const QString company = modimpressao::companyName();
    const bool weArePaid = side.subject == receivable().subject;
    const QString document = entry.document.trimmed();
    return {.payee = weArePaid ? company : entry.contact.trimmed(),
            .payer = weArePaid ? entry.contact.trimmed() : company,
            .reference = entry.description.trimmed() +
                         (document.isEmpty() ? QString() : u" - documento "_s + document),
            .amount = entry.value,
            .date = dates::shown(today)};
}

QStringList lines(const QString &caption, const Receipt &receipt)
{
    const QString indent(5, u' ');
    return {u' ' + caption,
            u' ' + QString(77, u'_'),
            u" "_s,
            u"  Pagamento para:"_s,
            indent + receipt.payee,
            {},
            u"  Recibo de:"_s,
            indent + receipt.payer,
            {},
            u"  Referênte a:"_s,
            indent + receipt.reference,
            u" "_s,
            u"  Valor:"_s,
            indent + u"R$ "_s + amountText(receipt.amount),
            {},
            u"  Data:"_s,
            indent + receipt.date,
            u" "_s,
            QString(60, u' ') + u"Assinatura"_s + QString(8, u' '),
            QString(37, u' ') + QString(42, u'_'),
            u' ' + QString(78, u'_')};
}

PageDocument document(const QString &caption, const Receipt &receipt)
{
    PageDocument pages{.name = caption, .fontFamily = u"Liberation Mono"_s};
    for (const QString &line : lines(caption, receipt))
        pages.blocks.emplace_back(PageText{.text = line});
    for (const QString &line : {QString(), modimpressao::generatedLine(), u"Tavaro"_s,
                                modimpressao::companyName(), modimpressao::slogan()})
        pages.blocks.emplace_back(PageText{.text = line});
    return pages;
}

} // namespace receipt
