#include "analysis/statisticscommands.h"

#include "analysis/frmgrafico.h"
#include "analysis/frmrelatorio.h"
#include "analysis/movementreport.h"
#include "analysis/namestatistics.h"
#include "data/clock.h"
#include "widgets/messages.h"
#include "widgets/reading.h"

using namespace Qt::StringLiterals;

namespace {

const QString waitTitle = u"Carregando estatísticas"_s;

/// The message when there is nothing to show.
struct Nothing
{
    QString title, text;
};

/// Shows what `read` finds by `open`.
template <typename Read, typename Open>
void showFound(QWidget *parent, const Nothing &nothing, Read read, Open open)
{
    decltype(read(std::declval<Connection &>(), nullptr)) found;
    if (!reading::run(parent, waitTitle, [&](Connection &connection, Progress &progress) {
            found = read(connection, &progress);
        }))
        return;
    if (found)
        open(*std::move(found));
    else
        messages::information(parent, nothing.title, nothing.text);
}

template <typename Read>
void showReport(QWidget *parent, const Nothing &nothing, const QString &name, Read read)
{
    showFound(parent, nothing, read, [&](Report report) {
        ReportScreen screen = reportscreen::general();
        screen.name = name;
        frmRelatorio::open(std::move(report), parent, std::move(screen));
    });
}

Nothing nothingIn(const FigureKind &kind, ViewPeriod period)
{
    return {u"Info"_s, kind.periods[std::size_t(period)].noData};
}

const QString reportName = u"frmRelatorio"_s, statisticsName = u"frmEstatistica"_s;
const QString centreTitle = u"Plano de conta"_s;

} // namespace

namespace statisticscommands {

void movementReport(const Side &side, ViewPeriod period, QWidget *parent)
{
    const QDateTime now = programclock::now();
    showReport(parent, {u"Info"_s, movementreport::texts(side, period, now).noData}, reportName,
               [&](Connection &connection, Progress *progress) {
                   return movementreport::read(connection, side, period, now, progress);
               });
}

void statistics(const FigureKind &kind, ViewPeriod period, QWidget *parent)
{
    showReport(parent, nothingIn(kind, period), statisticsName,
               [&](Connection &connection, Progress *progress) {
                   return figures::statistics(connection, kind, period, programclock::today(), progress);
               });
}

void chart(const FigureKind &kind, ViewPeriod period, QWidget *parent)
{
    showFound(
        parent, nothingIn(kind, period),
        [&](Connection &connection, Progress *progress) {
            return figures::chart(connection, kind, period, programclock::today(), progress);
        },
        [&](ChartData chart) { frmGrafico::open(std::move(chart), parent); });
}

void centres(const Side &side, QWidget *parent)
{
    showReport(parent, {centreTitle, side.centres.noStatistics}, reportName,
               [&](Connection &connection, Progress *progress) {
                   return namestatistics::centres(connection, side, progress);
               });
}

void stock(QWidget *parent)
{
    showReport(parent, {centreTitle, namestatistics::noProducts.toString()}, reportName,
               namestatistics::stock);
}

void sales(QWidget *parent)
{
    showReport(parent, {centreTitle, namestatistics::noProducts.toString()}, reportName,
               namestatistics::sales);
}

} // namespace statisticscommands
