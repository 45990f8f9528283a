#pragma once

#include <QString>
#include <QStringList>

#include <span>
#include <string>
#include <string_view>

/// How a column of a list sorts and aligns; the cells themselves are texts ready to be shown.
enum class CellKind : quint8 { Text, Number, Amount, Date };

/// Writes a cell to `out`, which is empty, from the stored texts of the column's sources.
using CellFormat = void (*)(std::span<const std::string_view> values, std::string &out);

/// One column of a list: how it is headed, laid out and made from a row of a table.
struct ListColumn
{
    QString key;   ///< name of the column in the layout file
    QString title; ///< heading
    CellKind kind = CellKind::Text;
    int width = 80; ///< default width in pixels
    /// Columns of the table that the cell is made from, the one it sorts by first; empty for `key`.
    QStringList sources = {};
    /// Null for what the kind suggests: dates as "dd/mm/yyyy", amounts as "1.234,56", others as stored.
    CellFormat format = nullptr;
    QString layoutWidth = {}; ///< default width in the layout file, in twips: "1319,8111"

    QString source() const { return sources.isEmpty() ? key : sources.constFirst(); }
};

namespace cellformat {

void date(std::span<const std::string_view> values, std::string &out);
/// "1.234,56"; a blank stays empty.
void amount(std::span<const std::string_view> values, std::string &out);
/// "R$ 1.234,56".
void reais(std::span<const std::string_view> values, std::string &out);
/// The second value is the row's currency: "€ 1.234,56".
void withCurrency(std::span<const std::string_view> values, std::string &out);

/// The formats above and the stored text, each followed by a blank.
void textAndBlank(std::span<const std::string_view> values, std::string &out);
void dateAndBlank(std::span<const std::string_view> values, std::string &out);
void withCurrencyAndBlank(std::span<const std::string_view> values, std::string &out);

} // namespace cellformat
