#include "data/savefile.h"

#include "data/error.h"

#include <QSaveFile>

using namespace Qt::StringLiterals;

void saveFile(const QString &path, const FileWriter &write, Progress *progress)
{
    const QString failed = u"Não foi possível gravar o arquivo \"%1\": %2"_s;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
    try {
        write(file, progress);
    } catch (const Error &error) {
        throw Error(Error::Kind::File, failed.arg(path, error.text()));
    }
    if (!file.commit())
        throw Error(Error::Kind::File, failed.arg(path, file.errorString()));
}
