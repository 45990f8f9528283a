#include "app/screencommands.h"

#include "agenda/frmcalendario.h"
#include "agenda/frmcompromisso.h"
#include "analysis/frmprocurar.h"
#include "app/backupcommands.h"
#include "app/externaltools.h"
#include "app/frmcopias.h"
#include "app/frmdica.h"
#include "app/frmestsoftware.h"
#include "app/frmgerenciarlogin.h"
#include "app/helpkey.h"
#include "entries/frmcentrocusto.h"
#include "entries/frmcliente.h"
#include "entries/frmjurosdesconto.h"
#include "entries/frmjurosparcelado.h"
#include "entries/frmrecibo.h"
#include "entries/frmregulares.h"
#include "entries/frmvisualizar.h"
#include "entries/periodview.h"
#include "history/frmhistorico.h"
#include "sales/frmestoque.h"
#include "sales/frmordemserv.h"
#include "widgets/messages.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>

using namespace Qt::StringLiterals;

namespace {

struct ScreenCommand
{
    const char16_t *action;
    void (*open)(QWidget *parent);
};

template <const ViewKind &(*kind)(), ViewPeriod period>
void openView(QWidget *parent)
{
    frmVisualizar::open(kind(), period, parent);
}

void tellAbout(QWidget *parent)
{
    messages::information(parent, u"Sobre o Tavaro"_s,
                          u"Tavaro "_s + QCoreApplication::applicationVersion() +
                              u"\nControle financeiro e de estoque para pequenas empresas.\n\n"
                              "Software livre sob a licença GPL, versão 3 ou posterior."_s);
}

constexpr ScreenCommand commands[] = {
    {u"mnuclientes", [](QWidget *parent) { frmCliente::open(clients(), parent); }},
    {u"mnufornecedores", [](QWidget *parent) { frmCliente::open(suppliers(), parent); }},
    {u"mnucentrocusto", [](QWidget *parent) { frmCentroCusto::openFor(costCentres(), parent); }},
    {u"mnucentrolucro", [](QWidget *parent) { frmCentroCusto::openFor(profitCentres(), parent); }},
    {u"mnuconflogin", [](QWidget *parent) { frmGerenciarLogin::open(parent); }},
    {u"mnurealizarbak", backupcommands::backUp},
    {u"mnucalc", externaltools::calculator},
    {u"mnunotepad", externaltools::textEditor},
    {u"mnumanual", [](QWidget *parent) { externaltools::manual(parent); }},
    {u"mnusobre", tellAbout},
    {u"mnuestsoftware", [](QWidget *parent) { frmEstSoftware::open(parent); }},
    {u"mnudicadia", [](QWidget *parent) { frmDica::open(parent); }},
    {u"mnuregulares", [](QWidget *parent) { frmRegulares::open(parent); }},
    {u"mnucopias", [](QWidget *parent) { frmCopias::open(parent); }},
    {u"mnuprocurar", [](QWidget *parent) { frmProcurar::open(parent); }},
    {u"mnuhistorico", [](QWidget *parent) { frmHistorico::open(parent); }},
    {u"mnucomp", [](QWidget *parent) { frmCompromisso::open(parent); }},
    {u"mnucal", [](QWidget *parent) { frmCalendario::open(parent); }},
    {u"mnujurosdesc", [](QWidget *parent) { frmJurosDesconto::open(parent); }},
    {u"mnujurosparcelas", [](QWidget *parent) { frmJurosParcelado::open(parent); }},
    {u"mnurecibo", [](QWidget *parent) { frmRecibo::open(parent); }},
    {u"mnuordemserv", [](QWidget *parent) { frmOrdemServ::open(parent); }},
    {u"mnuestoque", [](QWidget *parent) { frmestoque::open(parent); }},
    {u"mnucestoque", [](QWidget *parent) { frmestoque::open(parent); }},
    {u"mnuvisdiapagar", openView<payableView, ViewPeriod::Day>},
    {u"mnuvismespagar", openView<payableView, ViewPeriod::Month>},
    {u"mnuvisanopagar", openView<payableView, ViewPeriod::Year>},
    {u"mnuvisdiareceber", openView<receivableView, ViewPeriod::Day>},
    {u"mnuvismesreceber", openView<receivableView, ViewPeriod::Month>},
    {u"mnuvisanoreceber", openView<receivableView, ViewPeriod::Year>},
    {u"mnuvisdiabancario", openView<bankView, ViewPeriod::Day>},
    {u"mnuvismesbancario", openView<bankView, ViewPeriod::Month>},
    {u"mnuvisanobancario", openView<bankView, ViewPeriod::Year>},
};

/// A field at the end of the menu bar: Enter looks for what is typed there.
void addSearchBox(QMainWindow &window)
{
    auto *corner = new QWidget(window.menuBar());
    auto *box = new QLineEdit(corner);
    box->setObjectName(u"txtprocurartudo"_s);
    box->setPlaceholderText(u"Procurar em tudo"_s);
    box->setAccessibleName(u"Procurar em tudo"_s);
    box->setToolTip(u"Palavras, um valor ou uma data; Enter procura"_s);
    box->setClearButtonEnabled(true);
    box->setMinimumWidth(box->fontMetrics().averageCharWidth() * 28);
    auto *layout =
        new QHBoxLayout(corner); // a menu bar asks for a hint of the width, which a field has none of
    layout->setContentsMargins(0, 2, 4, 2);
    layout->addWidget(box);
    window.menuBar()->setCornerWidget(corner);
    QObject::connect(box, &QLineEdit::returnPressed, &window, [box, &window] {
        if (!box->text().trimmed().isEmpty())
            frmProcurar::open(&window, box->text());
    });
}

} // namespace

void connectScreenCommands(QMainWindow &window)
{
    for (const ScreenCommand &command : commands) {
        const auto *action = window.findChild<QAction *>(QString::fromUtf16(command.action));
        Q_ASSERT(action);
        QObject::connect(action, &QAction::triggered, &window,
                         [&window, open = command.open] { open(&window); });
    }
    new HelpKey(&window);
    addSearchBox(window);
}
