#include "lists/spreadsheet.h"

#include "data/dates.h"
#include "data/decimal.h"
#include "data/error.h"

#include <QFile>
#include <QSaveFile>

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int measuredRows = 200; ///< that the width of a column is guessed from
constexpr int widestColumn = 60;  ///< characters
constexpr qsizetype longestSheetName = 31;
constexpr int mostRows = 1'048'575; ///< that a sheet has room for under its headings, less one for the sum
const QString summedHeading = u"Valor"_s;

Error saveError(const QString &path, const QString &reason)
{
    return {Error::Kind::File, u"Não foi possível gravar o arquivo \"%1\": %2"_s.arg(path, reason)};
}

/// "R$ -1.234,5" is -1234.5 in the currency "R$".
struct Amount
{
    QString currency;
    Decimal value;
};

std::optional<Amount> amountOf(const QString &cell)
{
    const QString text = cell.trimmed();
    const qsizetype blank = text.indexOf(u' ');
    const QString currency = blank > 0 ? text.first(blank) : QString();
    if (std::ranges::any_of(currency, [](QChar c) { return c.isDigit(); }))
        return std::nullopt;
    QString number = text.sliced(blank + 1).trimmed();
    if (number.startsWith(u'+'))
        number.remove(0, 1);
    const std::optional<Decimal> value = Decimal::parse(number);
    return value ? std::optional(Amount{currency, *value}) : std::nullopt;
}

bool looksLikeFormula(const QString &text)
{
    return text.size() > 1 && QStringView(u"=+-@\t\r").contains(text.front());
}

QString csvText(const QString &cell)
{
    QString text = looksLikeFormula(cell) ? u'\'' + cell : cell;
    if (!std::ranges::any_of(text, [](QChar c) { return QStringView(u";\"\n\r").contains(c); }))
        return text;
    return u'"' + text.replace(u'"', u"\"\""_s) + u'"';
}

QString csvCell(const TableSource &list, int row, int column)
{
    const QString cell = list.cell(row, column).trimmed();
    if (list.kind(column) == CellKind::Text)
        return csvText(cell);
    if (list.kind(column) == CellKind::Amount)
        if (const auto amount = amountOf(cell)) {
            const QString number = amount->value.grouped().remove(u'.');
            return amount->currency.isEmpty() || amount->currency == u"R$"
                       ? number
                       : csvText(amount->currency + u' ' + number);
        }
    return Decimal::parse(cell) ? cell : csvText(cell);
}

/// The workbook while it is written.
class Workbook
{
public:
    Workbook(const QByteArray &path, const QString &title)
    {
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE; // a row is on the disk when the next one begins
        m_book = workbook_new_opt(path.constData(), &options);
        m_sheet = workbook_add_worksheet(m_book, sheetName(title).toUtf8().constData());
        m_bold = workbook_add_format(m_book);
        format_set_bold(m_bold);
        m_date = workbook_add_format(m_book);
        format_set_num_format(m_date, "dd/mm/yyyy");
        worksheet_freeze_panes(m_sheet, 1, 0);
    }
    ~Workbook()
    {
        if (m_book)
            lxw_workbook_free(m_book);
    }
    Q_DISABLE_COPY_MOVE(Workbook)

    void write(const TableSource &list, Progress *progress)
    {
        const int rows = std::min(list.rowCount(), mostRows);
        for (int column = 0; column < list.columnCount(); ++column) {
            worksheet_set_column(m_sheet, lxw_col_t(column), lxw_col_t(column), widthOf(list, column),
                                 nullptr);
            writeText(0, column, list.heading(column), m_bold);
        }
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < list.columnCount(); ++column)
                writeCell(row + 1, column, list.kind(column), list.cell(row, column).trimmed());
            if (progress)
                progress->advance(row + 1);
        }
        for (int column = 0; column < list.columnCount() && rows > 0; ++column)
            if (list.kind(column) == CellKind::Amount && list.heading(column) == summedHeading)
                writeSum(rows, column);
    }
    /// The file is complete.
    lxw_error close() { return workbook_close(std::exchange(m_book, nullptr)); }

private:
    static QString sheetName(QString title)
    {
        for (QChar &c : title)
            if (QStringView(u"[]:*?/\\'").contains(c))
                c = u' ';
        title = title.simplified().first(std::min(longestSheetName, title.simplified().size()));
        return title.isEmpty() ? u"Lista"_s : title;
    }
    static double widthOf(const TableSource &list, int column)
    {
        qsizetype width = list.heading(column).size();
        for (int row = 0; row < std::min(list.rowCount(), measuredRows); ++row)
            width = std::max(width, list.cell(row, column).size());
        return double(std::min<qsizetype>(width + 2, widestColumn));
    }
    void writeText(int row, int column, const QString &text, lxw_format *format)
    {
        if (!text.isEmpty())
            worksheet_write_string(m_sheet, lxw_row_t(row), lxw_col_t(column), text.toUtf8().constData(),
                                   format);
    }
    /// The file holds numbers as binary fractions; up to fifteen digits they say the same.
    void writeNumber(int row, int column, Decimal value, lxw_format *format)
    {
        worksheet_write_number(m_sheet, lxw_row_t(row), lxw_col_t(column),
                               double(value.tenThousandths()) / 10'000, format);
    }
    void writeCell(int row, int column, CellKind kind, const QString &text)
    {
        if (kind == CellKind::Date) {
            if (const QDate date = dates::read(text); date.isValid()) {
                lxw_datetime day{date.year(), date.month(), date.day(), 0, 0, 0};
                worksheet_write_datetime(m_sheet, lxw_row_t(row), lxw_col_t(column), &day, m_date);
                return;
            }
        } else if (kind == CellKind::Amount) {
            if (const auto amount = amountOf(text))
                return writeNumber(row, column, amount->value, formatOf(amount->currency));
        } else if (kind == CellKind::Number) {
            if (const auto number = Decimal::parse(text))
                return writeNumber(row, column, *number, nullptr);
        }
        writeText(row, column, text, nullptr);
    }
    void writeSum(int rows, int column)
    {
        char first[LXW_MAX_CELL_NAME_LENGTH], last[LXW_MAX_CELL_NAME_LENGTH];
        lxw_rowcol_to_cell(first, 1, lxw_col_t(column));
        lxw_rowcol_to_cell(last, lxw_row_t(rows), lxw_col_t(column));
        const QByteArray sum = "=SUM(" + QByteArray(first) + ':' + last + ')';
        worksheet_write_formula(m_sheet, lxw_row_t(rows + 1), lxw_col_t(column), sum.constData(),
                                formatOf({}));
    }
    lxw_format *formatOf(const QString &currency)
    {
        lxw_format *&format = m_amounts[currency];
        if (!format) {
            format = workbook_add_format(m_book);
            const QString sign =
                currency.isEmpty() ? QString() : u"\"%1 \""_s.arg(QString(currency).remove(u'"'));
            format_set_num_format(format, (sign + u"#,##0.00"_s).toUtf8().constData());
        }
        return format;
    }

    lxw_workbook *m_book = nullptr;
    lxw_worksheet *m_sheet = nullptr;
    lxw_format *m_bold = nullptr, *m_date = nullptr;
    std::map<QString, lxw_format *> m_amounts; ///< by currency
};

} // namespace

namespace spreadsheet {

void writeCsv(QIODevice &device, const TableSource &list, Progress *progress)
{
    const auto writeLine = [&](const auto &cell) {
        QStringList cells;
        for (int column = 0; column < list.columnCount(); ++column)
            cells << cell(column);
        const QByteArray line = cells.join(u';').toUtf8() + "\r\n";
        if (device.write(line) != line.size())
            throw Error(Error::Kind::File, device.errorString());
    };
    device.write("\xEF\xBB\xBF");
    writeLine([&](int column) { return csvText(list.heading(column)); });
    if (progress)
        progress->begin([&list] { return list.rowCount(); });
    for (int row = 0; row < list.rowCount(); ++row) {
        writeLine([&](int column) { return csvCell(list, row, column); });
        if (progress)
            progress->advance(row + 1);
    }
}

void saveCsv(const QString &path, const TableSource &list, Progress *progress)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw saveError(path, file.errorString());
    try {
        writeCsv(file, list, progress);
    } catch (const Error &error) {
        throw saveError(path, error.text());
    }
    if (!file.commit())
        throw saveError(path, file.errorString());
}

void saveXlsx(const QString &path, const QString &title, const TableSource &list, Progress *progress)
{
    const QByteArray fresh = QFile::encodeName(path + u".novo"_s);
    const auto remove = [](const QByteArray *file) { std::remove(file->constData()); };
    const std::unique_ptr<const QByteArray, decltype(remove)> leftBehind(&fresh, remove);
    Workbook book(fresh, title);
    if (progress)
        progress->begin([&list] { return list.rowCount(); });
    book.write(list, progress);
    if (const lxw_error error = book.close(); error != LXW_NO_ERROR)
        throw saveError(path, QString::fromUtf8(lxw_strerror(error)));
    if (std::rename(fresh.constData(), QFile::encodeName(path).constData()) != 0)
        throw saveError(path, QString::fromLocal8Bit(strerror(errno)));
}

} // namespace spreadsheet
