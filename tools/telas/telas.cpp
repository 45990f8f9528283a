// Pictures of every screen, made from a demo database: tavaro-telas PASTA SAÍDA [--escuro]

#include "app/frmprincipal.h"
#include "app/icons.h"
#include "bank/frmbanco.h"
#include "data/clock.h"
#include "entries/frmadicionar.h"
#include "reports/frmimpressao.h"
#include "reports/frmrelatorio.h"
#include "settings/frmconfigsoft.h"
#include "settings/programfolder.h"
#include "settings/settings.h"
#include "widgets/frmcarregando.h"
#include "widgets/listview.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPalette>
#include <QTabWidget>
#include <QTemporaryDir>

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

/// Saves what is on screen now, then goes on.
class Pictures
{
public:
    explicit Pictures(QString folder) : m_folder(std::move(folder)) { QDir().mkpath(m_folder); }

    void take(QWidget &screen, const QString &name)
    {
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
    screen.findChild<QComboBox *>(u"cboproduto"_s)->setCurrentIndex(1);
    screen.findChild<QLineEdit *>(u"txtqtde"_s)->setText(u"2"_s);
    screen.findChild<QLineEdit *>(u"txtvalor"_s)->setText(u"1.234,50"_s);
}

void mainWindow(Pictures &pictures, frmPrincipal &window)
{
    window.resize(1366, 728);
    auto *tabs = window.findChild<QTabWidget *>(u"tabprincipal"_s);
    const QString names[] = {u"principal"_s, u"receber"_s, u"movimentos"_s, u"caixas"_s};
    window.findChild<ListView *>(u"lstpagar"_s)->selectRow(3);
    for (int tab = 0; tab < tabs->count(); ++tab) {
        tabs->setCurrentIndex(tab);
        pictures.take(window, names[tab]);
    }
    tabs->setCurrentIndex(frmPrincipal::PayablesTab);
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

void screens(Pictures &pictures, frmPrincipal &window)
{
    for (const auto &[side, name] : {std::pair(&receivable(), u"lancamento"_s), {&payable(), u"despesa"_s}}) {
        frmAdicionar *entry = frmAdicionar::openNew(*side, &window);
        fill(*entry);
        pictures.takeAndClose(entry, name);
    }
    pictures.takeAndClose(frmbanco::openNew(&window), u"conta"_s);
    const QString account = window.findChild<ListView *>(u"lstcaixabanco"_s)->cell(0, 0);
    pictures.takeAndClose(frmbanco::openEdit(account, &window), u"editarconta"_s);
    frmConfigSoft configuration(&window);
    configuration.show();
    pictures.takeAndClose(&configuration, u"configuracoes"_s);
    frmCarregando wait(&window);
    wait.setTexts(u"Carregando contas a pagar"_s, u"Por favor aguarde enquanto o software carrega os dados."_s);
    wait.setRange(100);
    wait.setDone(40);
    wait.show();
    pictures.take(wait, u"carregando"_s);
}

}

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
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
    frmPrincipal window;
    window.show();
    window.start();
    mainWindow(pictures, window);
    screens(pictures, window);
    reports(pictures, window);
    return pictures.failed() ? 1 : 0;
}
