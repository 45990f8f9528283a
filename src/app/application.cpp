#include "app/application.h"

#include "widgets/messages.h"

using namespace Qt::StringLiterals;

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const Error &error) {
        messages::error(activeWindow(), messages::generalPrefix, error);
    } catch (const std::exception &error) {
        messages::critical(activeWindow(), u"Erro"_s,
                           messages::generalPrefix.toString() + QString::fromLocal8Bit(error.what()));
    }
    return false;
}
