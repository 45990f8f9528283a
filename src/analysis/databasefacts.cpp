#include "analysis/databasefacts.h"

#include "data/dates.h"
#include "data/decimal.h"
#include "data/dialect_dates.h"
#include "data/schema.h"
#include "entries/side.h"
#include "settings/programfolder.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace databasefacts {

QString size()
{
    constexpr qint64 bytesInMegabyte = 1'048'576;
    const qint64 bytes = QFileInfo(programfolder::file(schema::fileName.toString())).size();
    const Decimal megabytes = *Decimal::fromInteger(bytes).dividedBy(Decimal::fromInteger(bytesInMegabyte));
    return megabytes.grouped() + u" MegaBytes"_s;
}

QString days(Connection &connection, QDate today)
{
    QDate first = today;
    for (const Side *side : {&payable(), &receivable()}) {
        Statement earliest = connection.prepareNative(
            (u"SELECT min("_s + dialect::dateExpression(u"data") + u") FROM "_s + side->table).toUtf8());
        if (const QDate date = earliest.step() ? dates::read(earliest.text(0)) : QDate(); date.isValid())
            first = std::min(first, date);
    }
    return QString::number(first.daysTo(today)) + u" Dias"_s;
}

} // namespace databasefacts
