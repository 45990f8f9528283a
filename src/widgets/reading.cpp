#include "widgets/reading.h"

#include "settings/database.h"
#include "widgets/frmcarregando.h"
#include "widgets/messages.h"
#include "widgets/waittext.h"

bool reading::run(QWidget *over, const QString &waitTitle,
                  const std::function<void(Connection &, Progress &)> &read, const QString &waitText)
{
    try {
        return messages::guarded(over, messages::generalPrefix, [&] {
            const std::shared_ptr<Connection> connection = openDatabase();
            const ReadLock oneState(*connection);
            WaitProgress progress(over, waitTitle, waitText.isEmpty() ? listWaitText() : waitText,
                                  WaitProgress::Cancel::Allowed);
            read(*connection, progress);
        });
    } catch (const Cancelled &) {
        return false;
    }
}
