#include "analysis/frmgrafico.h"
#include "ui_frmgrafico.h"

#include "analysis/chartpage.h"
#include "analysis/chartpane.h"
#include "reports/exportcommands.h"

#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(960, 600);
constexpr int dotsInPixel = 2; ///< of a PNG, so that it stays sharp when it is enlarged

} // namespace

frmGrafico::frmGrafico(ChartData chart, QWidget *parent)
    : Screen(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_ui(std::make_unique<Ui::frmGrafico>()),
      m_chart(std::move(chart))
{
    m_ui->setupUi(this);
    prepare();
    setWindowTitle(m_chart.caption);
    auto *pane = new ChartPane(m_chart, this);
    pane->setObjectName(u"grafico"_s);
    m_ui->corpo->insertWidget(0, pane, 2);
    m_ui->corpo->setStretch(1, 1);
    m_ui->lbltituloest->setText(m_chart.heading);
    m_ui->txtestatisticas->setPlainText(m_chart.lines.join(u'\n'));
    m_ui->txtestatisticas->setFocus();
    connect(m_ui->cmdimprimir, &QPushButton::clicked, this, &frmGrafico::print);
    connect(m_ui->cmdpng, &QPushButton::clicked, this, &frmGrafico::savePng);
    connect(m_ui->cmdsvg, &QPushButton::clicked, this, &frmGrafico::saveSvg);
    connect(m_ui->cmdsair, &QPushButton::clicked, this, &QDialog::close);
}

frmGrafico::~frmGrafico() = default;

frmGrafico *frmGrafico::open(ChartData chart, QWidget *parent)
{
    return shown(std::unique_ptr<frmGrafico>(new frmGrafico(std::move(chart), parent)));
}

void frmGrafico::print()
{
    exportar::printPages(this, chartPage(m_chart, [chart = m_chart](QPainter &painter, const QRectF &where) {
                             ChartPane::paint(chart, painter, where);
                         }));
}

void frmGrafico::savePng()
{
    exportar::saveFile(this, {u"Salvar gráfico em png"_s, u"Imagens PNG(*.png)"_s, u"png"_s},
                       [this](QIODevice &device, Progress *) {
                           QImage image(pictureSize * dotsInPixel, QImage::Format_RGB32);
                           image.fill(Qt::white);
                           QPainter painter(&image);
                           painter.setRenderHint(QPainter::Antialiasing);
                           ChartPane::paint(m_chart, painter, image.rect());
                           painter.end();
                           if (!image.save(&device, "PNG"))
                               throw Error(Error::Kind::File, device.errorString());
                       });
}

void frmGrafico::saveSvg()
{
    exportar::saveFile(this, {u"Salvar gráfico em svg"_s, u"Imagens SVG(*.svg)"_s, u"svg"_s},
                       [this](QIODevice &device, Progress *) {
                           QSvgGenerator svg;
                           svg.setOutputDevice(&device);
                           svg.setSize(pictureSize);
                           svg.setViewBox(QRect(QPoint(), pictureSize));
                           svg.setTitle(m_chart.caption);
                           QPainter painter(&svg);
                           ChartPane::paint(m_chart, painter, svg.viewBoxF());
                       });
}
