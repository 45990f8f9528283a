#include "settings/database.h"

#include "data/changes.h"
#include "data/schema.h"
#include "data/sharedconnection.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace {

struct State
{
    SharedConnection connection;
    std::optional<QString> path;
    quint64 serial = 0; ///< of the last file that was opened; 0 before the first
};

State &state()
{
    static State state;
    return state;
}

} // namespace

QString chosenDatabasePath()
{
    const QString chosen = settings::value(settings::databasePath);
    return chosen == settings::databasePath.defaultValue ? programfolder::file(schema::fileName.toString())
                                                         : chosen;
}

void chooseDatabase()
{
    closeDatabase();
    state().path = chosenDatabasePath();
    state().serial = 0;
}

QString databasePath()
{
    if (!state().path)
        chooseDatabase();
    return *state().path;
}

std::shared_ptr<Connection> openDatabase()
{
    std::shared_ptr<Connection> connection = state().connection.open(databasePath());
    const quint64 before = std::exchange(state().serial, connection->serial());
    if (before != 0 && before != connection->serial())
        QMetaObject::invokeMethod(
            &Changes::instance(), [] { Changes::announce(Subject::Database); }, Qt::QueuedConnection);
    return connection;
}

std::shared_ptr<Connection> openDatabase(quint64 serial)
{
    std::shared_ptr<Connection> connection = openDatabase();
    if (serial != 0 && serial != connection->serial())
        throw Error(Error::Kind::Data,
                    u"o arquivo do banco de dados foi trocado por outro depois que estes dados foram lidos. "
                    "Nada foi gravado; as listas mostram agora os dados do novo arquivo."_s);
    return connection;
}

void closeDatabase()
{
    state().connection.close();
}
