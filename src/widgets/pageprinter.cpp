#include "widgets/pageprinter.h"

#include "data/error.h"
#include "widgets/pagefont.h"

#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace pageprinter {

void paint(Pages &pages, QPagedPaintDevice &device, const PageRange &range, Progress *progress)
{
    pages.layOut(device.pageLayout(), progress);
    const int last = std::min(range.last, pages.count());
    QPainter painter;
    if (!painter.begin(&device))
        throw Error(Error::Kind::File, u"A impressão não pôde ser iniciada."_s);
    if (progress)
        progress->begin([count = last - range.first + 1] { return qint64(count); });
    for (int page = range.first; page <= last; ++page) {
        if (page > range.first && !device.newPage())
            throw Error(Error::Kind::File, u"A página não pôde ser impressa."_s);
        painter.resetTransform();
        painter.scale(device.logicalDpiX() / twips::inInch, device.logicalDpiY() / twips::inInch);
        pages.paint(painter, page);
        if (progress)
            progress->advance(page - range.first + 1);
    }
    if (!painter.end())
        throw Error(Error::Kind::File, u"A impressão não pôde ser concluída."_s);
}

void savePdf(const QString &path, Pages &pages, const QPageLayout &paper, Progress *progress)
{
    const QString failed = u"Não foi possível gravar o arquivo \"%1\": %2"_s;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
    {
        QPdfWriter writer(&file);
        writer.setPageLayout(paper);
        writer.setTitle(pages.name());
        writer.setCreator(u"Tavaro"_s);
        paint(pages, writer, {}, progress);
    }
    if (!file.commit())
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
}

} // namespace pageprinter
