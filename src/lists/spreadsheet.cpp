#include "lists/spreadsheet.h"

#include "data/dates.h"
#include "data/decimal.h"
#include "data/error.h"
#include "data/savefile.h"

#include <QFile>
#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

constexpr int measuredRows = 200; ///< that the width of a column is guessed from
constexpr int widestColumn = 60;  ///< characters
constexpr qsizetype longestSheetName = 31;
constexpr qint64 copiedAtOnce = 1024 * 1024; ///< bytes
constexpr int mostRows = 1'048'574;          ///< that a sheet has room for between its headings and the sum
const QString summedHeading = u"Valor"_s;

void check(lxw_error error)
{
    if (error != LXW_NO_ERROR)
        throw Error(Error::Kind::File, QString::fromUtf8(lxw_strerror(error)));
}

/// "R$ -1.234,5" is -1234.5 in the currency "R$".
struct Amount
{
    QString currency;
    QString text; ///< of the number, without grouping
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
    return value ? std::optional(Amount{currency, number.remove(u'.'), *value}) : std::nullopt;
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
        if (const auto amount = amountOf(cell))
            return amount->currency.isEmpty() || amount->currency == u"R$"
                       ? amount->text
                       : csvText(amount->currency + u' ' + amount->text);
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
        const int rows = list.rowCount();
        if (rows > mostRows)
            throw Error(
                Error::Kind::File,
                u"uma planilha tem lugar para %1 linhas, e a lista tem %2. Salve-a como CSV."_s.arg(mostRows)
                    .arg(rows));
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
    void close() { check(workbook_close(std::exchange(m_book, nullptr))); }

private:
    static QString sheetName(QString title)
    {
        for (QChar &c : title)
            if (QStringView(u"[]:*?/\\'").contains(c))
                c = u' ';
        title = title.simplified().left(longestSheetName);
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
            check(worksheet_write_string(m_sheet, lxw_row_t(row), lxw_col_t(column),
                                         text.toUtf8().constData(), format));
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
    saveFile(
        path, [&](QIODevice &device, Progress *told) { writeCsv(device, list, told); }, progress);
}

/// The library writes files of its own only.
void saveXlsx(const QString &path, const QString &title, const TableSource &list, Progress *progress)
{
    const auto write = [&](QIODevice &device, Progress *told) {
        const QTemporaryDir folder;
        QFile made(folder.filePath(u"lista.xlsx"_s));
        Workbook book(QFile::encodeName(made.fileName()), title);
        if (told)
            told->begin([&list] { return list.rowCount(); });
        book.write(list, told);
        book.close();
        if (!made.open(QIODevice::ReadOnly))
            throw Error(Error::Kind::File, made.errorString());
        while (!made.atEnd())
            if (device.write(made.read(copiedAtOnce)) < 0)
                throw Error(Error::Kind::File, device.errorString());
    };
    saveFile(path, write, progress);
}

} // namespace spreadsheet
