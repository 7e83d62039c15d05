#include "workbench/script/Lexer.h"

#include <algorithm>
#include <charconv>
#include <string_view>

#include "workbench/engine/Utf8.h"

namespace workbench
{
namespace
{
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool IsNameStart(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

bool IsNamePart(char c) { return IsNameStart(c) || IsDigit(c); }
} // namespace

std::string Token::Describe() const
{
    switch (kind)
    {
    case Kind::End:
        return "the end of the script";
    case Kind::String:
        return "the string \"" + text + "\"";
    default:
        return "\"" + text + "\"";
    }
}

Lexer::Lexer(std::string const& script) : m_script(script)
{
    if (script.compare(0, 3, "\xEF\xBB\xBF") == 0)
        m_offset = 3;
}

char Lexer::Peek(std::size_t ahead) const
{
    return m_offset + ahead < m_script.size() ? m_script[m_offset + ahead] : '\0';
}

/// Goes on by one character; "\n", "\r\n" and "\r" each end one line.
void Lexer::Step()
{
    if (Peek() == '\n' || (Peek() == '\r' && Peek(1) != '\n'))
    {
        ++m_position.line;
        m_position.column = 1;
    }
    else if (Peek() != '\r')
        ++m_position.column;
    m_offset += std::max<std::size_t>(1, CharacterLength(m_script, m_offset));
}

void Lexer::SkipBlanks()
{
    while (m_offset < m_script.size())
    {
        char const c = Peek();
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r')
            Step();
        else if (c == '/' && (Peek(1) == '/' || Peek(1) == '*'))
            SkipComment();
        else
            return;
    }
}

void Lexer::SkipComment()
{
    auto const start = m_position;
    bool const toLineEnd = Peek(1) == '/';
    Step();
    Step();
    while (m_offset < m_script.size())
    {
        if (toLineEnd && (Peek() == '\n' || Peek() == '\r'))
            return;
        if (!toLineEnd && Peek() == '*' && Peek(1) == '/')
        {
            Step();
            Step();
            return;
        }
        Step();
    }
    if (!toLineEnd)
        throw ScriptError("expected \"*/\" at the end of the comment that begins here", start);
}

Token Lexer::Next()
{
    SkipBlanks();
    Token token;
    token.position = m_position;
    token.begin = m_offset;
    char const c = Peek();
    if (m_offset == m_script.size())
        token.kind = Token::Kind::End;
    else if (IsNameStart(c))
    {
        token.kind = Token::Kind::Name;
        while (IsNamePart(Peek()))
            Step();
    }
    else if (c == '"')
        TakeString(token);
    else if (IsDigit(c) || (c == '.' && IsDigit(Peek(1))))
        TakeNumber(token);
    else
    {
        token.kind = Token::Kind::Symbol;
        Step();
    }
    token.end = m_offset;
    if (token.kind != Token::Kind::String)
        token.text = m_script.substr(token.begin, token.end - token.begin);
    if (token.kind == Token::Kind::Symbol
        && std::string_view("()[],;=+-").find(c) == std::string_view::npos)
        throw ScriptError(
            "expected a name, a string in double quotes, a number or one of ( ) [ ] , ; = + -, "
            "but found \""
                + token.text + "\"",
            token.position);
    return token;
}

void Lexer::TakeString(Token& token)
{
    token.kind = Token::Kind::String;
    Step();
    auto const begin = m_offset;
    while (m_offset < m_script.size() && Peek() != '"' && Peek() != '\n' && Peek() != '\r')
        Step();
    if (Peek() != '"' || m_offset == m_script.size())
        throw ScriptError(
            "expected a double quote at the end of the string that begins here; a string ends "
            "on its line, and a path that holds a double quote cannot be written in a script",
            token.position);
    token.text = m_script.substr(begin, m_offset - begin);
    Step();
}

void Lexer::TakeNumber(Token& token)
{
    token.kind = Token::Kind::Number;
    // All that could belong to it is taken together, so that "1.2.3" and "5abc" are one mistake.
    for (char last = '0'; IsNamePart(Peek()) || Peek() == '.'
                          || ((Peek() == '+' || Peek() == '-') && (last == 'e' || last == 'E'));)
    {
        last = Peek();
        Step();
    }
    auto const text = std::string_view(m_script).substr(token.begin, m_offset - token.begin);
    auto const result = std::from_chars(text.data(), text.data() + text.size(), token.number);
    if (result.ptr != text.data() + text.size() || result.ec == std::errc::invalid_argument)
        throw ScriptError("expected a number, but found \"" + std::string(text) + "\"", token.position);
    if (result.ec == std::errc::result_out_of_range)
        throw ScriptError("the number \"" + std::string(text)
                              + "\" is beyond what can be stored, about 1e-308 to 1e308 in size",
                          token.position);
}
} // namespace workbench
