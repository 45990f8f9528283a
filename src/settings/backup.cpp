#include "settings/backup.h"

#include "data/clock.h"
#include "data/databasecopy.h"
#include "data/decimal.h"
#include "data/schema.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

// The two values stand under names of applications of their own.
const QString backupApplication = u"Adm Tavaro"_s, maintenanceApplication = u"Adm Corvel"_s;
const QString backupKey = u"BackupData"_s, maintenanceKey = u"ManutencaoBD"_s;
const QString never = u"Nunca foi realizado"_s;

QString megaBytes(qint64 bytes)
{
    constexpr qint64 mebibyte = 1024 * 1024;
    const qint64 hundredths = (bytes * 100 + mebibyte / 2) / mebibyte;
    return Decimal::fromTenThousandths(hundredths * 100).grouped() + u" MegaBytes"_s;
}

} // namespace

namespace backup {

QString databaseFile()
{
    return programfolder::file(schema::fileName.toString());
}

void make(const QString &target, Progress &progress)
{
    databasecopy::backUp(databaseFile(), target, progress);
}

void remember()
{
    settings::write(backupApplication, settings::general.toString(), backupKey,
                    programclock::now().toString(u"dd/MM/yyyy HH:mm"));
}

void restore(const QString &chosen, Progress &progress)
{
    databasecopy::restore(chosen, databaseFile(), progress);
}

Facts facts()
{
    const auto read = [](const QString &application, const QString &key) {
        return settings::read(application, settings::general.toString(), key, never);
    };
    return {megaBytes(QFileInfo(databaseFile()).size()), read(maintenanceApplication, maintenanceKey),
            read(backupApplication, backupKey)};
}

} // namespace backup
