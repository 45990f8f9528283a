#include "data/dialect.h"
#include "data/dialect_dates.h"
#include "data/like.h"
#include "support/answers.h"

#include <QCollator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class TestDialect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translates();
    void likePattern();
    void caseVariantsAreExactlyTheFoldedTwins();
    void namesInPortugueseOrder();
};

void TestDialect::translates()
{
    checkAnswers(u"SELECT * FROM pagar where (estatus like 'Pendente')  -> "
                 "SELECT * FROM pagar where (estatus = 'Pendente') ORDER BY rowid\n"
                 "SELECT * FROM pagar where(estatus like 'Concluído') -> "
                 "SELECT * FROM pagar where(estatus IN ('Concluído', 'ConcluÍdo')) ORDER BY rowid\n"
                 "SELECT * FROM pagar where (estatus like '%%') -> "
                 "SELECT * FROM pagar where (estatus IS NOT NULL) ORDER BY rowid\n"
                 "Delete FROM banco where (banco) like('x') AND([saldo])like ( ('y') ) -> "
                 "Delete FROM banco where (banco) = 'x' AND([saldo]) = 'y'\n"
                 "Delete from t where not a like 'x' or b not like 'é' or c not like '%' -> "
                 "Delete from t where not a = 'x' or b NOT IN ('é', 'É') or c <> c\n"
                 "Delete from t where a like 'D''Água' -> Delete from t where a IN ('D''Água', 'D''água')\n"
                 "Delete from t where [t].[a] like 'x' and t.b like 'y' -> "
                 "Delete from t where [t].[a] = 'x' and t.b = 'y'\n"
                 "Delete FROM pagar where(código like '12' or CÓDIGO like '012' or [Código] like 'x') -> "
                 "Delete FROM pagar where(código = 12 or código <> código or [código] <> [código])\n"
                 "Delete FROM pagar where código like '1%' or codigo not like '7' -> "
                 "Delete FROM pagar where código like '1%' or codigo <> 7\n"
                 "Delete * from login where(nome like 'ana') -> Delete from login where(nome = 'ana')\n"
                 "Delete from t;  -> Delete from t\n"
                 "UPDATE [produto] SET qtde=qtde - 0.1 WHERE [produto] like 'x' -> "
                 "UPDATE [produto] SET qtde=round(qtde - 0.1, 4) WHERE [produto] = 'x'\n"
                 "select * from banco order by [banco] -> "
                 "select * from banco ORDER BY [banco] COLLATE name_order, rowid\n"
                 "select * from pagar order by valor DESC, Data, código -> "
                 "select * from pagar ORDER BY stored_amount(valor) DESC, day(data), código, rowid\n"
                 "delete from pagar where (data like '23/11/2026') and [vencimento] not like '%2026/11/%' -> "
                 "delete from pagar where (day(data) = '2026/11/23') and NOT "
                 "(day(vencimento) >= '2026/11/' AND day(vencimento) < '2026/110')\n"
                 "delete from pagar where(Data like '%/11/%' AND data like '%2026/%') or data like '%%' -> "
                 "delete from pagar where(substr(day(data), 6, 2) = '11' AND (day(data) >= '2026/' AND "
                 "day(data) < '20260')) or data IS NOT NULL\n"
                 "delete from pagar where nascimento like '%/2_%' or nascimento like '%maio%' -> "
                 "delete from pagar where day(nascimento) LIKE '%/2_%' or nascimento like '%maio%'\n"
                 "UPDATE pagar SET data = '2026/11/23' WHERE data BETWEEN '01/11/2026' AND '2026/11/30' and "
                 "vencimento >= '2026/01/01' -> UPDATE pagar SET data = '2026/11/23' WHERE day(data) BETWEEN "
                 "'2026/11/01' AND '2026/11/30' and day(vencimento) >= '2026/01/01'\n"
                 "select * from pagar WHERE estatus(like 'Pendente') -> "
                 "select * from pagar WHERE estatus = 'Pendente' ORDER BY rowid\n"
                 "select * from bancario WHERE Data BETWEEN '2026/11/01' AND '2026/11/30' AND  WHERE "
                 "[estatus](like 'Con%') -> select * from bancario WHERE day(data) BETWEEN '2026/11/01' AND "
                 "'2026/11/30' AND [estatus] like( 'Con%') ORDER BY rowid\n"
                 "select banco from banco where a = 1 limit 3 -> "
                 "select banco from banco where a = 1 ORDER BY rowid limit 3\n"
                 "select p.nome from cliente as p -> select p.nome from cliente as p ORDER BY rowid\n"
                 "SELECT DISTINCT fornecedor FROM pagar where valor > '2' order by fornecedor ASC -> "
                 "SELECT [fornecedor] FROM (SELECT DISTINCT fornecedor FROM pagar where valor > '2') "
                 "GROUP BY folded_text([fornecedor]) ORDER BY fornecedor COLLATE name_order\n"
                 "SELECT DISTINCT estado from cliente -> "
                 "SELECT [estado] FROM (SELECT estado, min(rowid) AS first_row from cliente GROUP BY estado) "
                 "GROUP BY folded_text([estado]) ORDER BY min(first_row)\n"
                 "SELECT DISTINCT [nome],[código] FROM [cliente] -> "
                 "SELECT [nome],[código] FROM [cliente] GROUP BY [nome], [código] ORDER BY min(rowid)"_s,
                 [](const QString &written) {
                     QString sql = dialect::translate(written).sql;
                     for (const QString &column : {u"data"_s, u"vencimento"_s, u"nascimento"_s})
                         sql.replace(dialect::dateExpression(column), u"day("_s + column + u')');
                     return sql;
                 });
    for (const QString &same :
         {u"Delete from login where nome like '%a_' and [a] like '[x]%1' and b like 'ááááááá'"_s,
          u"Delete from t where data||b like '2026' and data like '%x1%' and f(data) = '2026' and data = b"_s,
          u"Delete from t where a||b like 'x' and f(a) like 'y' and a like 'x'||'y'"_s,
          u"Delete from t where a = 'x like ''%%'' [CÓDIGO] -- ; select'"_s,
          u"UPDATE t SET a='b', b=c+1, c = (c)"_s, u"select count(*) from pagar"_s,
          u"select origem, sum(1) from pagar group by origem"_s, u"select * from pagar, receber"_s,
          u"select * from (select 1)"_s, u"select nome from a union select b from c"_s,
          u"insert into banco values ('select', 'x')"_s})
        QCOMPARE(dialect::translate(same).sql, same);
}

void TestDialect::likePattern()
{
    const auto check = [](const QString &pattern, const QString &matching, const QString &different) {
        const LikePattern like(pattern);
        for (const QString &text : matching.split(u'|'))
            QVERIFY2(like.matches(text), qPrintable(text));
        for (const QString &text : different.split(u'|', Qt::SkipEmptyParts))
            QVERIFY2(!like.matches(text), qPrintable(text));
    };
    check(u"concluÍDO"_s, u"Concluído|CONCLUÍDO"_s, u"Concluido|Concluídos"_s);
    check(u"%/12/%"_s, u"2026/12/01|/12/|x/12//12/"_s, u"2026/1/2|12/"_s);
    check(u"_a_"_s, u"ãaç|xa€|🙂a🙂"_s, u"aa|ãaaa"_s);
    check(u"%ab%abc"_s, u"xababc|ababababc|ABABC"_s, u"abc|ababcd"_s);
    check(u"[a-c]*?\\%"_s, u"[a-c]*?\\|[A-C]*?\\x"_s, u"a*?\\|bxy"_s);
    check(u"k"_s, u"K"_s, u"\u212A|İ"_s);
    check(QString(), QString(), u" |a"_s);
    check(u"%%"_s, u"|a| "_s, QString());
    QVERIFY(!LikePattern(u"a").matches(std::string_view("\xF7\xBF\xBF\xBF"))); // not UTF-8
}

/// An index finds a text by its listed spellings, a scan by its folded form; both must agree on every letter.
void TestDialect::caseVariantsAreExactlyTheFoldedTwins()
{
    QHash<QString, QStringList> sameFolded;
    for (char32_t letter = 0x80; letter < 0x20000; ++letter) {
        if (QChar::isSurrogate(letter) || letter == QChar::ByteOrderMark)
            continue;
        const QString text = QString::fromUcs4(&letter, 1);
        sameFolded[textorder::folded(text)] << text;
        QVERIFY2(textorder::folded(text).at(0).unicode() >= 0x80, qPrintable(text));
    }
    for (const QStringList &twins : std::as_const(sameFolded)) {
        for (const QString &text : twins) {
            QStringList variants = textorder::caseVariants(text).value_or(QStringList());
            std::sort(variants.begin(), variants.end());
            QCOMPARE(variants, twins);
        }
    }
    QCOMPARE(textorder::caseVariants(u"áÉíóúç")->size(), 64);
    QVERIFY(!textorder::caseVariants(u"áÉíóúçã"));
}

void TestDialect::namesInPortugueseOrder()
{
    QStringList names{u"Zé"_s,    u"água"_s,   u"Agua"_s, u"banco 10"_s, u"Banco do Brasil"_s,
                      u"Ávila"_s, u"abc"_s,    u"ação"_s, u"acao"_s,     u"Açougue"_s,
                      u"Banco"_s, u"bancos"_s, u"-"_s,    u"1º andar"_s, u"10"_s};
    std::stable_sort(names.begin(), names.end(),
                     [](const QString &a, const QString &b) { return textorder::compareNames(a, b) < 0; });
    QCOMPARE(names.join(u'|'),
             u"-|10|1º andar|abc|acao|ação|Açougue|Agua|água|Ávila|Banco|banco 10|Banco do Brasil|"
             "bancos|Zé"_s);
    // The short way over UTF-8 must say what the collator says.
    names << QString() << u"ÁGUA"_s << u"agua "_s << u"BANCO-x"_s << u"Banco, x"_s << u"e\u0301"_s << u"é"_s
          << u"ef"_s;
    const auto sign = [](int order) { return (order > 0) - (order < 0); };
    for (const QString &a : std::as_const(names)) {
        for (const QString &b : std::as_const(names)) {
            const int order = textorder::compareNames(std::string_view(a.toStdString()), b.toStdString());
            QVERIFY2(sign(order) == sign(textorder::compareNames(QStringView(a), QStringView(b))),
                     qPrintable(a + u'|' + b));
        }
    }
}

QTEST_APPLESS_MAIN(TestDialect)
#include "tst_dialect.moc"
