#include "analysis/chartpage.h"

#include "reports/modimpressao.h"

using namespace Qt::StringLiterals;

PageDocument chartPage(const ChartData &chart,
                       std::function<void(QPainter &painter, const QRectF &where)> paint)
{
    constexpr int pictureLines = 39;
    const PageText rule{.text = QString(77, u'-')}, blank{.text = u" "_s};
    PageDocument page{.name = chart.caption};
    page.blocks = {blank, PagePicture{pictureLines, std::move(paint)}, rule,
                   PageText{.text = u" Estatísticas"_s}, rule};
    for (const QString &line : chart.lines)
        page.blocks.emplace_back(PageText{.text = line});
    for (const PageText &text : {rule, PageText{}, PageText{.text = u' ' + modimpressao::generatedLine()},
                                 PageText{}, PageText{.text = modimpressao::slogan()}})
        page.blocks.emplace_back(text);
    return page;
}
