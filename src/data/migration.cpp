#include "data/migration.h"

#include "data/connection.h"
#include "data/databasecopy.h"
#include "data/schema.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/// Nobody is told: a start does not wait for an answer.
class NoProgress : public Progress
{
public:
    void begin(std::function<qint64()>) override {}
    void advance(qint64) override {}
};

QString copyOf(const QString &path)
{
    const QFileInfo file(path);
    return file.path() + u'/' + file.completeBaseName() + u".antes-da-atualizacao."_s + file.suffix();
}

} // namespace

namespace migration {

bool run(Connection &connection)
{
    try {
        if (schema::hasLaterTables(connection))
            return true;
        NoProgress progress;
        databasecopy::backUp(connection.path(), copyOf(connection.path()), progress);
        Transaction transaction(connection);
        schema::createLaterTables(connection);
        transaction.commit();
    } catch (const Error &) {
        return false;
    }
    return true;
}

} // namespace migration
