#include "app/helpkey.h"

#include "app/externaltools.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace {

struct Section
{
    const char16_t *topic, *screens; ///< names in lower case, between blanks
};

constexpr Section sections[] = {
    {u"abrir", u" frmdica "},
    {u"contas", u" frmbanco "},
    {u"lancar", u" frmadicionar "},
    {u"contatos", u" frmcliente frmcadcli frmconfetiqueta "},
    {u"desfazer", u" frmhistorico "},
    {u"procurar", u" frmprocurar "},
    {u"movimentos", u" frmmovimentobanc "},
    {u"parcelas", u" frmmultiplos "},
    {u"regulares", u" frmregulares frmcadregular "},
    {u"centros", u" frmcentrocusto "},
    {u"estoque", u" frmestoque frmcadproduto "},
    {u"agenda", u" frmcompromisso frmcadcompromisso frmretcompromisso frmcalendario frmalerta "},
    {u"recibos", u" frmrecibo "},
    {u"ordens", u" frmordemserv frmcadprodorc frmcadservord "},
    {u"juros", u" frmjurosdesconto frmjurosparcelado "},
    {u"meses", u" frmpormes "},
    {u"historico", u" frmfincli "},
    {u"extrato", u" frmconfextrato frmextrato frmdatabanco frmestbanco "},
    {u"fluxo", u" frmconfluxo frmfluxo "},
    {u"metas", u" frmprojecao "},
    {u"comparar", u" frmcompara "},
    {u"gerenciar", u" frmgerenciamento frmrelacaodesluc "},
    {u"relatorios", u" frmrelatorio frmconfrelatorio frmconfrelatorio2 "},
    {u"integrado", u" frmgeradorret frmrelatorioint "},
    {u"estatisticas", u" frmestatisticas "},
    {u"graficos", u" frmconfgrafico frmgrafico "},
    {u"papel", u" frmimpressao frmvisualizar "},
    {u"email", u" frmviaemail frmconfloginemail frmenviando "},
    {u"login", u" frmlogin frmgerenciarlogin "},
    {u"backup", u" frmestsoftware frmcopias "},
    {u"config", u" frmconfigsoft "},
};

} // namespace

HelpKey::HelpKey(QWidget *window) : QObject(window)
{
    qApp->installEventFilter(this);
}

QString HelpKey::topic(const QString &screen)
{
    const QString name = u' ' + screen.toLower() + u' ';
    for (const Section &section : sections)
        if (QStringView(section.screens).contains(name))
            return QString::fromUtf16(section.topic);
    return {};
}

bool HelpKey::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_F1)
        return false;
    const auto *widget = qobject_cast<QWidget *>(object);
    auto *screen = widget ? qobject_cast<QDialog *>(widget->window()) : nullptr;
    if (!screen)
        return false;
    externaltools::manual(screen, topic(QString::fromLatin1(screen->metaObject()->className())));
    return true;
}
