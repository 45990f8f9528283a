#include "reports/c_relatorios.h"

#include "reports/displaywidth.h"
#include "reports/html.h"
#include "reports/output.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view columnGap = "  ";
constexpr std::size_t mostKept =
    32 * 1024 * 1024; ///< bytes of cells that measuring the columns may leave in memory

QString firstCharacter(const QString &text)
{
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return text.first(isPair ? 2 : std::min<qsizetype>(1, text.size()));
}

bool isControl(char c)
{
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

/// The text in one line: a line break or another control character becomes a blank.
std::string_view inOneLine(std::string_view text, std::string &buffer)
{
    if (std::ranges::none_of(text, isControl))
        return text;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\n' || i == 0 || text[i - 1] != '\r')
            line += isControl(text[i]) ? ' ' : text[i];
    }
    buffer = std::move(line);
    return buffer;
}

/// The columns of a text export.
class TextColumns
{
public:
    TextColumns(const TableSource &list, int maximum) : m_list(list), m_maximum(maximum)
    {
        for (int column = 0; column < list.columnCount(); ++column)
            m_widths.push_back(widthOf(list.heading(column).toStdString()));
        for (int row = 0; row < list.rowCount(); ++row) {
            for (int column = 0; column < list.columnCount(); ++column) {
                int &width = m_widths[std::size_t(column)];
                // No text has more columns than bytes, so most cells need no closer look.
                const std::string_view cell = inOneLine(list.utf8(row, column, m_buffer), m_buffer);
                if (int(cell.size()) > width)
                    width = std::max(width, widthOf(cell));
                if (m_isKept)
                    keep(cell);
            }
        }
    }

    void writeHeadings(Output &output)
    {
        for (int column = 0; column < m_list.columnCount(); ++column) {
            m_buffer = m_list.heading(column).toStdString();
            writeCell(output, inOneLine(m_buffer, m_buffer), column);
        }
        output << "\n";
    }
    void writeRule(Output &output, const std::string &fill)
    {
        const int step = std::max(1, displaywidth::of(fill));
        for (const int width : m_widths) {
            for (int drawn = 0; drawn + step <= width; drawn += step)
                output << fill;
            output.repeat(std::size_t(width % step), ' ');
            output << columnGap;
        }
        output << "\n";
    }
    /// To be called for one row after the other.
    void writeRow(Output &output, int row)
    {
        for (int column = 0; column < m_list.columnCount(); ++column)
            writeCell(output, m_isKept ? nextKept() : inOneLine(m_list.utf8(row, column, m_buffer), m_buffer),
                      column);
        output << "\n";
    }

private:
    void keep(std::string_view cell)
    {
        m_kept.append(cell).append(1, '\n');
        m_isKept = m_kept.size() <= mostKept;
        if (!m_isKept)
            m_kept = {};
    }
    std::string_view nextKept()
    {
        const std::size_t begin = std::exchange(m_next, m_kept.find('\n', m_next) + 1);
        return std::string_view(m_kept).substr(begin, m_next - 1 - begin);
    }
    int widthOf(std::string_view text) const { return std::min(m_maximum, displaywidth::of(text)); }

    void writeCell(Output &output, std::string_view text, int column)
    {
        int width = displaywidth::of(text);
        if (width > m_maximum) {
            m_buffer = displaywidth::cut(text, m_maximum);
            text = m_buffer;
            width = displaywidth::of(text);
        }
        output << text;
        output.repeat(std::size_t(m_widths[std::size_t(column)] - width) + columnGap.size(), ' ');
    }

    const TableSource &m_list;
    int m_maximum;
    std::vector<int> m_widths;
    std::string m_buffer;
    std::string m_kept; ///< the cells, each ended by a line break: a list that is not long is read once
    std::size_t m_next = 0;
    bool m_isKept = true;
};

} // namespace

void c_relatorios::setFillCharacter(const QString &text)
{
    if (!text.isEmpty())
        m_fill = firstCharacter(text);
}

void c_relatorios::setSeparator(const QString &text)
{
    if (!text.isEmpty())
        m_separator = firstCharacter(text);
}

void c_relatorios::setQualifier(const QString &text)
{
    m_qualifier = firstCharacter(text);
}

void c_relatorios::setMaximumColumnWidth(qint16 width)
{
    m_maximumWidth = std::max<qint16>(0, width);
}

void c_relatorios::beginProgress(const TableSource &list) const
{
    if (m_progress)
        m_progress->begin([rows = list.rowCount()] { return qint64(rows); });
}

void c_relatorios::listToText(QIODevice &device, const TableSource &list) const
{
    beginProgress(list);
    Output output(device);
    TextColumns columns(list, m_maximumWidth);
    columns.writeHeadings(output);
    columns.writeRule(output, m_fill.toStdString());
    if (list.rowCount() > 0)
        output << "\n";
    for (int row = 0; row < list.rowCount(); ++row) {
        columns.writeRow(output, row);
        output.flushIfLong();
        if (m_progress)
            m_progress->advance(row + 1);
    }
    if (list.rowCount() > 0)
        output << "\n";
    output.flush();
}

void c_relatorios::listToHtml(QIODevice &device, const TableSource &list) const
{
    beginProgress(list);
    Output output(device);
    output << "<table border='2' align='center'>\n<tr>\n";
    for (int column = 0; column < list.columnCount(); ++column)
        output << "<TH nowrap bgcolor='#FFFFCC'>" << html::escaped(list.heading(column)) << "</th>\n";
    output << "</tr>\n";
    std::string buffer, safe;
    for (int row = 0; row < list.rowCount(); ++row) {
        output << "<tr>\n";
        for (int column = 0; column < list.columnCount(); ++column) {
            const std::string_view text = inOneLine(list.utf8(row, column, buffer), buffer);
            output << "<td nowrap>" << html::escaped(text, safe) << "&nbsp;</td>\n";
        }
        output << "</tr>\n";
        output.flushIfLong();
        if (m_progress)
            m_progress->advance(row + 1);
    }
    output << "</table>\n";
    output.flush();
}
