#include "widgets/messages.h"

#include "widgets/formkeys.h"

#include <QLabel>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

QMessageBox::StandardButton show(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                 const QString &text, QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                 const QString &reason = {})
{
    const topmost::StepBack stepBack(parent);
    // The parent may be destroyed while the box is open, and takes the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(icon, title, text, buttons, parent);
    box->setObjectName(u"msgbox"_s);
    box->setTextFormat(Qt::PlainText);
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (!reason.isEmpty()) {
        box->setInformativeText(u" "_s); // makes its label, which takes the plain text
        if (auto *label = box->findChild<QLabel *>(u"qt_msgbox_informativelabel"_s)) {
            label->setTextFormat(Qt::PlainText);
            label->setText(reason);
        }
    }
    box->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    if (buttons.testFlag(QMessageBox::No)) {
        box->setDefaultButton(QMessageBox::No);
        box->setEscapeButton(QMessageBox::No);
    }
    const auto answer = QMessageBox::StandardButton(box->exec());
    delete box;
    return answer;
}

} // namespace

void messages::information(QWidget *parent, const QString &title, const QString &text)
{
    show(parent, QMessageBox::Information, title, text);
}

void messages::exclamation(QWidget *parent, const QString &title, const QString &text)
{
    show(parent, QMessageBox::Warning, title, text);
}

void messages::critical(QWidget *parent, const QString &title, const QString &text, const QString &reason)
{
    show(parent, QMessageBox::Critical, title, text, QMessageBox::Ok, reason);
}

bool messages::question(QWidget *parent, const QString &title, const QString &text)
{
    return show(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

bool messages::confirmRemoval(QWidget *parent)
{
    return question(parent, u"Remover"_s,
                    u"Tem certeza que deseja remover o item selecionado do banco de dados?"_s);
}

void messages::error(QWidget *parent, QStringView prefix, const Error &error)
{
    critical(parent, u"Erro"_s,
             (error.kind() == Error::Kind::Open ? openPrefix : prefix).toString() + error.text());
}

bool messages::guarded(QWidget *parent, QStringView prefix, const std::function<void()> &work)
{
    try {
        work();
        return true;
    } catch (const Error &failure) {
        error(parent, prefix, failure);
        return false;
    }
}
