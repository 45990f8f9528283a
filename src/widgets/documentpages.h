#pragma once

#include "lists/pagedocument.h"
#include "widgets/pagegrid.h"
#include "widgets/pageprinter.h"

#include <QSizeF>

#include <map>

/// The pages of a document. Its lists are read three times, always in the order of their rows: when they are
/// measured, when the page breaks are found for a paper, and when the pages are painted. Another paper takes
/// only the second step again.
class DocumentPages : public Pages
{
public:
    /// Measures the lists. `progress` may be null; it counts rows.
    explicit DocumentPages(PageDocument document, Progress *progress = nullptr);
    ~DocumentPages() override;
    Q_DISABLE_COPY_MOVE(DocumentPages)

    /// Landscape if a list is wider than the paper held upright.
    QPageLayout::Orientation fittingOrientation(QPageLayout paper) const;

    QString name() const override { return m_document.name; }
    /// Nothing is done again for a paper of the same size and margins. `progress` counts rows.
    void layOut(const QPageLayout &paper, Progress *progress) override;
    int count() const override { return int(m_starts.size()); }
    void paint(QPainter &painter, int page) override;

private:
    /// Where a page begins.
    struct Position
    {
        int block = 0, row = 0;
        qsizetype line = 0; ///< of the text or the row

        bool operator==(const Position &) const = default;
    };
    class Setter;

    /// The document's letters in a size in twips; stands as long as this object.
    const PageFont &font(double size, bool bold = false) const;
    /// The lines of a text, kept until another one is asked for: a long text goes over many pages.
    const QStringList &lines(const PageText &text, const PageFont &font) const;
    qint64 rowCount() const;

    PageDocument m_document;
    PageFont m_font, m_boldFont;
    mutable std::map<std::pair<int, bool>, PageFont> m_otherFonts; ///< by twips and weight
    std::map<const PageTable *, PageGrid> m_grids;
    QSizeF m_size; ///< of the paper within its margins, in twips
    QStringList m_headerLines;
    mutable const PageText *m_lastText = nullptr;
    mutable QStringList m_lastLines;
    std::vector<Position> m_starts;
};
