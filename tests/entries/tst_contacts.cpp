#include "entries/contact.h"
#include "entries/frmcadcli.h"
#include "entries/frmcliente.h"
#include "stock/labels.h"
#include "support/answers.h"
#include "support/readlist.h"
#include "support/shop.h"
#include "widgets/picturebox.h"

#include <QDoubleSpinBox>
#include <QTableWidget>

using namespace Qt::StringLiterals;

namespace {

ContactForm sampleForm()
{
    return {.name = u"  D'Ávila & Filhos "_s,
            .taxNumber = u" 12.345.678/0001-90"_s,
            .birth = u"05/03/1998"_s,
            .country = u"Brasil"_s,
            .state = u"SP"_s,
            .city = u"São Paulo "_s,
            .district = u"Centro"_s,
            .address = u"Rua A, 10, 01000-000"_s,
            .phone = u"11 1111"_s,
            .phone2 = u"11 2222"_s,
            .mobile = u"11 9"_s,
            .site = u"www.davila.example"_s,
            .email = u"a@davila.example"_s,
            .registration = u"123"_s,
            .picture = u"/imagens/não há.jpg"_s,
            .notes = u"paga em dia\nliga antes"_s,
            .isPerson = false};
}

void add(TestProgram &program, const QString &name, const QString &city, const QString &state,
         const QString &birth = {}, bool isPerson = true)
{
    ContactForm form;
    form.name = name;
    form.city = city;
    form.state = state;
    form.birth = birth;
    form.isPerson = isPerson;
    contact::save(program.database(), clients(), form, {});
}

/// The names of the listed clients.
QString listed(const ContactFilter &filter)
{
    const KeyedList list =
        readList(contact::columns(clients()), NoTotals(), contact::query(clients(), filter));
    QStringList lines;
    for (int row = 0; row < list.rows().rowCount(); ++row)
        lines << cellOf(list, row, 1);
    return lines.join(u", "_s);
}

QString names(const ListView *list)
{
    QStringList texts;
    for (int row = 0; row < list->rowCount(); ++row)
        texts << list->cell(row, 1);
    return texts.join(u", "_s);
}

/// One line a label text: page, place and text.
QString printed(const std::vector<std::vector<LabelText>> &pages)
{
    QString lines;
    int number = 0;
    for (const std::vector<LabelText> &page : pages) {
        lines += u"page %1\n"_s.arg(++number);
        for (const LabelText &label : page)
            lines += u"%1 %2 %3 "_s.arg(label.top).arg(label.left).arg(label.width) +
                     (label.bold ? u"*"_s : QString()) + label.text + u'\n';
    }
    return lines;
}

} // namespace

class tst_contacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void savedRowHoldsTheStoredForms();
    void sortingAndFiltering();
    void recordDialog();
    void listScreen();
    void labelTexts();
    void labelScreen();
};

void tst_contacts::savedRowHoldsTheStoredForms()
{
    TestProgram program;
    contact::save(program.database(), suppliers(), sampleForm(), {});
    QCOMPARE(
        program.rows(
            u"select nome, cpf, nascimento, pais, estado, cidade, bairro, endereco, tel, tel2, cel, site, email, insc, local, adicionais, tipo from fornecedor"_s),
        u"D'Ávila & Filhos | 12.345.678/0001-90 | 1998/03/05 | Brasil | SP | São Paulo | Centro | Rua A, 10, 01000-000 | 11 1111 | 11 2222 | 11 9 | www.davila.example | a@davila.example | 123 | /imagens/não há.jpg | paga em dia\nliga antes | j\n"_s);
    ContactForm form = sampleForm();
    form.birth = u"31/02/1998"_s;
    QVERIFY_THROWS_EXCEPTION(Error, contact::save(program.database(), suppliers(), form, {}));
    QVERIFY_THROWS_EXCEPTION(Error, contact::save(program.database(), suppliers(), sampleForm(), u"7"_s));
    QCOMPARE(program.rows(u"select count(*) from fornecedor"_s), u"1\n"_s);
}

void tst_contacts::sortingAndFiltering()
{
    TestProgram program;
    add(program, u"Zélia"_s, u"São Paulo"_s, u"SP"_s, u"10/12/1980"_s);
    add(program, u"Bar do Zé"_s, u"Curitiba"_s, u"PR"_s, u"12/10/2001"_s, false);
    add(program, u"Álvaro"_s, u"São Paulo"_s, u"SP"_s);
    add(program, u"D'Ávila"_s, u"Paulópolis"_s, u"SC"_s);
    QCOMPARE(contact::heading(suppliers(), {}), u"Exibindo todos os clientes"_s); // they share the words
    // field | text | sort | direction
    checkAnswers(
        u"cidade||estado|decrescente -> Álvaro, Zélia, D'Ávila, Bar do Zé\n"
        "cidade|paulo|nome do cliente|decrescente -> Zélia, Álvaro ; nome do cliente|ávil|| -> D'Ávila\n"
        "data de nascimento|10/12|| -> Zélia ; data de nascimento|12/10/2001|| -> Bar do Zé\n"
        "data de nascimento|10/12/19|| -> Zélia ; data de nascimento|10/12/2|| -> "_s,
        [&program](const QString &choices) {
            const QStringList words = choices.split(u'|');
            return listed({words[0], words[1], words[2], words[3]});
        });
}

void tst_contacts::recordDialog()
{
    Shop shop;
    TestProgram &program = shop.program;
    add(program, u"Ana"_s, u"Santos"_s, u"SP"_s, u"10/12/1980"_s);
    add(program, u"Bia"_s, u"SANTOS"_s, u"SP"_s);
    frmCadCli::openNew(suppliers(), suppliers().newCaption, nullptr);
    shop.press(u"cmdok"_s);
    QCOMPARE(shop.told(), u"exclamation | Erro | O nome do fornecedor é de preenchimento obrigatório!"_s);
    shop.press(u"cmdcancelar"_s);

    frmCadCli::openEdit(clients(), u"1"_s, nullptr);
    QCOMPARE(shop.screen(u"frmCadCli"_s)->windowTitle(), u"Editar cliente"_s);
    QCOMPARE(shop.text(u"cbonascimento"_s) + shop.text(u"txtcidade"_s) + shop.label(u"lblcpf"_s),
             u"10/12/1980SantosC&PF:"_s);
    shop.find<QRadioButton>(u"optcnpj"_s)->setChecked(true);
    QCOMPARE(shop.label(u"lblcpf"_s), u"CN&PJ:"_s);
    shop.type(u"txtcidade"_s, u"santos"_s); // differs from the suggestion in letter case only
    shop.type(u"cbonascimento"_s, u"050370"_s);
    shop.find<QPlainTextEdit>(u"txtadicionais"_s)->setPlainText(u"fiel"_s);
    const QString path = program.file(u"foto.bmp"_s);
    QVERIFY(QImage(20, 10, QImage::Format_RGB32).save(path));
    for (const QString &chosen : {path, QString()}) { // the second time cancelled
        shop.boxes.chooseFile(chosen);
        shop.press(u"img1"_s);
        QCOMPARE(shop.told(),
                 u"file | Carregar imagem do contato | Arquivos de imagens (*.bmp *.jpg *.gif)"_s);
        QVERIFY(shop.find<PictureBox>(u"img1"_s)->hasPicture());
    }
    shop.press(u"cmdok"_s);
    QCOMPARE(program.rows(u"select local from cliente where código = 1"_s), path + u'\n');
    frmCadCli::openNew(clients(), clients().newCaption, nullptr); // with nothing of the one before
    shop.type(u"txtnome"_s, u"Caio"_s);
    shop.press(u"cmdok"_s);
    QCOMPARE(program.rows(u"select nome, nascimento, cidade, adicionais, tipo from cliente"_s),
             u"Ana | 1970/03/05 | santos | fiel | j\nBia |  | SANTOS |  | f\nCaio |  |  |  | f\n"_s);
    QVERIFY(!frmCadCli::openEdit(clients(), u"9"_s, nullptr));
    QCOMPARE(shop.told(), u"information | Editar cliente | Este cliente não existe mais."_s);
}

void tst_contacts::listScreen()
{
    Shop shop;
    add(shop.program, u"Ana"_s, u"Santos"_s, u"SP"_s);
    add(shop.program, u"Bia"_s, u"Curitiba"_s, u"PR"_s);
    frmCliente::open(clients(), nullptr);
    auto *list = shop.find<ListView>(u"lstcontato"_s);
    QCOMPARE(names(list), u"Ana, Bia"_s);
    shop.choose(u"cbofiltro"_s, u"cidade"_s);
    QTest::keyClicks(shop.find<QLineEdit>(u"txtfiltro"_s), u"sant"_s);
    QCOMPARE(names(list) + u", "_s + shop.label(u"lbltopo"_s), u"Ana, Filtrando dados por cidade - sant"_s);
    shop.find<QLineEdit>(u"txtfiltro"_s)->clear();
    shop.choose(u"cboordem"_s, u"decrescente"_s);
    QCOMPARE(names(list) + u", "_s + shop.label(u"lbltopo"_s), u"Bia, Ana, Exibindo todos os clientes"_s);

    shop.command(u"editar"_s);
    QCOMPARE(shop.told(), u"information | Clientes | Selecione um cliente na lista."_s);
    shop.command(u"novo"_s);
    QCOMPARE(shop.screen(u"frmCadCli"_s)->windowTitle(), u"Cadastrar novo cliente"_s);
    shop.find<QLineEdit>(u"txtnome"_s)->setText(u"Caio"_s);
    shop.press(u"cmdok"_s);
    list->selectRow(1);
    shop.command(u"remover"_s); // the answer that costs nothing is the default
    QCOMPARE(names(list), u"Caio, Bia, Ana"_s);
    shop.boxes.answer(QMessageBox::Yes);
    QTest::keyClick(list, Qt::Key_Delete);
    QCOMPARE(names(list), u"Caio, Ana"_s);
    shop.screen(u"frmCliente"_s)->close();
}

void tst_contacts::labelTexts()
{
    TestProgram program;
    add(program, u"Ana"_s, u"Santos"_s, u"SP"_s, u"10/12/1980"_s);
    program.run(u"update cliente set endereco = 'Rua  A, 10', bairro = ''"_s);
    add(program, u"Bia"_s, u"Curitiba"_s, u"PR"_s);
    const QString query = u"Select * from cliente"_s;
    QCOMPARE(printed(labels::pages(program.database(), query, labels::defaultFields(), 28, 9)),
             u"page 1\n271.3 75 60 *Ana\n276.3 75 60 Rua A, 10\n286.3 75 45 Santos\n286.3 122 13 SP\n"
             "271.3 145 60 *Bia\n286.3 145 45 Curitiba\n286.3 192 13 PR\n"_s);
    const std::vector<LabelField> fields{{u"nascimento"_s, 1, 2, 30, u"Normal"_s},
                                         {u"nome"_s, 6, 2, 30, u"Maiúsculas"_s}};
    QCOMPARE(printed(labels::pages(program.database(), query, fields, 29, 9)),
             u"page 1\n268.3 142 30 10/12/1980\n273.3 142 30 ANA\npage 2\n6 2 30 BIA\n"_s);
}

void tst_contacts::labelScreen()
{
    Shop shop;
    for (int i = 0; i < 31; ++i)
        add(shop.program, u"Cliente %1"_s.arg(i), u"Santos"_s, u"SP"_s);
    frmCliente::open(clients(), nullptr);
    shop.command(u"mala"_s);
    auto *table = shop.find<QTableWidget>(u"tblcampos"_s);
    table->setCurrentCell(4, 0);
    shop.press(u"cmdexcluir"_s);
    static_cast<QDoubleSpinBox *>(table->cellWidget(0, 1))->setValue(2.5);

    const QString path = shop.program.file(u"etiquetas.pdf"_s);
    shop.boxes.chooseFile(path);
    shop.press(u"cmdpdf"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly) && file.readAll().contains("/Count 2"));
    shop.boxes.answer(QMessageBox::Yes);
    shop.press(u"cmdsair"_s);
    QVERIFY(!shop.screen(u"frmConfEtiqueta"_s));
    QCOMPARE(shop.told(), u"file | Salvar etiquetas em PDF | Arquivos PDF (*.pdf)\n"
                          "question | Etiquetas | Deseja salvar as posições dos campos da etiqueta?"_s);
    QCOMPARE(shop.program.rows(u"select Campo, [Top] from CamposEtiqueta"_s),
             u"nome | 2,5\nendereco | 9\nbairro | 14\ncidade | 19\n"_s);
    shop.screen(u"frmCliente"_s)->close();
}

QTEST_MAIN(tst_contacts)
#include "tst_contacts.moc"
