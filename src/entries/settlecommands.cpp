#include "entries/settlecommands.h"

#include "data/clock.h"
#include "entries/entry.h"
#include "settings/database.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

settlecommands::Outcome settlecommands::settle(QWidget *over, const Side &side, quint64 file,
                                               const QStringList &codes)
{
    const QString title = u"Efetuar baixa"_s;
    if (!messages::question(over, title,
                            codes.size() == 1 ? side.settleQuestion
                                              : side.settleSeveralQuestion.arg(codes.size())))
        return Outcome::Refused;
    bool found = false;
    if (!messages::guarded(over, u"Ocorreu o seguinte erro ao tentar efetuar a baixa: ", [&] {
            found = entry::settle(*openDatabase(file), side, codes, programclock::today());
        }))
        return Outcome::Refused;
    if (found)
        return Outcome::Settled;
    messages::information(over, title, u"Este lançamento não existe mais."_s);
    return Outcome::Gone;
}
