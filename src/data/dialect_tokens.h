#pragma once

#include <QString>
#include <QStringView>

#include <vector>

/// The words of an SQL text. Joining blanks and texts of all tokens gives back what was read.
namespace dialect {

struct Token
{
    enum class Kind { Word, Bracketed, Text, Quoted, Number, Symbol };

    Kind kind = Kind::Symbol;
    QString blanks; ///< what stood before it
    QString text;   ///< as it goes into the statement
    /// The folded name of a word or of a bracketed name; the value of a text; a number as written.
    QString value;
    int depth = 0; ///< how many parentheses enclose it

    bool is(QStringView word) const { return kind == Kind::Word && value == word; }
    bool isSymbol(QChar symbol) const { return kind == Kind::Symbol && text == symbol; }
    bool isName() const { return kind == Kind::Word || kind == Kind::Bracketed; }
};

/// Throws Error::Kind::Query for an unclosed quote or bracket, for a comment, and for anything but blanks
/// after a first ";", which is left out. Names beyond ASCII come in lower case, as the tables have them.
std::vector<Token> tokenize(QStringView sql);

} // namespace dialect
