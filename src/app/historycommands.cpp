#include "app/historycommands.h"

#include "data/error.h"
#include "data/journal.h"
#include "settings/settings.h"

#include <QAction>
#include <QMainWindow>
#include <QStatusBar>
#include <QSysInfo>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

constexpr int shownFor = 8'000; ///< milliseconds

/// The name by which the journal knows this installation; made once.
QString installation()
{
    QString name = settings::value(settings::installation);
    if (!name.isEmpty())
        return name;
    name = QUuid::createUuid().toString(QUuid::WithoutBraces);
    try {
        settings::setValue(settings::installation, name);
    } catch (const Error &) {
        // Without a place for settings, this run is an installation of its own.
    }
    return name;
}

void run(QMainWindow &window, undocommands::Direction direction)
{
    const QString done = undocommands::runNext(&window, direction);
    if (done.isNull())
        window.statusBar()->showMessage(direction == undocommands::Direction::Back
                                            ? u"Não há nada para desfazer"_s
                                            : u"Não há nada para refazer"_s,
                                        shownFor);
    else if (!done.isEmpty())
        window.statusBar()->showMessage(done, shownFor);
}

} // namespace

namespace historycommands {

void connectTo(QMainWindow &window)
{
    journal::setAuthor({qEnvironmentVariable("USER"), QSysInfo::machineHostName(), installation()});
    const std::pair<QString, undocommands::Direction> commands[] = {
        {u"mnudesfazer"_s, undocommands::Direction::Back}, {u"mnurefazer"_s, undocommands::Direction::Again}};
    for (const auto &[name, direction] : commands)
        QObject::connect(window.findChild<QAction *>(name), &QAction::triggered, &window,
                         [&window, way = direction] { run(window, way); });
}

void setUser(const QString &name)
{
    journal::Author author = journal::author();
    author.user = name;
    journal::setAuthor(author);
}

} // namespace historycommands
