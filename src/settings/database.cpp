#include "settings/database.h"

#include "data/sharedconnection.h"
#include "settings/programfolder.h"
#include "settings/settings.h"

#include "data/schema.h"

namespace {

SharedConnection &shared()
{
    static SharedConnection connection;
    return connection;
}

} // namespace

QString databasePath()
{
    const QString chosen = settings::value(settings::databasePath);
    return chosen == settings::databasePath.defaultValue ? programfolder::file(schema::fileName.toString())
                                                         : chosen;
}

Connection &openDatabase()
{
    return shared().open(databasePath());
}

void closeDatabase()
{
    shared().close();
}
