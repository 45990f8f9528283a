#include "data/dialect_tokens.h"

#include "data/error.h"
#include "data/like.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace dialect {

namespace {

/// As the store sees it; a no-break space, for one, is no blank.
bool isBlank(QChar c)
{
    return c == u' ' || (c >= u'\t' && c <= u'\r');
}

bool startsName(QChar c)
{
    return c.isLetter() || c == u'_' || c.isSurrogate() || c.isMark();
}

bool continuesName(QChar c)
{
    return startsName(c) || c.isDigit() || c == u'$';
}

class Tokenizer
{
public:
    explicit Tokenizer(QStringView sql) : m_sql(sql) {}

    std::vector<Token> run()
    {
        while (true) {
            const QStringView blanks = take(isBlank);
            if (atEnd())
                return std::move(m_tokens);
            if (m_ended)
                throw Error(Error::Kind::Query,
                            u"Só um comando de cada vez pode ser executado no banco de dados."_s);
            if (current() == u';') {
                m_ended = true;
                ++m_at;
                continue;
            }
            Token token = readToken();
            token.blanks = blanks.toString();
            m_tokens.push_back(std::move(token));
        }
    }

private:
    bool atEnd() const { return m_at >= m_sql.size(); }
    QChar current() const { return m_sql[m_at]; }
    QChar following() const { return m_at + 1 < m_sql.size() ? m_sql[m_at + 1] : QChar(); }

    template <typename Predicate>
    QStringView take(Predicate belongs)
    {
        const qsizetype start = m_at;
        while (!atEnd() && belongs(current()))
            ++m_at;
        return m_sql.sliced(start, m_at - start);
    }

    Token readToken()
    {
        const QChar c = current();
        if (c == u'\'')
            return readQuoted(Token::Kind::Text, u'\'');
        if (c == u'"' || c == u'`')
            return readQuoted(Token::Kind::Quoted, c);
        if (c == u'[')
            return readBracketed();
        if (startsName(c))
            return named(Token::Kind::Word, take(continuesName), {});
        if (c.isDigit() || (c == u'.' && following().isDigit()))
            return readNumber();
        return readSymbol();
    }

    /// A quote inside the text is written twice.
    Token readQuoted(Token::Kind kind, QChar quote)
    {
        const qsizetype start = m_at++;
        Token token{kind, {}, {}, {}, m_depth};
        while (true) {
            const QStringView part = take([quote](QChar c) { return c != quote; });
            token.value += part;
            if (atEnd())
                throw Error(Error::Kind::Query,
                            u"Há uma aspa (%1) sem par no comando ao banco de dados."_s.arg(quote));
            ++m_at;
            if (atEnd() || current() != quote)
                break;
            token.value += quote;
            ++m_at;
        }
        token.text = m_sql.sliced(start, m_at - start).toString();
        return token;
    }

    Token readBracketed()
    {
        ++m_at;
        const QStringView name = take([](QChar c) { return c != u']'; });
        if (atEnd())
            throw Error(Error::Kind::Query, u"Há um colchete ([) sem par no comando ao banco de dados."_s);
        ++m_at;
        return named(Token::Kind::Bracketed, name, u"[]");
    }

    Token named(Token::Kind kind, QStringView name, QStringView around) const
    {
        const QString folded = textorder::folded(name);
        const bool ascii = std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 0x80; });
        QString text = ascii ? name.toString() : folded;
        if (!around.isEmpty())
            text = around.front() + text + around.back();
        return {kind, {}, text, folded, m_depth};
    }

    Token readNumber()
    {
        const QStringView number = take([](QChar c) { return continuesName(c) || c == u'.'; });
        return {Token::Kind::Number, {}, number.toString(), number.toString(), m_depth};
    }

    Token readSymbol()
    {
        const QChar c = current();
        if ((c == u'-' && following() == u'-') || (c == u'/' && following() == u'*'))
            throw Error(Error::Kind::Query, u"Comentários não são aceitos no comando ao banco de dados."_s);
        ++m_at;
        if (c == u')' && m_depth > 0)
            --m_depth;
        Token token{Token::Kind::Symbol, {}, c, c, m_depth};
        if (c == u'(')
            ++m_depth;
        return token;
    }

    QStringView m_sql;
    qsizetype m_at = 0;
    int m_depth = 0;
    bool m_ended = false;
    std::vector<Token> m_tokens;
};

} // namespace

std::vector<Token> tokenize(QStringView sql)
{
    if (sql.contains(QChar::Null)) // the store would stop reading there
        throw Error(Error::Kind::Query, u"Há um caractere inválido no comando ao banco de dados."_s);
    return Tokenizer(sql).run();
}

} // namespace dialect
