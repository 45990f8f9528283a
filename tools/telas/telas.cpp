// Pictures of every screen, made from a demo database: tavaro-telas PASTA SAÍDA [--escuro]

#include "agenda/frmalerta.h"
#include "agenda/frmcompromisso.h"
#include "analysis/frmprocurar.h"
#include "analysis/frmrelatorio.h"
#include "app/backupcommands.h"
#include "app/frmconfigsoft.h"
#include "app/frmcopias.h"
#include "app/frmprincipal.h"
#include "app/icons.h"
#include "app/maintabs.h"
#include "bank/frmbanco.h"
#include "bank/frmmovimentobanc.h"
#include "data/clock.h"
#include "data/journal.h"
#include "entries/entry.h"
#include "entries/frmadicionar.h"
#include "entries/frmcadcli.h"
#include "entries/frmcadregular.h"
#include "entries/frmcentrocusto.h"
#include "entries/frmcliente.h"
#include "entries/frmmultiplos.h"
#include "entries/frmregulares.h"
#include "entries/frmvisualizar.h"
#include "entries/side.h"
#include "history/frmhistorico.h"
#include "reports/frmimpressao.h"
#include "sales/frmestoque.h"
#include "sales/frmordemserv.h"
#include "settings/autobackup.h"
#include "settings/database.h"
#include "settings/programfolder.h"
#include "settings/settings.h"
#include "stock/frmcadproduto.h"
#include "stock/frmconfetiqueta.h"
#include "widgets/frmcarregando.h"
#include "widgets/listfinder.h"
#include "widgets/listview.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QLocale>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QPalette darkPalette()
{
    QPalette palette(QColor(0x31, 0x36, 0x3b));
    palette.setColor(QPalette::Base, QColor(0x23, 0x26, 0x29));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    return palette;
}

/// The program folder of these pictures is one of this machine; they show the one of an installed program.
void showInstalledFolder(const QWidget &screen)
{
    for (QWidget *control : screen.findChildren<QWidget *>()) {
        QString text = control->property("text").toString();
        if (text.contains(programfolder::path()))
            control->setProperty("text", text.replace(programfolder::path(), u"/opt/tavaro"_s));
    }
}

/// Saves what is on screen now, then goes on.
class Pictures
{
public:
    explicit Pictures(QString folder) : m_folder(std::move(folder)) { QDir().mkpath(m_folder); }

    void take(QWidget &screen, const QString &name)
    {
        showInstalledFolder(screen);
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
        const QString file = m_folder + u'/' + name + u".png"_s;
        if (!screen.grab().save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            m_failed = true;
        }
    }
    void takeAndClose(QWidget *screen, const QString &name)
    {
        take(*screen, name);
        screen->close();
    }
    bool failed() const { return m_failed; }

private:
    QString m_folder;
    bool m_failed = false;
};

void fill(QWidget &screen)
{
    screen.findChild<QComboBox *>(u"txtdescricao"_s)->setCurrentIndex(1);
    screen.findChild<QComboBox *>(u"cbotipo"_s)->setCurrentIndex(2);
    screen.findChild<QLineEdit *>(u"txtvalor"_s)->setText(u"1.234,50"_s);
}

void entryScreens(Pictures &pictures, frmPrincipal &window)
{
    for (const auto &[side, name] : {std::pair(&receivable(), u"lancamento"_s), {&payable(), u"despesa"_s}}) {
        frmAdicionar *entry = frmAdicionar::openNew(*side, &window);
        fill(*entry);
        entry->findChild<QComboBox *>(u"cboproduto"_s)->setCurrentIndex(1);
        entry->findChild<QLineEdit *>(u"txtqtde"_s)->setText(u"2"_s);
        pictures.takeAndClose(entry, name);
        frmMultiplos *installments = frmMultiplos::openFor(*side, &window);
        fill(*installments);
        pictures.takeAndClose(installments, u"parcelas-"_s + name);
    }
}

void centreScreens(Pictures &pictures, frmPrincipal &window)
{
    for (const CentreSide *side : {&costCentres(), &profitCentres()}) {
        frmCentroCusto *screen = frmCentroCusto::openFor(*side, &window);
        screen->findChild<ListView *>(u"lstcentro"_s)->selectRow(1);
        pictures.take(*screen, side->table);
        screen->findChild<QTabWidget *>(u"xtab"_s)->setCurrentIndex(1);
        pictures.takeAndClose(screen, side->table + u"-resumo"_s);
    }
}

void mainWindow(Pictures &pictures, frmPrincipal &window)
{
    window.resize(1366, 728);
    auto *tabs = window.findChild<QTabWidget *>(u"tabprincipal"_s);
    const QString names[] = {u"principal"_s, u"receber"_s, u"movimentos"_s, u"caixas"_s, u"hoje"_s};
    window.findChild<ListView *>(u"lstpagar"_s)->selectRow(3);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        pictures.take(window, names[tab]);
    }
    tabs->setCurrentIndex(MainTabs::Payables);
    auto &list = *window.findChild<ListView *>(u"lstpagar"_s);
    list.finder().open();
    list.findChild<QLineEdit *>(u"txtlocalizar"_s)->setText(u"pao congelado"_s);
    pictures.take(window, u"localizar"_s);
    list.findChild<QToolButton *>(u"cmdlocalizarfechar"_s)->click();
}

/// Something to look at in the journal.
void history(Pictures &pictures, frmPrincipal &window)
{
    journal::setAuthor({u"Ana"_s, u"BALCAO"_s, journal::author().installation});
    entry::settle(*openDatabase(), receivable(), {u"2"_s}, programclock::today());
    entry::remove(*openDatabase(), payable(), {{u"3"_s, u"-"_s, {}}});
    window.findChild<QAction *>(u"mnudesfazer"_s)->trigger();
    frmHistorico *screen = frmHistorico::open(&window);
    screen->findChild<ListView *>(u"lsthistorico"_s)->selectRow(2);
    pictures.takeAndClose(screen, u"historico"_s);
}

void regularEntries(Pictures &pictures, frmPrincipal &window)
{
    const auto rule = [](const Side &side, const QString &what, const QString &who, const QString &value,
                         Rhythm rhythm, const QString &next, const QString &until) {
        regular::save(*openDatabase(), 0,
                      {.side = &side,
                       .account = u"Caixa da loja"_s,
                       .contact = who,
                       .description = what,
                       .document = {},
                       .notes = {},
                       .value = value,
                       .currency = u"R$"_s,
                       .rhythm = rhythm,
                       .next = next,
                       .until = until,
                       .times = {},
                       .ahead = u"10"_s});
    };
    rule(payable(), u"Aluguel"_s, u"Imobiliária Centro"_s, u"2.400,00"_s, Rhythm::Monthly, u"10/12/2026"_s,
         {});
    rule(payable(), u"Salários e encargos"_s, u"Folha de pagamento"_s, u"5.350,00"_s, Rhythm::Monthly,
         u"05/12/2026"_s, {});
    rule(payable(), u"Seguro da loja"_s, u"Seguradora Atlântica"_s, u"1.890,00"_s, Rhythm::Yearly,
         u"15/03/2027"_s, u"15/03/2030"_s);
    rule(receivable(), u"Assinatura de cestas"_s, u"Ana Alves da Silva"_s, u"120,00"_s, Rhythm::Weekly,
         u"27/11/2026"_s, {});
    pictures.takeAndClose(frmProcurar::open(&window, u"pao queijo 2026"_s), u"procurar"_s);
    frmRegulares *list = frmRegulares::open(&window);
    list->findChild<ListView *>(u"lstregulares"_s)->selectRow(0);
    pictures.take(*list, u"regulares"_s);
    pictures.takeAndClose(frmCadRegular::openEdit(1, list, 0), u"editarregular"_s);
    list->close();
}

void copies(Pictures &pictures, frmPrincipal &window)
{
    const QDateTime now = programclock::now();
    for (int day = 3; day >= 0; --day) {
        programclock::set(now.addDays(-day));
        backupcommands::copyNow(&window);
    }
    entry::remove(*openDatabase(), payable(), {{u"5"_s, u"-"_s, {}}});
    autobackup::setOn(true);
    pictures.takeAndClose(frmCopias::open(&window), u"copias"_s);
    autobackup::setOn(false);
    QDir(autobackup::folder()).removeRecursively();
}

void reports(Pictures &pictures, frmPrincipal &window)
{
    Report report;
    report.title = u"CONTAS A PAGAR"_s;
    report.subtitle = u"Todas as despesas"_s;
    report.filterText = u"Relatório gerado entre as datas de 01/11/2026 e 30/11/2026 - Período de 29 dias."_s;
    report.tables = {window.findChild<ListView *>(u"lstpagar"_s)->tableSource()};
    report.statistics = u"Total de cadastros no período: 120\nTotal de despesas: R$ 10,00"_s;
    pictures.takeAndClose(frmRelatorio::open(report, &window), u"relatorio"_s);
    frmimpressao pages(modimpressao::document(report), &window);
    pages.show();
    pictures.takeAndClose(&pages, u"impressao"_s);
}

void movements(Pictures &pictures, frmPrincipal &window)
{
    pictures.takeAndClose(frmmovimentobanc::openNew(&window), u"movimento"_s);
    const auto *list = window.findChild<ListView *>(u"lstmovimento"_s);
    int row = 0;
    while (row < list->rowCount() - 1 && list->cell(row, 2) != movement::transfer)
        ++row;
    pictures.takeAndClose(frmmovimentobanc::openEdit(list->cell(row, 0).toLongLong(), &window),
                          u"editarmovimento"_s);
}

void periodViews(Pictures &pictures, frmPrincipal &window)
{
    pictures.takeAndClose(frmVisualizar::open(payableView(), ViewPeriod::Month, &window),
                          u"visualizarpagar"_s);
    pictures.takeAndClose(frmVisualizar::open(receivableView(), ViewPeriod::Day, &window),
                          u"visualizarreceber"_s);
    pictures.takeAndClose(frmVisualizar::open(bankView(), ViewPeriod::Year, &window),
                          u"visualizarbancario"_s);
}

void contacts(Pictures &pictures, frmPrincipal &window)
{
    frmCliente *list = frmCliente::open(clients(), &window);
    list->findChild<ListView *>(u"lstcontato"_s)->selectRow(2);
    pictures.take(*list, u"clientes"_s);
    list->findChild<QComboBox *>(u"cbofiltro"_s)->setCurrentText(u"cidade"_s);
    list->findChild<QLineEdit *>(u"txtfiltro"_s)->setText(u"paulo"_s);
    pictures.takeAndClose(list, u"clientesfiltro"_s);
    pictures.takeAndClose(frmCadCli::openNew(suppliers(), suppliers().newCaption, &window),
                          u"novofornecedor"_s);
    pictures.takeAndClose(frmCadCli::openEdit(clients(), u"1"_s, &window), u"editarcliente"_s);
    pictures.takeAndClose(frmConfEtiqueta::open(u"Select * from cliente"_s, &window), u"etiquetas"_s);
}

/// What a menu command shows, and what a button of it shows then, once the fields are filled in.
struct CommandPicture
{
    QString command, button = {};
    std::vector<std::pair<QString, QString>> fields = {}; ///< a choice has no text
};

const std::vector<CommandPicture> &commandPictures()
{
    static const std::vector<std::pair<QString, QString>> year{{u"cbodata1"_s, u"01/01/2026"_s},
                                                               {u"cbodata2"_s, u"31/12/2026"_s}};
    static const std::vector<CommandPicture> pictures{
        {u"mnufincli"_s, u"cmdverificar"_s},
        {u"mnuextrato"_s, u"cmdvisualizar"_s, year},
        {u"mnuviscontmespagar"_s},
        {u"mnuvisvencreceber"_s},
        {u"mnufluxogeral"_s, u"cmdnatela"_s, year},
        {u"mnumetadesp"_s, u"cmddesp"_s, {{u"txtvalordesp"_s, u"R$ 3.000,00"_s}}},
        {u"mnucompmesdesp"_s, u"cmdmes"_s},
        {u"mnucompanorec"_s, u"cmdok"_s},
        {u"mnugerendesp"_s, u"cmdconsultardesp"_s},
        {u"mnulucrosdesp"_s, u"cmdconsultar"_s, {{u"optano"_s, {}}}},
        {u"mnuestlucrosano"_s},
        {u"mnuretpagar"_s, u"cmdnatelap"_s},
        {u"mnuretestoque"_s, u"cmdnatelae"_s},
        {u"mnuretclientes"_s, u"cmdcliente"_s},
        {u"mnuretint"_s, u"cmdnatela"_s},
        {u"mnuestpagarano"_s},
        {u"mnuestplanopagar"_s},
        {u"mnuestestoque"_s},
        {u"mnuestvendas"_s},
        {u"mnuestatisticas"_s},
        {u"mnuestbancos"_s, u"cmdok"_s},
        {u"mnugrareceberano"_s},
        {u"mnugrapagar"_s, u"cmdnatelap"_s},
        {u"mnugradr"_s, u"cmdgradr"_s},
        {u"mnuconflogin"_s},
        {u"mnuestsoftware"_s},
        {u"mnudicadia"_s},
        {u"mnucomp"_s, u"cmdresultado"_s, year},
        {u"mnucal"_s, u"cmdnovo"_s},
        {u"mnujurosdesc"_s,
         u"cmdcalcular"_s,
         {{u"txttotal"_s, u"1.000,00"_s}, {u"txtporcentagem"_s, u"2,5"_s}}},
        {u"mnujurosparcelas"_s,
         u"cmdcalcular"_s,
         {{u"txtvalor"_s, u"1.000,00"_s}, {u"txtjurosmes"_s, u"2"_s}, {u"txtparcelas"_s, u"10"_s}}},
        {u"mnuretviaemail"_s, u"cmdconflogin"_s},
        {u"mnuestviaemail"_s},
    };
    return pictures;
}

QDialog *newestDialog(const frmPrincipal &window)
{
    QDialog *newest = nullptr;
    for (QDialog *dialog : window.findChildren<QDialog *>())
        if (dialog->isVisible() && dialog->isWindow())
            newest = dialog;
    return newest;
}

void fill(QWidget &screen, const CommandPicture &picture)
{
    for (QComboBox *box : screen.findChildren<QComboBox *>())
        for (int i = 0; i < box->count() && box->currentText().isEmpty(); ++i)
            box->setCurrentIndex(i);
    for (const auto &[name, text] : picture.fields) {
        if (auto *field = screen.findChild<QLineEdit *>(name))
            field->setText(text);
        else
            screen.findChild<QRadioButton *>(name)->setChecked(true);
    }
}

void commandScreens(Pictures &pictures, frmPrincipal &window)
{
    for (const CommandPicture &picture : commandPictures()) {
        window.findChild<QAction *>(picture.command)->trigger();
        QDialog *asking = newestDialog(window);
        fill(*asking, picture);
        pictures.take(*asking, picture.command);
        if (!picture.button.isEmpty()) {
            asking->findChild<QPushButton *>(picture.button)->click();
            pictures.take(*newestDialog(window), picture.command + u"-resultado"_s);
        }
        for (QDialog *shown = newestDialog(window); shown; shown = newestDialog(window))
            shown->close();
    }
}

/// The preview runs until it is closed.
void takePreview(Pictures &pictures, QDialog &screen, const QString &name)
{
    QTimer::singleShot(0, &screen, [&] { pictures.takeAndClose(QApplication::activeModalWidget(), name); });
    screen.findChild<QPushButton *>(u"cmdimprimir"_s)->click();
}

void documents(Pictures &pictures, frmPrincipal &window)
{
    window.findChild<ListView *>(u"lstreceber"_s)->selectRow(5);
    auto *order = frmOrdemServ::open(&window);
    const auto add = [&](const QString &button, const std::vector<std::pair<QString, QString>> &fields) {
        order->findChild<QPushButton *>(button)->click();
        QDialog *line = newestDialog(window);
        fill(*line, {.command = {}, .fields = fields});
        pictures.take(*line, button);
        line->findChild<QPushButton *>(u"cmdadicionar"_s)->click();
    };
    order->findChild<QLineEdit *>(u"txtcliente"_s)->setText(u"Ana Paula de Souza"_s);
    order->findChild<QLineEdit *>(u"txttelefone"_s)->setText(u"(11) 5555-0123"_s);
    add(u"cmdadpro"_s, {{u"txtnome"_s, u"Impressora térmica"_s},
                        {u"txtmarca"_s, u"Genérica"_s},
                        {u"txtmodelo"_s, u"T-80"_s},
                        {u"txtserie"_s, u"0042-17"_s},
                        {u"txtdescricao"_s, u"Troca da cabeça de impressão"_s},
                        {u"txtvalor"_s, u"R$ 189,90"_s}});
    add(u"cmdadserv"_s, {{u"txtnome"_s, u"Mão de obra"_s},
                         {u"txtdescricao"_s, u"Desmontagem, limpeza e teste"_s},
                         {u"txtvalor"_s, u"R$ 120,00"_s}});
    pictures.take(*order, u"mnuordemserv"_s);
    takePreview(pictures, *order, u"mnuordemserv-resultado"_s);
    order->close();
    window.findChild<QAction *>(u"cmdrecibor"_s)->trigger();
    QDialog *receipt = newestDialog(window);
    pictures.take(*receipt, u"cmdrecibor"_s);
    takePreview(pictures, *receipt, u"cmdrecibor-resultado"_s);
    receipt->close();
}

void agenda(Pictures &pictures, frmPrincipal &window)
{
    frmCompromisso *book = frmCompromisso::open(&window);
    book->findChild<ListView *>(u"lstcompromisso"_s)->selectRow(2);
    book->findChild<QAction *>(u"editar"_s)->trigger();
    pictures.takeAndClose(newestDialog(window), u"editarcompromisso"_s);
    book->close();
    if (frmAlerta *alert = frmAlerta::open(&window))
        pictures.takeAndClose(alert, u"alerta"_s);
}

void lockScreen(Pictures &pictures, frmPrincipal &window)
{
    QTimer::singleShot(0, &window, [&] {
        auto *screen = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        pictures.take(*screen, u"mnubloquearsoft"_s);
        pictures.take(window, u"bloqueado"_s);
        screen->accept();
    });
    window.findChild<QAction *>(u"mnubloquearsoft"_s)->trigger();
}

void screens(Pictures &pictures, frmPrincipal &window)
{
    entryScreens(pictures, window);
    centreScreens(pictures, window);
    pictures.takeAndClose(frmbanco::openNew(&window), u"conta"_s);
    const QString account = window.findChild<ListView *>(u"lstcaixabanco"_s)->cell(0, 0);
    pictures.takeAndClose(frmbanco::openEdit(account, &window), u"editarconta"_s);
    frmConfigSoft configuration(&window);
    configuration.show();
    pictures.takeAndClose(&configuration, u"configuracoes"_s);
    frmCarregando wait(&window);
    wait.setTexts(u"Carregando contas a pagar"_s,
                  u"Por favor aguarde enquanto o software carrega os dados."_s);
    wait.setRange(100);
    wait.setDone(40);
    wait.show();
    pictures.take(wait, u"carregando"_s);
}

void stockScreens(Pictures &pictures, frmPrincipal &window)
{
    frmestoque *stock = frmestoque::open(&window);
    auto *tabs = stock->findChild<QTabWidget *>(u"tabestoque"_s);
    for (const QString &name : {u"estoque"_s, u"vendas"_s, u"compras"_s}) {
        pictures.take(*stock, name);
        tabs->setCurrentIndex(tabs->currentIndex() + 1);
    }
    pictures.takeAndClose(frmcadproduto::openNew(stock), u"produto"_s);
    const QString product = stock->findChild<ListView *>(u"lstprodutos"_s)->cell(0, 0);
    pictures.takeAndClose(frmcadproduto::openEdit(product, stock), u"editarproduto"_s);
    stock->close();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    QCoreApplication::setApplicationVersion(QStringLiteral(TAVARO_VERSION));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: tavaro-telas PROGRAM_FOLDER OUTPUT_FOLDER [--escuro]\n", stderr);
        return 2;
    }
    QTemporaryDir settingsFolder;
    settings::setFolder(settingsFolder.path());
    programfolder::choose(arguments[1]);
    programclock::set(QDateTime(QDate(2026, 11, 16), QTime(9, 30)));
    QApplication::setStyle(u"fusion"_s);
    if (arguments.contains(u"--escuro"_s))
        QApplication::setPalette(darkPalette());
    icons::choose();

    Pictures pictures(arguments[2]);
    settings::setValue(settings::tipOfTheDay, u"0"_s);
    settings::setValue(settings::dueAlerts, u"0"_s);
    settings::setValue(settings::automaticBackup, u"0"_s);
    frmPrincipal window;
    window.show();
    window.start();
    mainWindow(pictures, window);
    screens(pictures, window);
    stockScreens(pictures, window);
    movements(pictures, window);
    contacts(pictures, window);
    periodViews(pictures, window);
    commandScreens(pictures, window);
    documents(pictures, window);
    agenda(pictures, window);
    lockScreen(pictures, window);
    reports(pictures, window);
    history(pictures, window);
    copies(pictures, window);
    regularEntries(pictures, window);
    return pictures.failed() ? 1 : 0;
}
