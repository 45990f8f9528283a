#include "entries/installments.h"

#include "data/dates.h"
#include "data/decimal.h"
#include "data/formtext.h"
#include "data/recordset.h"
#include "entries/entry.h"

using namespace Qt::StringLiterals;

namespace {

/// A typed whole number; text that is none counts as 0.
qint64 number(const QString &text)
{
    return Money::parse(text).value_or(Money()).tenThousandths() / Money::fromInteger(1).tenThousandths();
}

/// Appends the rows of a run; the columns that all rows share are read once.
class Writer
{
public:
    Writer(Connection &connection, const Side &side, const InstallmentsForm &form)
        : m_row(connection, side.table),
          m_side(side),
          m_form(form),
          m_date(formtext::storedDate(u"Data"_s, form.date)),
          m_document(formtext::freeText(form.document)),
          m_notes(formtext::freeText(form.notes) + u" - Parcela "_s),
          m_ofCount(u" de "_s + QString::number(number(form.count)))
    {
        formtext::amount(u"Valor"_s, form.value);
    }

    RowChange append(int number, QDate due)
    {
        m_row.addNew();
        m_row.set(u"estatus", m_form.status);
        m_row.set(u"origem", m_form.account);
        m_row.set(m_side.contactColumn, m_form.contact);
        m_row.set(u"data", m_date);
        m_row.set(u"descricao", m_form.description);
        m_row.set(u"documento", m_document);
        m_row.set(u"informacoes", m_notes + QString::number(number) + m_ofCount);
        m_row.set(u"valor", m_form.value);
        m_row.set(u"vencimento", dates::stored(due));
        m_row.set(u"moeda", m_form.currency);
        return m_row.update();
    }

private:
    Recordset m_row;
    const Side &m_side;
    const InstallmentsForm &m_form;
    QString m_date, m_document, m_notes, m_ofCount;
};

} // namespace

namespace installments {

QStringList blankFields(const InstallmentsForm &form)
{
    const std::pair<const QString &, QString> fields[] = {{form.description, u"Descrição"_s},
                                                          {form.contact, u"Forcenedor/cliente"_s},
                                                          {form.value, u"Valor"_s},
                                                          {form.date, u"Data"_s}};
    QStringList blank;
    for (const auto &[text, name] : fields)
        if (text.trimmed().isEmpty())
            blank << name;
    return blank;
}

std::optional<QString> problem(const InstallmentsForm &form)
{
    if (number(form.count) < 1)
        return u"O número de parcelas não pode ser menor que 1!"_s;
    if (number(form.days) < 1)
        return u"Os dias entre as parcelas não pode ser menor que 1!"_s;
    return std::nullopt;
}

QDate nextDue(QDate previous, const InstallmentsForm &form)
{
    return form.monthly ? previous.addMonths(1) : previous.addDays(number(form.days));
}

std::vector<QDate> dueDates(const InstallmentsForm &form)
{
    QDate due = dates::read(formtext::storedDate(u"Data"_s, form.date));
    std::vector<QDate> result;
    for (qint64 i = number(form.count); i > 0; --i) {
        due = nextDue(due, form);
        if (!due.isValid() || due.year() > dates::lastYear)
            throw Error(
                Error::Kind::Data,
                u"o vencimento da parcela %1 passa do ano %2."_s.arg(result.size() + 1).arg(dates::lastYear));
        result.push_back(due);
    }
    return result;
}

InstallmentsOutcome write(Connection &connection, const Side &side, const InstallmentsForm &form,
                          Progress *progress)
{
    InstallmentsOutcome outcome;
    try {
        const std::vector<QDate> due = dueDates(form);
        if (progress)
            progress->begin([&due] { return qint64(due.size()); });
        Transaction transaction(connection);
        Writer writer(connection, side, form);
        try {
            for (QDate date : due) {
                transaction.note(side.subject, writer.append(outcome.written + 1, date));
                ++outcome.written;
                if (progress)
                    progress->advance(outcome.written);
            }
        } catch (const Error &error) {
            outcome.failure = error;
        }
        transaction.commit(); // fails when the error already undid the whole run
    } catch (const Error &error) {
        outcome.written = 0;
        if (!outcome.failure)
            outcome.failure = error;
    }
    return outcome;
}

Error report(const InstallmentsForm &form, const InstallmentsOutcome &outcome)
{
    const QString count =
        outcome.written == 0 ? u"Nenhuma parcela foi gravada."_s
                             : u"Parcelas gravadas: %1 de %2."_s.arg(outcome.written).arg(number(form.count));
    return Error(outcome.failure->kind(), outcome.failure->text() + u'\n' + count);
}

} // namespace installments
