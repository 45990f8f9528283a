#include "data/dialect.h"
#include "data/like.h"

#include <QCollator>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

class TestDialect : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void translates_data();
    void translates();
    void rowKeyComesLast();
    void countsWithoutSorting();
    void likePattern_data();
    void likePattern();
    void caseVariantsAreExactlyTheFoldedTwins();
    void namesInPortugueseOrder();
};

namespace {

void row(const char *name, const QString &written, const QString &expected)
{
    QTest::newRow(name) << written << expected;
}

void addConditions()
{
    row("plain like is an equality", u"SELECT * FROM pagar where (estatus like 'Pendente') "_s,
        u"SELECT * FROM pagar where (estatus = 'Pendente') ORDER BY rowid"_s);
    row("both cases of an accented letter", u"SELECT * FROM pagar where(estatus like 'Concluído')"_s,
        u"SELECT * FROM pagar where(estatus IN ('Concluído', 'ConcluÍdo')) ORDER BY rowid"_s);
    row("any value", u"SELECT * FROM pagar where (estatus like '%%')"_s,
        u"SELECT * FROM pagar where (estatus IS NOT NULL) ORDER BY rowid"_s);
    row("parentheses around either side",
        u"Delete FROM banco where (banco) like('x') AND([saldo])like ( ('y') )"_s,
        u"Delete FROM banco where (banco) = 'x' AND([saldo]) = 'y'"_s);
    row("wildcards stay", u"Delete from login where nome like '%a_'"_s,
        u"Delete from login where nome like '%a_'"_s);
    row("negated", u"Delete from t where not a like 'x' or b not like 'é' or c not like '%'"_s,
        u"Delete from t where not a = 'x' or b NOT IN ('é', 'É') or c <> c"_s);
    row("quote within a value", u"Delete from t where a like 'D''Água'"_s,
        u"Delete from t where a IN ('D''Água', 'D''água')"_s);
    row("bracket and percent sign of a quoted value stay", u"Delete from t where [a] like '[x]%1'"_s,
        u"Delete from t where [a] like '[x]%1'"_s);
    row("too many accents for a list", u"Delete from t where a like 'ááááááá'"_s,
        u"Delete from t where a like 'ááááááá'"_s);
    row("qualified name", u"Delete from t where [t].[a] like 'x' and t.b like 'y'"_s,
        u"Delete from t where [t].[a] = 'x' and t.b = 'y'"_s);
    row("only whole operands", u"Delete from t where a||b like 'x' and f(a) like 'y' and a like 'x'||'y'"_s,
        u"Delete from t where a||b like 'x' and f(a) like 'y' and a like 'x'||'y'"_s);
    row("key by its text",
        u"Delete FROM pagar where(código like '12' or CÓDIGO like '012' or [Código] like 'x')"_s,
        u"Delete FROM pagar where(código = 12 or código <> código or [código] <> [código])"_s);
    row("key with wildcard", u"Delete FROM pagar where código like '1%' or codigo not like '7'"_s,
        u"Delete FROM pagar where código like '1%' or codigo <> 7"_s);
    row("star of a delete", u"Delete * from login where(nome like 'ana')"_s,
        u"Delete from login where(nome = 'ana')"_s);
    row("text in quotes is left alone", u"Delete from t where a = 'x like ''%%'' [CÓDIGO] -- ; select'"_s,
        u"Delete from t where a = 'x like ''%%'' [CÓDIGO] -- ; select'"_s);
    row("closing semicolon", u"Delete from t ; "_s, u"Delete from t"_s);
    row("stock move keeps decimals", u"UPDATE [produto] SET qtde=qtde - 0.1 WHERE [produto] like 'x'"_s,
        u"UPDATE [produto] SET qtde=round(qtde - 0.1, 4) WHERE [produto] = 'x'"_s);
    row("other assignments stay", u"UPDATE t SET a='b', b=c+1, c = (c)"_s,
        u"UPDATE t SET a='b', b=c+1, c = (c)"_s);
}

void addRowOrders()
{
    row("names by collation", u"select * from banco order by [banco]"_s,
        u"select * from banco ORDER BY [banco] COLLATE name_order, rowid"_s);
    row("amounts as numbers, dates as stored", u"select * from pagar order by valor DESC, Data, código"_s,
        u"select * from pagar ORDER BY stored_amount(valor) DESC, Data, código, rowid"_s);
    row("order before a limit", u"select banco from banco where a = 1 limit 3"_s,
        u"select banco from banco where a = 1 ORDER BY rowid limit 3"_s);
    row("alias", u"select p.nome from cliente as p"_s, u"select p.nome from cliente as p ORDER BY rowid"_s);
    for (const QString &sql :
         {u"select count(*) from pagar"_s, u"select origem, sum(1) from pagar group by origem"_s,
          u"select * from pagar, receber"_s, u"select * from (select 1)"_s,
          u"select nome from a union select b from c"_s, u"insert into banco values ('select', 'x')"_s})
        row(qPrintable(u"no row order in: "_s + sql), sql, sql);

    row("distinct in name order",
        u"SELECT DISTINCT fornecedor FROM pagar where data > '2' order by fornecedor ASC"_s,
        u"SELECT [fornecedor] FROM (SELECT DISTINCT fornecedor FROM pagar where data > '2') "
        "GROUP BY folded_text([fornecedor]) ORDER BY fornecedor COLLATE name_order ASC"_s);
    row("distinct in table order", u"SELECT DISTINCT estado from cliente"_s,
        u"SELECT [estado] FROM (SELECT estado, min(rowid) AS first_row from cliente GROUP BY estado) "
        "GROUP BY folded_text([estado]) ORDER BY min(first_row)"_s);
    row("distinct of two columns", u"SELECT DISTINCT [nome],[código] FROM [cliente]"_s,
        u"SELECT [nome],[código] FROM [cliente] GROUP BY [nome], [código] ORDER BY min(rowid)"_s);
}

} // namespace

void TestDialect::translates_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("expected");
    addConditions();
    addRowOrders();
}

void TestDialect::translates()
{
    QFETCH(const QString, written);
    QFETCH(const QString, expected);
    QCOMPARE(dialect::translate(written).sql, expected);
}

void TestDialect::rowKeyComesLast()
{
    const auto whole = dialect::translate(u"select * from [Banco] order by banco", dialect::RowKey::Appended);
    QCOMPARE(whole.sql, u"select *, rowid from [Banco] ORDER BY banco COLLATE name_order, rowid"_s);
    QCOMPARE(whole.table, u"[Banco]"_s);
    for (const QString &sql :
         {u"select banco from banco"_s, u"select * from a, b"_s, u"select distinct * from a"_s}) {
        const auto partial = dialect::translate(sql, dialect::RowKey::Appended);
        QVERIFY2(partial.isSelect && partial.table.isEmpty() && !partial.sql.contains(u", rowid"),
                 qPrintable(sql));
    }
    QCOMPARE(dialect::bareTableName(u" [banco] "), u"[banco]"_s);
    QCOMPARE(dialect::bareTableName(u"select 1"), QString());
}

void TestDialect::countsWithoutSorting()
{
    QCOMPARE(dialect::translate(u"select * from pagar where (a like 'x') order by data").countSql,
             u"SELECT count(*) from pagar where (a = 'x')"_s);
    QCOMPARE(dialect::translate(u"select a from pagar limit 2").countSql,
             u"SELECT count(*) FROM (select a from pagar ORDER BY rowid limit 2)"_s);
}

void TestDialect::likePattern_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("matching");
    QTest::addColumn<QString>("different");
    QTest::newRow("case of all letters")
        << u"concluÍDO"_s << u"Concluído|CONCLUÍDO"_s << u"Concluido|Concluídos"_s;
    QTest::newRow("run") << u"%/12/%"_s << u"2026/12/01|/12/|x/12//12/"_s << u"2026/1/2|12/"_s;
    QTest::newRow("one character of any size") << u"_a_"_s << u"ãaç|xa€|🙂a🙂"_s << u"aa|ãaaa"_s;
    QTest::newRow("backtracking") << u"%ab%abc"_s << u"xababc|ababababc|ABABC"_s << u"abc|ababcd"_s;
    QTest::newRow("brackets are letters") << u"[a-c]%"_s << u"[a-c]|[A-C]x"_s << u"a|b"_s;
    QTest::newRow("other signs") << u"a*b?c\\%"_s << u"A*b?c\\|a*b?c\\d"_s << u"axbyc|a*b?cd"_s;
    QTest::newRow("letters of their own") << u"k"_s << u"K"_s << u"\u212A|İ"_s;
    QTest::newRow("empty") << QString() << QString() << u" |a"_s;
    QTest::newRow("anything") << u"%%"_s << u"|a| "_s << QString();
}

void TestDialect::likePattern()
{
    QFETCH(const QString, pattern);
    QFETCH(const QString, matching);
    QFETCH(const QString, different);
    const LikePattern like(pattern);
    for (const QString &text : matching.split(u'|'))
        QVERIFY2(like.matches(text), qPrintable(text));
    QVERIFY(!LikePattern(u"a").matches(std::string_view("\xF7\xBF\xBF\xBF"))); // not UTF-8
    for (const QString &text : different.split(u'|', Qt::SkipEmptyParts))
        QVERIFY2(!like.matches(text), qPrintable(text));
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
