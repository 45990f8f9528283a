#pragma once

#include "data/progress.h"
#include "lists/pagedocument.h"

#include <QPageLayout>

#include <climits>

class QPagedPaintDevice;

/// Pages to paint, counted from 1.
struct PageRange
{
    int first = 1;
    int last = INT_MAX;
};

/// Lays a document out for the paper of a printer, a PDF or a preview, and paints it page by page: memory
/// does not grow with the number of pages. A list's columns are as wide as their values need; when the paper
/// is too narrow, long texts are cut off with an ellipsis first, then the letters become smaller; amounts and
/// dates stay whole.
class PagePrinter
{
public:
    PagePrinter(const PageDocument &document, QPagedPaintDevice &device);
    ~PagePrinter();
    Q_DISABLE_COPY_MOVE(PagePrinter)

    /// Landscape if a list is wider than the paper held upright.
    static QPageLayout::Orientation fittingOrientation(const PageDocument &document,
                                                       QPagedPaintDevice &device);
    int pageCount();
    /// `progress` may be null. Throws Error: of Kind::File when the device fails, of Kind::Data when the
    /// paper has no room for a row.
    void paint(const PageRange &range, Progress *progress);

private:
    struct Layout;
    std::unique_ptr<Layout> m_layout;
    QPagedPaintDevice &m_device;
    int m_pageCount = 0;
};

/// Writes the document as a PDF file, replacing an older one only when it is complete. Throws Error.
void savePdf(const QString &path, const PageDocument &document, const QPageLayout &paper, Progress *progress);
