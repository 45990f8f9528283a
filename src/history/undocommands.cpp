#include "history/undocommands.h"

#include "history/steptexts.h"
#include "settings/database.h"
#include "widgets/messages.h"

using namespace Qt::StringLiterals;

namespace {

struct Words
{
    QString title, none, some, done;
};

const Words &wordsOf(undocommands::Direction direction)
{
    static const Words back{
        u"Desfazer"_s, u"Esta ação não pode mais ser desfeita, e nada foi alterado:\n\n"_s,
        u"A ação foi desfeita, menos o que outro usuário alterou depois:\n\n"_s, u"Desfeito: "_s};
    static const Words again{u"Refazer"_s, u"Esta ação não pode mais ser refeita, e nada foi alterado:\n\n"_s,
                             u"A ação foi refeita, menos o que outro usuário alterou depois:\n\n"_s,
                             u"Refeito: "_s};
    return direction == undocommands::Direction::Back ? back : again;
}

} // namespace

namespace undocommands {

bool run(QWidget *parent, Direction direction, qint64 step)
{
    undo::Outcome outcome;
    const auto work = direction == Direction::Back ? undo::takeBack : undo::doAgain;
    if (!messages::guarded(parent, messages::generalPrefix, [&] { outcome = work(*openDatabase(), step); }))
        return false;
    const Words &words = wordsOf(direction);
    if (!outcome.refused.empty())
        messages::exclamation(parent, words.title,
                              (outcome.isDone ? words.some : words.none) +
                                  steptexts::refusals(outcome.refused));
    return outcome.isDone;
}

QString runNext(QWidget *parent, Direction direction)
{
    QString words;
    qint64 step = 0;
    const bool isRead = messages::guarded(parent, messages::openPrefix, [&] {
        const std::shared_ptr<Connection> connection = openDatabase();
        step = direction == Direction::Back ? undo::next(*connection) : undo::nextAgain(*connection);
        words = wordsOf(direction).done + steptexts::deed(journal::rows(*connection, step));
    });
    if (isRead && step == 0)
        return {};
    return isRead && run(parent, direction, step) ? words : u""_s;
}

} // namespace undocommands
