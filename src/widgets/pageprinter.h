#pragma once

#include "data/progress.h"

#include <QPageLayout>

#include <climits>

class QPagedPaintDevice;
class QPainter;

/// Pages to paint, counted from 1.
struct PageRange
{
    int first = 1;
    int last = INT_MAX;
};

/// Pages, whatever is on them. They are painted one by one, on any device.
class Pages
{
public:
    virtual ~Pages() = default;
    /// Of the print job.
    virtual QString name() const = 0;
    /// Before all that follows. `progress` may be null. Throws Error::Kind::Data when the paper has no room
    /// for the pages.
    virtual void layOut(const QPageLayout &paper, Progress *progress) = 0;
    /// At least 1.
    virtual int count() const = 0;
    /// The painter's unit is the twip; its origin is the upper left corner of what the paper's margins leave.
    virtual void paint(QPainter &painter, int page) = 0;
};

/// The one way of pages to a printer, a preview or a file; memory does not grow with their number. `progress`
/// may be null; it counts pages.
namespace pageprinter {

/// Lays the pages out for the device's paper and paints them. Throws Error: of Kind::File when the device
/// fails, besides what Pages throw.
void paint(Pages &pages, QPagedPaintDevice &device, const PageRange &range, Progress *progress);
/// Writes all pages as a PDF file, replacing an older one only when it is complete. Throws Error.
void savePdf(const QString &path, Pages &pages, const QPageLayout &paper, Progress *progress);

} // namespace pageprinter
