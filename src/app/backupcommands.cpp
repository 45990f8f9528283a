#include "app/backupcommands.h"

#include "settings/autobackup.h"
#include "settings/backup.h"
#include "settings/database.h"
#include "widgets/files.h"
#include "widgets/messages.h"
#include "widgets/threadwork.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString backupTitle = u"Backup"_s;
const QString filter = u"Arquivo de banco de dados(*.qorvex)"_s;

} // namespace

namespace backupcommands {

void backUp(QWidget *parent)
{
    const QString target = files::save(parent, u"Realizar backup do banco de dados"_s, filter, u"qorvex"_s);
    if (target.isEmpty())
        return;
    const bool made = threadwork::run(parent, u"Realizando backup"_s,
                                      u"O banco de dados está sendo copiado e a cópia conferida."_s,
                                      [&](Progress &progress) { backup::make(target, progress); });
    if (!made)
        return;
    messages::guarded(parent, messages::generalPrefix, [] { backup::remember(); });
    messages::information(parent, backupTitle, u"Backup realizado com sucesso!"_s);
}

bool restore(QWidget *parent)
{
    const QString chosen = files::open(parent, u"Restaurar backup do banco de dados"_s, filter);
    if (chosen.isEmpty())
        return false;
    const bool restored =
        threadwork::run(parent, u"Restaurando backup"_s,
                        u"O backup está sendo conferido e copiado para o lugar do banco de dados."_s,
                        [&](Progress &progress) { backup::restore(chosen, progress); });
    if (restored)
        messages::information(parent, backupTitle, u"Backup restaurado com sucesso!"_s);
    return restored;
}

bool copyNow(QWidget *parent, const QString &spared)
{
    autobackup::Plan plan;
    if (!messages::guarded(parent, messages::generalPrefix, [&plan] { plan = autobackup::plan(); }))
        return false;
    plan.spared = spared;
    const bool made = threadwork::run(parent, u"Cópia automática"_s,
                                      u"O banco de dados está sendo copiado e a cópia conferida."_s,
                                      [&plan](Progress &progress) { autobackup::make(plan, progress); });
    return made &&
           messages::guarded(parent, messages::generalPrefix, [&plan] { autobackup::remember(plan); });
}

void copyIfDue(QWidget *parent)
{
    if (autobackup::isOn() && autobackup::hasNews() && QFile::exists(databasePath()))
        copyNow(parent);
}

} // namespace backupcommands
