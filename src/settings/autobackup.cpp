#include "settings/autobackup.h"

#include "data/clock.h"
#include "data/databasecopy.h"
#include "data/dates.h"
#include "data/error.h"
#include "settings/backup.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <set>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int days = 7, weeks = 4, months = 12; ///< of which a copy is kept
constexpr int daysWithoutWarning = 7;
const QString timeForm = u"yyyy-MM-dd-HHmmss"_s, prefix = u"tavaro-"_s, suffix = u".qorvex"_s;
const QString unfinished = u".novo"_s; ///< of a copy that a sudden end cut short

QString stateOf(const QString &database)
{
    const QFileInfo file(database);
    return u"%1|%2|%3"_s.arg(database).arg(file.size()).arg(file.lastModified().toMSecsSinceEpoch());
}

void removeUnfinished(const QString &folder)
{
    const QDateTime yesterday = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo &file : QDir(folder).entryInfoList({prefix + u'*' + suffix + unfinished}))
        if (file.lastModified() < yesterday) // another machine may be writing a newer one
            QFile::remove(file.filePath());
}

std::vector<autobackup::Copy> copiesIn(const QString &folder)
{
    std::vector<autobackup::Copy> found;
    for (const QFileInfo &file : QDir(folder).entryInfoList({prefix + u'*' + suffix}, QDir::Files)) {
        const QString time = file.completeBaseName().mid(prefix.size());
        if (const QDateTime when = QDateTime::fromString(time, timeForm); when.isValid())
            found.push_back({file.filePath(), when, file.size()});
    }
    std::ranges::sort(found, std::greater(), &autobackup::Copy::when);
    return found;
}

/// Marks the newest copy of each of the latest `count` periods, as `period` names them.
template <typename Period>
void keepNewest(const std::vector<autobackup::Copy> &copies, std::size_t count, Period period,
                std::set<QString> &kept)
{
    std::set<decltype(period(QDate()))> seen;
    for (const autobackup::Copy &copy : copies)
        if (seen.size() < count && seen.insert(period(copy.when.date())).second)
            kept.insert(copy.path);
}

} // namespace

namespace autobackup {

bool isOn()
{
    return settings::isOn(settings::automaticBackup);
}

QString folder()
{
    const QString chosen = settings::value(settings::backupFolder);
    return chosen.isEmpty() ? programfolder::file(u"backups"_s) : chosen;
}

void setOn(bool on)
{
    settings::setValue(settings::automaticBackup, on ? u"1"_s : u"0"_s);
}

void setFolder(const QString &path)
{
    settings::setValue(settings::backupFolder, path);
}

std::vector<Copy> copies()
{
    return copiesIn(folder());
}

std::vector<Copy> surplus(const std::vector<Copy> &copies)
{
    std::set<QString> kept;
    keepNewest(
        copies, days, [](QDate day) { return day; }, kept);
    keepNewest(
        copies, months, [](QDate day) { return std::pair(day.year(), day.month()); }, kept);
    const auto week = [](QDate day) {
        int year = 0;
        const int number = day.weekNumber(&year);
        return std::pair(year, number);
    };
    keepNewest(copies, weeks, week, kept);
    std::vector<Copy> rest;
    std::ranges::copy_if(copies, std::back_inserter(rest),
                         [&kept](const Copy &copy) { return !kept.contains(copy.path); });
    return rest;
}

bool hasNews()
{
    return stateOf(databasePath()) != settings::value(settings::backupState);
}

Plan plan()
{
    const QString place = folder();
    if (!QDir().mkpath(place))
        throw Error(Error::Kind::File, u"a pasta das cópias \"%1\" não pôde ser criada."_s.arg(place));
    const QString database = databasePath();
    return {database,
            place + u'/' + prefix + programclock::now().toString(timeForm) + suffix,
            stateOf(database),
            {}};
}

void make(const Plan &plan, Progress &progress)
{
    databasecopy::backUp(plan.database, plan.target, progress);
    const QString place = QFileInfo(plan.target).path(); // settings belong to the main thread
    for (const Copy &copy : surplus(copiesIn(place)))
        if (copy.path != plan.spared)
            QFile::remove(copy.path);
    removeUnfinished(place);
}

void remember(const Plan &plan)
{
    settings::setValue(settings::backupState, plan.state);
    backup::remember();
}

QString warning(QDate today)
{
    const bool isGone = !settings::value(settings::backupFolder).isEmpty() && !QFileInfo(folder()).isDir();
    if (isOn() && isGone)
        return u"A pasta das cópias automáticas, \"%1\", não está mais lá. Nenhuma cópia é feita."_s.arg(
            folder());
    const std::vector<Copy> made = copies();
    QDate last = dates::read(backup::facts().lastBackup.section(u' ', 0, 0));
    if (!made.empty() && (!last.isValid() || made.front().when.date() > last))
        last = made.front().when.date();
    if (!last.isValid())
        return isOn() ? QString() : u"Ainda não há nenhuma cópia de segurança dos dados."_s;
    if (last.daysTo(today) <= daysWithoutWarning)
        return {};
    return u"A última cópia de segurança dos dados é de %1, há %2 dias."_s.arg(dates::shown(last))
        .arg(last.daysTo(today));
}

} // namespace autobackup
