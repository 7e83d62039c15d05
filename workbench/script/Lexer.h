#pragma once

#include <string>

#include "workbench/script/Script.h"

namespace workbench
{
/// The smallest piece of a script that means something.
struct Token
{
    enum class Kind
    {
        Name,
        String, ///< `text` is what stands between the quotes.
        Number,
        Symbol, ///< One character.
        End
    };

    Kind kind = Kind::End;
    std::string text;
    double number = 0.0;
    Position position;
    std::size_t begin = 0; ///< Offsets in the script.
    std::size_t end = 0;

    bool Is(char symbol) const { return kind == Kind::Symbol && text.front() == symbol; }

    /// How a message names the token: `"print"`, "the end of the script".
    std::string Describe() const;
};

/// Cuts a script into tokens; blanks, line ends and comments fall away.
class Lexer
{
public:
    explicit Lexer(std::string const& script);

    /// The next token; at the end of the script `End`, again and again. Throws a ScriptError at
    /// what is no token.
    Token Next();

private:
    char Peek(std::size_t ahead = 0) const;
    void Step();
    void SkipBlanks();
    void SkipComment();
    void TakeString(Token& token);
    void TakeNumber(Token& token);

    std::string const& m_script;
    std::size_t m_offset = 0;
    Position m_position;
};
} // namespace workbench
