#include "widgets/screen.h"

#include "settings/database.h"
#include "widgets/background.h"
#include "widgets/formkeys.h"
#include "widgets/messages.h"

#include <QAction>
#include <QLineEdit>
#include <QToolBar>

#include <limits>

Screen::Screen(QWidget *parent, Qt::WindowFlags flags) : QDialog(parent, flags)
{
    setAttribute(Qt::WA_DeleteOnClose);
}

void Screen::prepare()
{
    background::apply(this);
    formkeys::enterMovesOn(this);
    formkeys::modalOverDialog(this);
    const auto fields = findChildren<QLineEdit *>();
    for (QLineEdit *field : fields)
        field->setMaxLength(std::numeric_limits<int>::max()); // a field never holds less than its row
    const auto bars = findChildren<QToolBar *>();
    for (const QToolBar *bar : bars)
        for (QAction *action : bar->actions()) // the button of a command bears its name
            bar->widgetForAction(action)->setObjectName(action->objectName());
}

bool Screen::load(const std::function<void(Connection &)> &read)
{
    return messages::guarded(place(), messages::generalPrefix, [&] { read(*openDatabase()); });
}

bool Screen::loadForChange(const std::function<void(Connection &)> &read)
{
    return load([&](Connection &connection) {
        read(connection);
        m_file = connection.serial();
    });
}

bool Screen::loadRow(quint64 listed, const QString &title, const QString &goneMessage,
                     const std::function<bool(Connection &)> &read)
{
    bool found = false;
    const bool loaded = messages::guarded(place(), messages::generalPrefix, [&] {
        const std::shared_ptr<Connection> connection = openDatabase(listed);
        found = read(*connection);
        m_file = connection->serial();
    });
    if (loaded && !found)
        messages::information(place(), title, goneMessage);
    return found;
}

bool Screen::write(QStringView prefix, const std::function<void(Connection &)> &work)
{
    return messages::guarded(this, prefix, [&] { work(*openDatabase(m_file)); });
}

bool Screen::saveAndClose(const std::function<void(Connection &)> &work)
{
    const Changes::Hold untilClosed;
    if (!write(messages::savePrefix, work))
        return false;
    close();
    return true;
}

QWidget *Screen::place()
{
    return isVisible() ? this : parentWidget();
}
